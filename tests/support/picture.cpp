#include "picture.h"

#include <QWidget>

namespace {

constexpr int Rounding = 1; // levels of 255

int distance(QRgb a, QRgb b)
{
    const int channels[]
        = {qAlpha(a) - qAlpha(b), qRed(a) - qRed(b), qGreen(a) - qGreen(b), qBlue(a) - qBlue(b)};
    int largest = 0;
    for (int channel : channels)
        largest = qMax(largest, qAbs(channel));
    return largest;
}

} // namespace

QImage blankPicture(const QSize &size, double ratio)
{
    QImage picture(size * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    // Text of a point size is to be as large as in widgets.
    const int dotsPerMeter = qRound(QWidget().logicalDpiX() / 0.0254);
    picture.setDotsPerMeterX(dotsPerMeter);
    picture.setDotsPerMeterY(dotsPerMeter);
    picture.fill(Qt::transparent);
    return picture;
}

QImage snapshot(QWidget &widget, double ratio)
{
    return reference(
        widget.size(),
        [&](QPainter &painter) { widget.render(&painter, {}, {}, QWidget::DrawChildren); }, ratio);
}

QImage snapshot(QWidget &widget, const QSize &size)
{
    widget.setFixedSize(size);
    return snapshot(widget);
}

QString difference(const QImage &actual, const QImage &expected)
{
    if (actual.size() != expected.size())
        return QStringLiteral("the sizes differ");

    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            // The stored values: what is hidden by alpha must not differ either way.
            const auto a = reinterpret_cast<const QRgb *>(actual.constScanLine(y))[x];
            const auto b = reinterpret_cast<const QRgb *>(expected.constScanLine(y))[x];
            if (distance(a, b) > Rounding)
                return QStringLiteral("pixel (%1, %2) is %3, not %4")
                    .arg(x)
                    .arg(y)
                    .arg(a, 8, 16, QLatin1Char('0'))
                    .arg(b, 8, 16, QLatin1Char('0'));
        }
    }
    return {};
}
