#include "row.h"

#include <QPushButton>
#include <QSvgRenderer>
#include <imageswitchbutton.h>
#include <zimagebutton.h>

using ZIRVOUI::CircleButton;
using ZIRVOUI::ImageSwitchButton;
using ZIRVOUI::ZImageButton;

namespace {

constexpr QSize CircleSize(96, 96);
constexpr QSize IconSize(64, 64);
constexpr QRgb CircleColor = 0xff1f5fae;
constexpr QRgb BorderColor = 0xff4da3ff;
constexpr int BorderWidth = 3;
constexpr double DisabledOpacity = 0.3;
constexpr QSize TileSize(160, 140);
constexpr QRect TileIcon(40, 20, 80, 80);
constexpr QRect TileText(0, 104, 160, 30);
constexpr int TileRadius = 12;
constexpr int SignSide = 24;
constexpr QRgb TileColor = 0xff25292f;

const QString CircleSheet = QStringLiteral("QPushButton { background: #1f5fae; "
                                           "border: 3px solid #4da3ff; border-radius: 48px; } "
                                           "QPushButton:disabled { background: #575757; }");
const QString TileSheet
    = QStringLiteral("background: #25292f; color: white; border: none; border-radius: 12px;");
const QString PictureSheet
    = QStringLiteral("border-image: url(:/gallery/hills.png); color: white;");

void drawCircle(QPainter &painter, const QSize &size, const QColor &color)
{
    constexpr double Half = BorderWidth / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        {QColor(BorderColor), double(BorderWidth), Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin});
    painter.setBrush(color);
    painter.drawEllipse(wholeOf(size).adjusted(Half, Half, -Half, -Half));
}

// The icon is in the middle, at its natural size.
void drawIcon(QPainter &painter, const QSize &size, const QString &path, double opacity)
{
    QSvgRenderer icon(path);
    QRect place(QPoint(), icon.defaultSize());
    place.moveTo((size.width() - place.width()) / 2, (size.height() - place.height()) / 2);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setOpacity(opacity);
    icon.render(&painter, QRectF(place));
}

void dress(CircleButton &button)
{
    button.setBackgroundColor(QColor(CircleColor));
    button.setBorderColor(QColor(BorderColor));
    button.setBorderWidth(BorderWidth);
}

QPushButton *newIconButton(const char *icon, const QString &text = QString())
{
    auto *button = new QPushButton(text);
    button->setIcon(QIcon(samplePath(icon)));
    button->setIconSize(IconSize);
    return button;
}

Row circleButton(const QString &name, bool isEnabled)
{
    const auto library = [=] {
        auto *button = new CircleButton(samplePath("bell.svg"));
        dress(*button);
        button->setEnabled(isEnabled);
        return button;
    };
    const auto bare = [=](QPainter &painter, const QSize &size, int) {
        const int gray = qGray(CircleColor);
        drawCircle(painter, size, isEnabled ? QColor(CircleColor) : QColor(gray, gray, gray));
        drawIcon(painter, size, samplePath("bell.svg"), isEnabled ? 1 : DisabledOpacity);
    };
    const auto stock = [=] {
        QPushButton *button = newIconButton("bell.svg");
        button->setEnabled(isEnabled);
        return button;
    };
    Row row{name, CircleSize, library, bare, stock, CircleSheet};
    row.hasSvg = true;
    return row;
}

Row imageSwitch()
{
    const auto library = [] {
        auto *button
            = new ImageSwitchButton(samplePath("speaker_on.svg"), samplePath("speaker_off.svg"));
        dress(*button);
        button->setOpenState(true);
        return button;
    };
    const auto bare = [](QPainter &painter, const QSize &size, int) {
        drawCircle(painter, size, QColor(CircleColor));
        drawIcon(painter, size, samplePath("speaker_on.svg"), 1);
    };
    Row row{QStringLiteral("ImageSwitchButton, open"),      CircleSize, library, bare,
            [] { return newIconButton("speaker_on.svg"); }, CircleSheet};
    row.hasSvg = true;
    return row;
}

ZImageButton *newTile()
{
    auto *button = new ZImageButton(QStringLiteral("Alarm"), samplePath("bell.svg"),
                                    samplePath("check.svg"));
    button->setIcoRect(TileIcon);
    button->setTextRect(TileText);
    button->setSingSize(SignSide, SignSide);
    button->setBgColor(QColor(TileColor));
    button->setRadius(TileRadius);
    return button;
}

// The icon is drawn at the button's size first, and that picture into its place.
void drawTile(QPainter &painter, const QSize &size, const QString &background)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(TileColor));
    painter.drawRoundedRect(wholeOf(size), TileRadius, TileRadius);
    if (!background.isEmpty())
        painter.drawPixmap(wholeOf(size), QPixmap(background), QRectF());
    painter.setRenderHint(QPainter::Antialiasing, false);

    QPixmap icon(size);
    icon.fill(Qt::transparent);
    QPainter iconPainter(&icon);
    QSvgRenderer(samplePath("bell.svg")).render(&iconPainter, wholeOf(size));
    iconPainter.end();
    painter.drawPixmap(TileIcon, icon);

    painter.setPen(Qt::white);
    painter.drawText(TileText, Qt::AlignCenter, QStringLiteral("Alarm"));
    QSvgRenderer(samplePath("check.svg"))
        .render(&painter, QRectF(size.width() - SignSide, 0, SignSide, SignSide));
}

Row tile(const QString &name, const QString &background, const QString &sheet)
{
    const auto library = [=] {
        ZImageButton *button = newTile();
        button->setBgPicture(background);
        return button;
    };
    const auto bare
        = [=](QPainter &painter, const QSize &size, int) { drawTile(painter, size, background); };
    Row row{name,
            TileSize,
            library,
            bare,
            [] { return newIconButton("bell.svg", QStringLiteral("Alarm")); },
            sheet};
    row.hasSvg = true;
    return row;
}

} // namespace

Rows picturedButtonRows()
{
    return {
        circleButton(QStringLiteral("CircleButton"), true),
        circleButton(QStringLiteral("CircleButton, disabled"), false), imageSwitch(),
        tile(QStringLiteral("ZImageButton"), QString(), TileSheet),
        tile(QStringLiteral("ZImageButton, background"), samplePath("hills.png"), PictureSheet)};
}
