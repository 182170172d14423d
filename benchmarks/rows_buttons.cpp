#include "row.h"

#include <QPushButton>
#include <roundedbutton.h>
#include <zbutton.h>

using ZIRVOUI::ZButton;

namespace {

constexpr QSize ButtonSize(160, 56);
constexpr int ButtonRadius = 10;
constexpr QRgb ButtonColor = 0xff316aff;
constexpr int TextRaise = 16; // parts of the height
constexpr double DisabledOpacity = 0.3;
constexpr double DownOpacity = 0.6;
constexpr int RoundedRadius = 14;
constexpr int BorderWidth = 4;
constexpr QRgb BorderColor = 0xff4da3ff;
constexpr QRgb RoundedColor = 0xff1f5fae;

const QString Text = QStringLiteral("Apply");
const QString Sheet = QStringLiteral(
    "QPushButton { background: #316aff; color: white; border: none; border-radius: 10px; } "
    "QPushButton:disabled { background: #7d8dbb; } QPushButton:pressed { background: #5a86ff; }");
const QString BorderSheet = QStringLiteral("background: #1f5fae; color: white; "
                                           "border: 4px solid #4da3ff; border-radius: 14px;");

void drawButtonText(QPainter &painter, const QSize &size, const QString &text)
{
    painter.setPen(Qt::white);
    painter.drawText(QRect(QPoint(), size).adjusted(0, -(size.height() / TextRaise), 0, 0),
                     Qt::AlignCenter, text);
}

template <typename Button>
Button *newInState(bool isEnabled, bool isDown)
{
    auto *button = new Button(Text);
    button->setEnabled(isEnabled);
    button->setDown(isDown);
    return button;
}

Row buttonInState(const QString &name, double opacity, bool isEnabled, bool isDown)
{
    const auto bare = [=](QPainter &painter, const QSize &size, int) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(opacity);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(ButtonColor));
        painter.drawRoundedRect(wholeOf(size), ButtonRadius, ButtonRadius);
        drawButtonText(painter, size, Text);
    };
    return {name,
            ButtonSize,
            [=] { return newInState<ZButton>(isEnabled, isDown); },
            bare,
            [=] { return newInState<QPushButton>(isEnabled, isDown); },
            Sheet};
}

Row buttonWithIcon()
{
    const QIcon icon(samplePath("gear.svg"));
    const auto library = [=] {
        auto *button = new ZButton;
        button->setIcon(icon);
        return button;
    };
    const auto bare = [=](QPainter &painter, const QSize &size, int) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawPixmap(wholeOf(size), icon.pixmap(size * pixelRatio(painter)), QRectF());
        drawButtonText(painter, size, QString());
    };
    const auto stock = [=] {
        auto *button = new QPushButton;
        button->setIcon(icon);
        button->setIconSize({56, 56});
        return button;
    };
    Row row{QStringLiteral("ZButton, icon"), {64, 64}, library, bare, stock, Sheet};
    row.hasSvg = true;
    return row;
}

void drawRoundedText(QPainter &painter, const QSize &size)
{
    painter.setPen(Qt::white);
    painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, Text);
}

Row roundedButton()
{
    const auto library = [] {
        auto *button = new RoundedButton;
        button->setText(Text);
        button->setRadius(RoundedRadius);
        button->setBackgroundColor(QColor(RoundedColor));
        button->setBorderWidth(BorderWidth);
        button->setBorderColor(BorderColor);
        return button;
    };
    const auto bare = [](QPainter &painter, const QSize &size, int) {
        constexpr double Inset = BorderWidth / 2;
        const QRectF line = wholeOf(size).adjusted(Inset, Inset, -Inset, -Inset);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.setClipPath(outlineOf(wholeOf(size), RoundedRadius));
        painter.fillPath(outlineOf(wholeOf(size), RoundedRadius), QColor(RoundedColor));
        painter.setClipping(false);
        painter.strokePath(outlineOf(line, RoundedRadius),
                           {QColor(BorderColor), double(BorderWidth), Qt::SolidLine, Qt::SquareCap,
                            Qt::BevelJoin});
        painter.setClipping(true);
        drawRoundedText(painter, size);
    };
    return {QStringLiteral("RoundedButton"),      ButtonSize, library, bare,
            [] { return new QPushButton(Text); }, BorderSheet};
}

Row roundedButtonWithImage()
{
    const QPixmap picture(samplePath("hills.png"));
    const auto library = [=] {
        auto *button = new RoundedButton;
        button->setText(Text);
        button->setRadius(RoundedRadius);
        button->setBackgroundImage(picture);
        return button;
    };
    const auto bare = [=](QPainter &painter, const QSize &size, int) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.setClipPath(outlineOf(wholeOf(size), RoundedRadius));
        painter.drawPixmap(wholeOf(size), picture, QRectF());
        drawRoundedText(painter, size);
    };
    return {QStringLiteral("RoundedButton, image"),
            ButtonSize,
            library,
            bare,
            [] { return new QPushButton(Text); },
            QStringLiteral("border-image: url(:/gallery/hills.png); color: white;")};
}

} // namespace

Rows buttonRows()
{
    return {buttonInState(QStringLiteral("ZButton"), 1, true, false),
            buttonInState(QStringLiteral("ZButton, disabled"), DisabledOpacity, false, false),
            buttonInState(QStringLiteral("ZButton, down"), DownOpacity, true, true),
            buttonWithIcon(),
            roundedButton(),
            roundedButtonWithImage()};
}
