#ifndef CIRCLEPROGESS_H
#define CIRCLEPROGESS_H

#include "zcommonwidgets_export.h"

#include <QBrush>
#include <QScopedPointer>
#include <QWidget>

namespace ZIRVOUI {

class KeptShape;

/*!
 * A ring that fills clockwise from 12 o'clock: a disc, a slice over it as large as the value is far
 * from the minimum to the maximum, and a smaller disc that hollows out the middle.
 *
 * The figure is as large as the widget allows and sits in its top-left corner; it asks a layout for
 * no size: give it one.  Its three brushes are empty by default, so that nothing is drawn.  Nothing
 * is limited: a value beyond the range draws a slice beyond the full arc, one below it a slice the
 * other way.
 *
 * Every setter but setValue() only stores: call update() to show a change.
 */
class ZCOMMONWIDGETS_EXPORT CircleProgess : public QWidget
{
    Q_OBJECT

public:
    /*! Draws nothing until it gets a brush. */
    explicit CircleProgess(QWidget *parent = nullptr);
    ~CircleProgess() override;

    /*! The value without a slice, 0 by default.  A range that is empty draws none. */
    double min() const;
    void setMin(double min);
    /*! The value of the full arc, 100 by default. */
    double max() const;
    void setMax(double max);
    /*! 0 by default; the setter repaints.  NaN draws no slice. */
    double value() const;
    void setValue(double value);
    /*! The degrees from 12 o'clock, clockwise, where the slice begins; 0 by default. */
    double startAngle() const;
    void setStartAngle(double angle);
    /*! The degrees that a full range covers, 360 by default. */
    double progressAngle() const;
    void setProgressAngle(double angle);
    /*!
     * The width of the ring in pixels, 10 by default.  From half the figure's size on there is no
     * hole, with a negative one nothing else.
     */
    int borderWidth() const;
    void setBorderWidth(int width);
    /*! The hole. */
    QBrush bgColor() const;
    void setBgColor(const QBrush &brush);
    /*! The disc under the slice. */
    QBrush circleColor() const;
    void setCircleColor(const QBrush &brush);
    /*! The slice. */
    QBrush progressColor() const;
    void setProgressColor(const QBrush &brush);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int spanAngle() const;

    double m_min = 0.0;
    double m_max = 100.0;
    double m_value = 0.0;
    double m_startAngle = 0.0; // degrees
    double m_progressAngle = 360.0; // degrees
    int m_borderWidth = 10; // pixels
    QBrush m_bgColor;
    QBrush m_circleColor;
    QBrush m_progressColor;
    QScopedPointer<KeptShape> m_disc;
    QScopedPointer<KeptShape> m_hole;
};

} // namespace ZIRVOUI

#endif
