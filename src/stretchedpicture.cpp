#include "affordable_p.h"
#include "devicepixels_p.h"
#include "stretchedpicture_p.h"

#include <QPainter>

namespace ZIRVOUI {

namespace {

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

void StretchedPicture::draw(QPainter &painter, const QRectF &target, const QPixmap &picture,
                            const QRectF &bounds)
{
    if (picture.isNull())
        return;
    const double ratio = pixelRatio(painter);
    // What a bitmap shows depends on the pen, and what is under its clear bits.
    if (picture.isQBitmap() || !target.isValid() || !bounds.contains(target)
        || !takesWholePixels(painter, target)
        || !isAffordable(target.width() * ratio, target.height() * ratio)) {
        painter.drawPixmap(target, picture, QRectF());
        return;
    }
    const bool smoothly = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    const auto &kept = m_scaled.of({picture.cacheKey(), target.size(), ratio, smoothly},
                                   [&] { return scaled(picture, target.size(), ratio, smoothly); });
    painter.drawPixmap(target.topLeft(), kept);
}

} // namespace ZIRVOUI
