#include "picture.h"

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

QPixmap spottedPixmap(const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::darkCyan);
    QPainter(&pixmap).fillRect(1, 1, 4, 2, Qt::yellow);
    return pixmap;
}

QPainterPath roundedOutline(const QRectF &rect, double radius, const char *corners)
{
    const QPolygonF points(rect);
    const QPointF onwards[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    QPainterPath path;
    for (int i = 0; i < 4; ++i) {
        const double reach = corners[i] == 'r' ? radius : 0.0;
        const QPointF start = points[i] - reach * onwards[(i + 3) % 4];
        i > 0 ? path.lineTo(start) : path.moveTo(start);
        path.quadTo(points[i], points[i] + reach * onwards[i]);
    }
    path.lineTo(path.elementAt(0));
    return path;
}

QString difference(const QImage &actual, const QImage &expected)
{
    constexpr int Rounding = 1; // level of 255
    if (actual.size() != expected.size())
        return QStringLiteral("the sizes differ");

    for (int y = 0; y < actual.height(); ++y) {
        // The stored values: what is hidden by alpha must not differ either way.
        const uchar *a = actual.constScanLine(y), *b = expected.constScanLine(y);
        for (int x = 0; x < 4 * actual.width(); ++x) {
            if (qAbs(a[x] - b[x]) > Rounding)
                return QString::asprintf("byte %d of pixel (%d, %d) is %d, not %d", x % 4, x / 4, y,
                                         a[x], b[x]);
        }
    }
    return {};
}
