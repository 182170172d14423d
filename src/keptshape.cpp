#include "devicepixels_p.h"
#include "keptshape_p.h"

#include <cmath>

namespace ZIRVOUI {

namespace {

constexpr double MostPixels = 256 * 256; // which are a quarter of a megabyte
constexpr double Farthest = 32767; // pixels: beyond this Qt cuts shapes before it draws them

bool isVisible(const QBrush &brush)
{
    return brush.style() != Qt::NoBrush
        && (brush.style() != Qt::SolidPattern || brush.color().alpha() > 0);
}

bool isVisible(const QPen &pen)
{
    return pen.style() != Qt::NoPen && isVisible(pen.brush());
}

// Lines of up to a pixel are drawn by Qt in pieces that overlap.
bool isPlain(const QPen &pen, double ratio)
{
    return pen.style() == Qt::NoPen
        || (pen.style() == Qt::SolidLine && pen.brush().style() == Qt::SolidPattern
            && !pen.isCosmetic() && pen.widthF() * ratio > 1);
}

// Whole pixels that the shape stays within.
QRectF boundsOf(const QRectF &shape, const QPen &pen)
{
    const double margin = pen.style() == Qt::NoPen ? 0 : pen.widthF() / 2;
    const QRectF edges = shape.normalized().adjusted(-margin, -margin, margin, margin);
    return {QPointF(std::floor(edges.left()), std::floor(edges.top())),
            QPointF(std::ceil(edges.right()), std::ceil(edges.bottom()))};
}

// Beyond the widget Qt cuts pixels off as it does shapes, but not while the painter that a widget
// is rendered into has a clip.
bool staysInside(const QPainter &painter, const QRectF &bounds)
{
    return !painter.hasClipping() || QRectF(painter.window()).contains(bounds);
}

bool isKeepable(const QPainter &painter, const QRectF &bounds)
{
    const double ratio = pixelRatio(painter);
    const double pixels = ratio * bounds.width() * ratio * bounds.height();
    return addsExactPixels(painter) && isPlain(painter.pen(), ratio)
        && painter.compositionMode() == QPainter::CompositionMode_SourceOver
        && staysInside(painter, bounds) && painter.brush().style() <= Qt::SolidPattern
        && pixels >= 1 && pixels <= MostPixels && qAbs(bounds.x()) <= Farthest
        && qAbs(bounds.y()) <= Farthest && takesWholePixels(painter, bounds);
}

// Corners of other radii may reach out of the rectangle.
bool isWithin(const QRectF &rect, double radius)
{
    return radius >= 0 && radius <= qMin(rect.width(), rect.height());
}

// Whose painter is like the other.
template <typename Draw>
QPixmap drawn(const QRectF &bounds, const QPainter &like, Draw draw)
{
    const double ratio = pixelRatio(like);
    QPixmap pixels((bounds.size() * ratio).toSize());
    pixels.setDevicePixelRatio(ratio);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    painter.translate(-bounds.topLeft());
    painter.setPen(like.pen());
    painter.setBrush(like.brush());
    painter.setRenderHints(like.renderHints());
    painter.setOpacity(like.opacity());
    draw(painter);
    painter.end();
    return pixels;
}

void ellipse(QPainter &painter, const QRectF &rect, double)
{
    painter.drawEllipse(rect);
}

void roundedRect(QPainter &painter, const QRectF &rect, double radius)
{
    painter.drawRoundedRect(rect, radius, radius);
}

} // namespace

void KeptShape::draw(QPainter &painter, Shape shape, const QRectF &rect, double radius)
{
    const QPen pen = painter.pen();
    const QBrush brush = painter.brush();
    if (isVisible(brush)) {
        painter.setPen(Qt::NoPen);
        m_fill.draw(painter, shape, rect, radius);
    }
    if (isVisible(pen)) {
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        m_stroke.draw(painter, shape, rect, radius);
    }
    painter.setPen(pen);
    painter.setBrush(brush);
}

void KeptShape::drawEllipse(QPainter &painter, const QRectF &rect)
{
    draw(painter, ellipse, rect, 0);
}

void KeptShape::drawRoundedRect(QPainter &painter, const QRectF &rect, double radius)
{
    draw(painter, roundedRect, rect, radius);
}

void KeptShape::Layer::draw(QPainter &painter, Shape shape, const QRectF &rect, double radius)
{
    const double opacity = painter.opacity();
    const QRectF bounds = boundsOf(rect, painter.pen());
    // What begins between pixels, and a stroke, Qt rounds differently at other places.
    const bool isMovable = painter.pen().style() == Qt::NoPen && rect == bounds;
    const QRectF place = isMovable ? QRectF(QPointF(), rect.size()) : rect;
    const decltype(m_inputs) inputs(shape, place, radius, painter.pen(), painter.brush(),
                                    painter.renderHints(), opacity, pixelRatio(painter));

    if (inputs != m_inputs || !isKeepable(painter, bounds) || !isWithin(rect, radius)) {
        m_inputs = inputs;
        m_pixels = {};
        shape(painter, rect, radius);
        return;
    }
    if (m_pixels.isNull())
        m_pixels = drawn(bounds, painter, [&](QPainter &other) { shape(other, rect, radius); });
    painter.setOpacity(1);
    painter.drawPixmap(bounds.topLeft(), m_pixels);
    painter.setOpacity(opacity);
}

} // namespace ZIRVOUI
