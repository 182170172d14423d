#include "row.h"

#include <QIcon>
#include <QLabel>
#include <QPainterPath>
#include <QSvgRenderer>
#include <QTextOption>
#include <QVBoxLayout>
#include <commonlabelwidget.h>
#include <zadjustfontlabel.h>
#include <zclicklabel.h>

using ZIRVOUI::CommonLabelWidget;
using ZIRVOUI::ZAdjustFontLabel;
using ZIRVOUI::ZClickLabel;

namespace {

constexpr int Radius = 8;
constexpr QRgb Ground = 0xff25292f;
constexpr QRgb CornerColor = 0xffebc232;
constexpr QSize TileSize(120, 90);
constexpr int TileCornerLeg = 36;
constexpr int LeastSize = 8; // pixels of a fitted font
constexpr int LargestSize = 60;

const QString Sheet = QStringLiteral("background: #25292f; border-radius: 8px; color: white;");

ZClickLabel *newLabel(const QString &text)
{
    auto *label = new ZClickLabel(text);
    label->setBgColor(Ground);
    label->setRadius(Radius);
    return label;
}

void drawGround(QPainter &painter, const QSize &size)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Ground));
    painter.drawRoundedRect(wholeOf(size), Radius, Radius);
    painter.setPen(Qt::white);
}

void drawText(QPainter &painter, const QSize &size, const QString &text)
{
    painter.drawText(wholeOf(size), Qt::AlignLeft | Qt::AlignVCenter, text);
}

Row plainLabel()
{
    const QString text = QStringLiteral("Living room");
    return {QStringLiteral("ZClickLabel"),
            {200, 40},
            [=] { return newLabel(text); },
            [=](QPainter &painter, const QSize &size, int) {
                drawGround(painter, size);
                drawText(painter, size, text);
            },
            [=] { return new QLabel(text); },
            Sheet};
}

void drawCorner(QPainter &painter, const QSize &size)
{
    const double right = size.width();
    QPainterPath corner({right - TileCornerLeg, 0});
    corner.cubicTo({right - Radius, 0}, {right, 0}, {right, Radius});
    corner.lineTo(right, TileCornerLeg);
    corner.lineTo(right - TileCornerLeg, 0);
    painter.fillPath(corner, QColor(CornerColor));
}

Row tileLabel()
{
    const auto library = [] {
        ZClickLabel *label = newLabel(QStringLiteral("Alarm"));
        label->setBgPicturePath(samplePath("bell.svg"));
        label->setRightCornerLabels(true);
        return label;
    };
    const auto bare = [](QPainter &painter, const QSize &size, int) {
        drawGround(painter, size);
        QSvgRenderer(samplePath("bell.svg")).render(&painter, wholeOf(size));
        drawText(painter, size, QStringLiteral("Alarm"));
        drawCorner(painter, size);
    };
    const auto stock = [] {
        auto *label = new QLabel;
        label->setPixmap(QIcon(samplePath("bell.svg")).pixmap(TileSize));
        return label;
    };
    Row row{QStringLiteral("ZClickLabel, SVG and corner"), TileSize, library, bare, stock, Sheet};
    row.hasSvg = true;
    return row;
}

Row pictureLabel()
{
    const QPixmap picture(samplePath("hills.png"));
    const auto library = [=] {
        ZClickLabel *label = newLabel(QStringLiteral("Hills"));
        label->setPicture(picture);
        return label;
    };
    const auto bare = [=](QPainter &painter, const QSize &size, int) {
        drawGround(painter, size);
        painter.drawPixmap(wholeOf(size), picture, QRectF());
        drawText(painter, size, QStringLiteral("Hills"));
    };
    const auto stock = [=] {
        auto *label = new QLabel;
        label->setPixmap(picture);
        label->setScaledContents(true);
        return label;
    };
    return {QStringLiteral("ZClickLabel, picture"), TileSize, library, bare, stock, Sheet};
}

CommonLabelWidget *newCommonLabel(const QPixmap &icon)
{
    auto *label = new CommonLabelWidget;
    label->setTitleText(QStringLiteral("Kitchen"));
    label->setIconSize(icon.size());
    label->setIcon(icon);
    label->setText(QStringLiteral("21.5 °C"));
    return label;
}

QWidget *newStockCommonLabel(const QPixmap &icon)
{
    auto *widget = new QWidget;
    auto *column = new QVBoxLayout(widget);
    auto *picture = new QLabel;
    picture->setPixmap(icon);
    column->addWidget(new QLabel(QStringLiteral("Kitchen")), 0, Qt::AlignHCenter);
    column->addWidget(picture, 0, Qt::AlignHCenter);
    column->addWidget(new QLabel(QStringLiteral("21.5 °C")), 0, Qt::AlignHCenter);
    return widget;
}

Row commonLabel()
{
    const QPixmap icon = QPixmap(samplePath("hills.png")).scaled(40, 40);
    const QScopedPointer<QWidget> sample(newCommonLabel(icon));
    const QVector<QRect> places = childPlaces(*sample, TileSize);
    const auto bare = [=](QPainter &painter, const QSize &, int) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.setPen(Qt::white);
        painter.drawText(places[0], Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Kitchen"));
        painter.drawPixmap(QRectF(places[1]), icon, QRectF());
        painter.drawText(places[2], Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("21.5 °C"));
    };
    return {QStringLiteral("CommonLabelWidget"),       TileSize,
            [=] { return newCommonLabel(icon); },      bare,
            [=] { return newStockCommonLabel(icon); }, QStringLiteral("QLabel { color: white; }")};
}

Row fittedLabel()
{
    const QString text = QStringLiteral("Fits its label");
    const auto library = [=] {
        auto *label = new ZAdjustFontLabel(text);
        label->setFontSizeRange(LeastSize, LargestSize);
        return label;
    };
    const auto bare = [=](QPainter &painter, const QSize &size, int) {
        QTextOption option(Qt::AlignCenter);
        option.setWrapMode(QTextOption::WrapAnywhere);
        QFont font = painter.font();
        for (int pixels = LargestSize; pixels >= LeastSize; --pixels) {
            font.setPixelSize(pixels);
            painter.setFont(font);
            if (wholeOf(size).contains(painter.boundingRect(wholeOf(size), text, option)))
                break;
        }
        painter.setPen(Qt::white);
        drawText(painter, size, text);
    };
    return {QStringLiteral("ZAdjustFontLabel"),
            {200, 40},
            library,
            bare,
            [=] { return new QLabel(text); },
            QStringLiteral("color: white; font-size: 28px;")};
}

} // namespace

Rows labelRows()
{
    return {plainLabel(), tileLabel(), pictureLabel(), commonLabel(), fittedLabel()};
}
