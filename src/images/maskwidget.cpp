#include "maskwidget.h"

#include "affordable_p.h"

#include <QPainter>
#include <cmath>

// Exported by Qt Widgets, but in no header of its own.
Q_WIDGETS_EXPORT void qt_blurImage(QPainter *painter, QImage &image, qreal radius, bool quality,
                                   bool alphaOnly, int transposed = 0);

namespace ZIRVOUI {

namespace {

constexpr QRgb FrameColor = 0xff2f2f2f;

QImage framed(const QPixmap &picture, int distance)
{
    QImage image(picture.size() + 2 * QSize(distance, distance),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(FrameColor);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawPixmap(distance, distance, picture);
    return image;
}

QImage blurred(QImage image, double radius)
{
    QImage result(image.size(), image.format());
    result.fill(0);
    QPainter painter(&result);
    qt_blurImage(&painter, image, radius, true, false);
    return result;
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
{
}

MaskWidget::~MaskWidget() = default;

void MaskWidget::setDistance(int distance)
{
    m_distance = distance;
}

int MaskWidget::distance()
{
    return m_distance;
}

void MaskWidget::setOpacity(double opacity)
{
    m_opacity = opacity;
}

double MaskWidget::opacity()
{
    return m_opacity;
}

void MaskWidget::setBlurRadius(double radius)
{
    m_blurRadius = radius;
}

double MaskWidget::blurRadius()
{
    return m_blurRadius;
}

void MaskWidget::setPixmap(const QPixmap &picture)
{
    m_picture = picture;
    if (!std::isfinite(m_blurRadius) || m_distance + m_blurRadius <= 0) {
        m_blurredPicture = picture;
        return;
    }
    m_blurredPicture = {};
    if (picture.isNull())
        return;
    if (canBeFramed(picture.size(), m_distance)) {
        const QImage image = blurred(framed(picture, m_distance), m_blurRadius);
        m_blurredPicture
            = QPixmap::fromImage(image).copy({QPoint(m_distance, m_distance), picture.size()});
    }
    update();
}

QPixmap MaskWidget::pixmap() const
{
    return m_picture;
}

QSize MaskWidget::sizeHint() const
{
    return m_picture.isNull() ? QWidget::sizeHint() : m_picture.size();
}

void MaskWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(m_opacity);
    painter.drawPixmap(QRectF(rect()), m_blurredPicture, QRectF());
}

} // namespace ZIRVOUI
