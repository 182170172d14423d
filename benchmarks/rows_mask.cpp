#include "row.h"

#include <QGraphicsBlurEffect>
#include <QLabel>
#include <maskwidget.h>

using ZIRVOUI::MaskWidget;

// Exported by Qt Widgets, but in no header of its own.
Q_WIDGETS_EXPORT void qt_blurImage(QPainter *painter, QImage &image, qreal radius, bool quality,
                                   bool alphaOnly, int transposed = 0);

namespace {

constexpr QSize MaskSize(400, 300);
constexpr QRgb FrameColor = 0xff2f2f2f;
constexpr double FadedOpacity = 0.6;

QImage blurred(const QPixmap &picture, int distance, double radius)
{
    const QSize size = picture.size() + 2 * QSize(distance, distance);
    QImage framed(size, QImage::Format_ARGB32_Premultiplied);
    framed.fill(FrameColor);
    QPainter framing(&framed);
    framing.setCompositionMode(QPainter::CompositionMode_Source);
    framing.drawPixmap(distance, distance, picture);
    framing.end();

    QImage result(size, QImage::Format_ARGB32_Premultiplied);
    result.fill(0);
    QPainter painter(&result);
    qt_blurImage(&painter, framed, radius, true, false);
    painter.end();
    return result.copy({QPoint(distance, distance), picture.size()});
}

QImage blurredByDefault(const QPixmap &picture)
{
    MaskWidget defaults;
    return blurred(picture, defaults.distance(), defaults.blurRadius());
}

QLabel *newBackdrop(const QPixmap &picture)
{
    auto *label = new QLabel;
    label->setPixmap(picture);
    label->setScaledContents(true);
    return label;
}

// The blur is part of setting the picture, not of the paint.
Row mask(const QString &name, double opacity)
{
    const QPixmap picture(samplePath("hills.png"));
    const QPixmap backdrop = QPixmap::fromImage(blurredByDefault(picture));
    const auto library = [=] {
        auto *widget = new MaskWidget;
        widget->setOpacity(opacity);
        widget->setPixmap(picture);
        return widget;
    };
    const auto bare = [=](QPainter &painter, const QSize &size, int) {
        painter.setOpacity(opacity);
        painter.drawPixmap(wholeOf(size), backdrop, QRectF());
    };
    return {name,
            MaskSize,
            library,
            bare,
            [=] { return newBackdrop(backdrop); },
            QStringLiteral("background: #2f2f2f;")};
}

Row maskOfNewPicture()
{
    const QPixmap hills(samplePath("hills.png"));
    const QPixmap pictures[] = {hills, hills.transformed(QTransform().scale(-1, 1))};
    Row row = mask(QStringLiteral("MaskWidget, new picture"), MaskWidget().opacity());
    const double opacity = MaskWidget().opacity();
    row.bare = [=](QPainter &painter, const QSize &size, int frame) {
        painter.setOpacity(opacity);
        painter.drawImage(wholeOf(size), blurredByDefault(pictures[frame % 2]));
    };
    row.advance = [=](QWidget &widget, int frame) {
        static_cast<MaskWidget &>(widget).setPixmap(pictures[frame % 2]);
    };
    row.stock = [=] {
        QLabel *label = newBackdrop(hills);
        auto *effect = new QGraphicsBlurEffect(label);
        effect->setBlurRadius(MaskWidget().blurRadius());
        label->setGraphicsEffect(effect);
        return label;
    };
    row.advanceStock = [=](QWidget &widget, int frame) {
        static_cast<QLabel &>(widget).setPixmap(pictures[frame % 2]);
    };
    row.isAdvanceMeasured = true;
    return row;
}

} // namespace

Rows maskRows()
{
    return {mask(QStringLiteral("MaskWidget"), 1),
            mask(QStringLiteral("MaskWidget, faded"), FadedOpacity), maskOfNewPicture()};
}
