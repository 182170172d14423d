#include "stretchedpicture_p.h"

#include <QPaintEngine>
#include <QPainter>

namespace ZIRVOUI {

namespace {

// Whether rect takes whole pixels of the device, which is no larger or turned otherwise.
bool takesWholePixels(const QPainter &painter, const QRectF &rect)
{
    const QTransform toDevice = painter.deviceTransform();
    const double ratio = pixelRatio(painter);
    const QRectF onDevice = toDevice.mapRect(rect);
    return toDevice.type() <= QTransform::TxScale && toDevice.m11() == ratio
        && toDevice.m22() == ratio && onDevice == onDevice.toRect();
}

// Opaque if the picture is.
QPixmap scaled(const QPixmap &picture, const QSizeF &size, double ratio, bool smoothly)
{
    QPixmap result((size * ratio).toSize());
    result.setDevicePixelRatio(ratio);
    if (picture.hasAlphaChannel())
        result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, smoothly);
    painter.drawPixmap(QRectF(QPointF(), size), picture, QRectF());
    painter.end();
    return result;
}

} // namespace

double pixelRatio(const QPainter &painter)
{
    return painter.paintEngine()->paintDevice()->devicePixelRatioF();
}

void StretchedPicture::draw(QPainter &painter, const QRectF &target, const QPixmap &picture,
                            const QRectF &bounds)
{
    if (picture.isNull())
        return;
    if (!target.isValid() || !bounds.contains(target) || !takesWholePixels(painter, target)) {
        painter.drawPixmap(target, picture, QRectF());
        return;
    }
    const double ratio = pixelRatio(painter);
    const bool smoothly = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    const auto &kept = m_scaled.of({picture.cacheKey(), target.size(), ratio, smoothly},
                                   [&] { return scaled(picture, target.size(), ratio, smoothly); });
    painter.drawPixmap(target.topLeft(), kept);
}

} // namespace ZIRVOUI
