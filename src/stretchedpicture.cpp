#include "affordable_p.h"
#include "devicepixels_p.h"
#include "stretchedpicture_p.h"

namespace ZIRVOUI {

namespace {

// Opaque if the picture is. The clip is seen from the target's corner.
QPixmap scaled(const QPixmap &picture, const QSizeF &size, double ratio,
               QPainter::RenderHints hints, const QPainterPath &clip)
{
    const QRectF target(QPointF(), size);
    QPixmap result((size * ratio).toSize());
    result.setDevicePixelRatio(ratio);
    if (picture.hasAlphaChannel())
        result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHints(hints);
    painter.drawPixmap(target, picture, QRectF());
    if (clip.isEmpty())
        return result;

    // How Qt rounds depends on where a line of pixels begins, at the clip. The first pass mends
    // what is wholly within the clip, the second what only shines through at its edge.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setClipPath(clip);
    for (int pass = 0; pass < 2; ++pass)
        painter.drawPixmap(target, picture, QRectF());
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
        || !takesWholePixels(painter, target) || !addsExactPixels(painter)
        || !isAffordable(target.width() * ratio, target.height() * ratio)) {
        painter.drawPixmap(target, picture, QRectF());
        return;
    }
    const QPainter::RenderHints hints = painter.renderHints();
    QPainterPath clip;
    if (painter.hasClipping())
        clip = painter.clipPath().translated(-target.topLeft());
    const auto &kept = m_scaled.of({picture.cacheKey(), target.size(), ratio, hints, clip}, [&] {
        return scaled(picture, target.size(), ratio, hints, clip);
    });
    painter.drawPixmap(target.topLeft(), kept);
}

} // namespace ZIRVOUI
