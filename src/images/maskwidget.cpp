#include "maskwidget.h"

#include "affordable_p.h"
#include "kept_p.h"
#include "stretchedpicture_p.h"

#include <QPainter>
#include <cmath>

// Exported by Qt Widgets, but in no header of its own.
Q_WIDGETS_EXPORT void qt_blurImage(QPainter *painter, QImage &image, qreal radius, bool quality,
                                   bool alphaOnly, int transposed = 0);

namespace ZIRVOUI {

struct MaskWidgetPrivate
{
    int distance = 100; // pixels
    double opacity = 1;
    double blurRadius = 60; // pixels
    QPixmap picture;
    QPixmap blurredPicture;

    Kept<QPixmap, qint64, int, double> blurred;
    StretchedPicture stretchedPicture;
};

namespace {

constexpr QRgb FrameColor = 0xff2f2f2f;

QImage framed(const QPixmap &picture, int distance)
{
    QImage image(picture.size() + 2 * QSize(distance, distance),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(FrameColor);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawPixmap(QRect({distance, distance}, picture.size()), picture); // of any ratio
    return image;
}

QPixmap blurred(const QPixmap &picture, int distance, double radius)
{
    QImage image = framed(picture, distance);
    QImage result(image.size(), image.format());
    result.fill(0);
    QPainter painter(&result);
    qt_blurImage(&painter, image, radius, true, false);
    painter.end();
    return QPixmap::fromImage(result).copy({QPoint(distance, distance), picture.size()});
}

bool canBeFramed(const QSize &size, int distance)
{
    const double width = size.width() + 2.0 * distance;
    const double height = size.height() + 2.0 * distance;
    return width > 0 && height > 0 && isAffordable(width, height);
}

} // namespace

MaskWidget::MaskWidget(QWidget *parent)
    : QWidget(parent)
    , d(new MaskWidgetPrivate)
{
}

MaskWidget::~MaskWidget() = default;

void MaskWidget::setDistance(int distance)
{
    d->distance = distance;
}

int MaskWidget::distance()
{
    return d->distance;
}

void MaskWidget::setOpacity(double opacity)
{
    d->opacity = opacity;
}

double MaskWidget::opacity()
{
    return d->opacity;
}

void MaskWidget::setBlurRadius(double radius)
{
    d->blurRadius = radius;
}

double MaskWidget::blurRadius()
{
    return d->blurRadius;
}

void MaskWidget::setPixmap(const QPixmap &picture)
{
    d->picture = picture;
    if (!std::isfinite(d->blurRadius) || d->distance + d->blurRadius <= 0) {
        d->blurredPicture = picture;
        return;
    }
    d->blurredPicture = {};
    if (picture.isNull())
        return;
    if (canBeFramed(picture.size(), d->distance)) {
        d->blurredPicture = d->blurred.of({picture.cacheKey(), d->distance, d->blurRadius}, [&] {
            return blurred(picture, d->distance, d->blurRadius);
        });
    }
    update();
}

QPixmap MaskWidget::pixmap() const
{
    return d->picture;
}

QSize MaskWidget::sizeHint() const
{
    return d->picture.isNull() ? QWidget::sizeHint() : d->picture.size();
}

void MaskWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(d->opacity);
    d->stretchedPicture.draw(painter, rect(), d->blurredPicture, rect());
}

} // namespace ZIRVOUI
