#include "devicepixels_p.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>

namespace ZIRVOUI {

double pixelRatio(const QPainter &painter)
{
    // Not the painter's device, which stays the widget when that is rendered elsewhere.
    // A window for whose pixels there is no memory is painted without an engine.
    const QPaintEngine *engine = painter.paintEngine();
    return engine ? engine->paintDevice()->devicePixelRatioF() : 1.0;
}

bool takesWholePixels(const QPainter &painter, const QRectF &rect)
{
    const QTransform toDevice = painter.deviceTransform();
    const double ratio = pixelRatio(painter);
    const QRectF onDevice = toDevice.mapRect(rect);
    return toDevice.type() <= QTransform::TxScale && toDevice.m11() == ratio
        && toDevice.m22() == ratio && onDevice == onDevice.toRect();
}

bool addsExactPixels(const QPainter &painter)
{
    const QPaintEngine *engine = painter.paintEngine();
    const auto *image = engine ? dynamic_cast<const QImage *>(engine->paintDevice()) : nullptr;
    return image
        && (image->format() == QImage::Format_RGB32
            || image->format() == QImage::Format_ARGB32_Premultiplied);
}

} // namespace ZIRVOUI
