#ifndef CIRCULARLOADINGWIDGET_H
#define CIRCULARLOADINGWIDGET_H

#include "zcommonwidgets_export.h"

#include <QColor>
#include <QWidget>

namespace ZIRVOUI {

class CircularDelegate;

/*!
 * An endless spinner: an arc that grows, shrinks and travels on a turning circle, every 2.05
 * seconds, from construction to destruction.
 *
 * It takes all the space that a layout has, but asks for none: give it a size where other widgets
 * want that space too.  A hidden spinner keeps time without painting.
 */
class ZCOMMONWIDGETS_EXPORT CircularLoadingWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double lineWidth READ lineWidth WRITE setLineWidth)
    Q_PROPERTY(QColor color READ color WRITE setColor)

public:
    /*! Spins from now on, without a track. */
    explicit CircularLoadingWidget(QWidget *parent = nullptr);
    ~CircularLoadingWidget() override;

    /*!
     * The width of arc and track in pixels, 24 by default; the setter repaints.  A width of 0 and
     * less, or of 32768 and more, draws a line of one pixel; one that is not finite draws nothing.
     */
    double lineWidth() const;
    void setLineWidth(double width);
    /*! The arc, RGB (210, 212, 66) by default; the setter repaints. */
    QColor color() const;
    void setColor(const QColor &color);
    /*! The track under the arc, transparent by default; the setter only stores. */
    QColor cirqueColor() const;
    void setCirqueColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void init();

    CircularDelegate *m_delegate = nullptr;
    QColor m_color = QColor(210, 212, 66);
    QColor m_cirqueColor = Qt::transparent;
    double m_lineWidth = 24.0;
};

} // namespace ZIRVOUI

#endif
