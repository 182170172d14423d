#include "stretchedpicture_p.h"

#include <QPaintEngine>
#include <QPainter>

namespace ZIRVOUI {

namespace {

// Opaque if the picture is.
QPixmap scaled(const QPixmap &picture, const QSize &size, double ratio)
{
    QPixmap result(size * ratio);
    result.setDevicePixelRatio(ratio);
    if (picture.hasAlphaChannel())
        result.fill(Qt::transparent);
    QPainter(&result).drawPixmap(QRectF(QPointF(), size), picture, QRectF());
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
    if (!target.isValid() || !bounds.contains(target)) {
        painter.drawPixmap(target, picture, QRectF());
        return;
    }
    const QSize size = target.size().toSize();
    const double ratio = pixelRatio(painter);
    painter.drawPixmap(target.topLeft(), m_scaled.of({picture.cacheKey(), size, ratio}, [&] {
        return scaled(picture, size, ratio);
    }));
}

} // namespace ZIRVOUI
