#ifndef ZSLIDER_H
#define ZSLIDER_H

#include "zcommonwidgets_export.h"

#include <QPair>
#include <QScopedPointer>
#include <QSlider>
#include <QVector>

namespace ZIRVOUI {

struct ZSliderPrivate;

/*!
 * A horizontal slider to be dragged from anywhere: a press puts the round handle, which is as wide
 * as the slider is high, under the finger.  The groove left of its centre has a colour of its own.
 *
 * The mouse chooses multiples of singleStep(), which are counted from zero, not from the minimum.
 *
 * The handle follows the mouse, assistive tools and this class's setValue(), and nothing else.
 * Keys, the wheel, a new range, the setValue() slot of the base class and a resize leave it where
 * it was: call calcHandlePosition() after any of these, such as when a layout has given the slider
 * its size.
 *
 * The setters of groove and handle only store: set them before the slider is shown, or call
 * update().  A disabled slider fades its groove to 30 % and shows its handle in gray.  Whatever
 * orientation() says, it is drawn horizontally.
 */
class ZCOMMONWIDGETS_EXPORT ZSlider : public QSlider
{
    Q_OBJECT

public:
    /*! From 0 to 99 in steps of 1, as a stock slider. */
    explicit ZSlider(QWidget *parent = nullptr);
    ~ZSlider() override;

    /*!
     * Adds stops to the groove's gradient, which runs from its left end at 0 to its right at 1.  A
     * stop where one is already takes its place; the other ones stay.  QGradient refuses positions
     * beyond 0 to 1 with a warning; one that is no number is left out.  The colours are referred
     * to: they have to live until the call returns.
     */
    void addGradientColor(const QVector<QPair<double, const QColor &>> &stops);
    /*! The stop at 1 alone, RGB (121, 121, 121) by default: without others, the whole groove. */
    void setGrooveColor(const QColor &color);
    /*! The corner radius of the groove in pixels, 0 by default; less is square too. */
    void setGrooveRadius(const int &radius);
    /*!
     * The height of the groove in pixels, 6 by default; a pixel more where the slider's own height
     * is odd and this even, or the other way round, so that it lies in the middle.  A negative one
     * counts as a positive one, up to that pixel.
     */
    void setGrooveThickness(const int &thickness);
    /*! The groove left of the handle's centre, RGB (15, 112, 226) by default. */
    void setGrooveSlippedColor(const QColor &color);
    /*! The handle while the slider is up, white by default. */
    void setHandleNormalColor(const QColor &color);
    /*! The handle while the slider is down, RGB (15, 112, 226) by default. */
    void setHandlePressColor(const QColor &color);

    /*! Bounds \a value to the range, moves the handle there and repaints. */
    void setValue(int value);
    /*! Moves the handle to where the value is at the present size, and repaints. */
    void calcHandlePosition();
    /*!
     * Sets the value that belongs to \a x, in pixels from the slider's left: the multiple of
     * singleStep() that is nearest to the whole part of the exact value, the outer one of two.  A
     * step of 0 takes the whole part as it is.  A slider no wider than it is high keeps its value.
     */
    void calcHandleValue(int x);

    /*! Draws the groove, for use in a paintEvent(); elsewhere it draws nothing. */
    void paintGroove();
    /*! Draws the handle, for use in a paintEvent(); elsewhere it draws nothing. */
    void paintHanle();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QScopedPointer<ZSliderPrivate> d;
};

} // namespace ZIRVOUI

#endif
