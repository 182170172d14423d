#ifndef KEPTSHAPE_P_H
#define KEPTSHAPE_P_H

#include <QBrush>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <tuple>

namespace ZIRVOUI {

/*!
 * Draws a shape as QPainter does with its pen, its brush and antialiasing, to the pixel. What is
 * drawn the same way a second time, if elsewhere, is kept as pixels, which take a tenth of the
 * work.
 */
class KeptShape
{
public:
    /*! Draws within half a pen of a rectangle, with corners of a radius. */
    using Shape = void (*)(QPainter &painter, const QRectF &rect, double radius);

    void draw(QPainter &painter, Shape shape, const QRectF &rect, double radius);
    void drawEllipse(QPainter &painter, const QRectF &rect);
    void drawRoundedRect(QPainter &painter, const QRectF &rect, double radius);

private:
    /*! One colour: pixels of several would not blend with the ground as these do in turn. */
    class Layer
    {
    public:
        void draw(QPainter &painter, Shape shape, const QRectF &rect, double radius);

    private:
        using Hints = QPainter::RenderHints;
        std::tuple<Shape, QRectF, double, QPen, QBrush, Hints, double, double> m_inputs;
        QPixmap m_pixels;
    };

    Layer m_fill;
    Layer m_stroke;
};

} // namespace ZIRVOUI

#endif
