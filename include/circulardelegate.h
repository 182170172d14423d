#ifndef CIRCULARDELEGATE_H
#define CIRCULARDELEGATE_H

#include "zcommonwidgets_export.h"

#include <QObject>

namespace ZIRVOUI {

class CircularLoadingWidget;

/*!
 * The animated values of a CircularLoadingWidget, as properties.  Each setter stores and repaints
 * the widget.
 */
class ZCOMMONWIDGETS_EXPORT CircularDelegate : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double dashOffset READ dashOffset WRITE setDashOffset)
    Q_PROPERTY(double dashLength READ dashLength WRITE setDashLength)
    Q_PROPERTY(int angle READ angle WRITE setAngle)

public:
    /*!
     * \a widget, which must not be null, owns the delegate.
     *
     * Every CircularLoadingWidget has made its own, findChild() finds it; it does not paint the
     * values of another.
     */
    explicit CircularDelegate(CircularLoadingWidget *widget);
    ~CircularDelegate() override;

    /*!
     * Where the arc begins, in widths of its line; less is further clockwise.  0 by default; one
     * that is not finite draws no arc.
     */
    double dashOffset() const;
    void setDashOffset(double offset);
    /*! How long the arc is, in widths of its line; 89 by default.  Not finite, it is not drawn. */
    double dashLength() const;
    void setDashLength(double length);
    /*! The degrees that the figure is turned by, clockwise; 0 by default. */
    int angle() const;
    void setAngle(int angle);

private:
    CircularLoadingWidget *m_widget;
    double m_dashOffset = 0.0;
    double m_dashLength = 89.0;
    int m_angle = 0;
};

} // namespace ZIRVOUI

#endif
