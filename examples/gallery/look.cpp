#include "look.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPalette>

namespace {

constexpr int FontSize = 18; // px

QPalette darkPalette()
{
    QPalette palette{QColor(Look::Field), QColor(Look::Ground)};
    palette.setColor(QPalette::WindowText, Look::Ink);
    palette.setColor(QPalette::Text, Look::Ink);
    palette.setColor(QPalette::ButtonText, Look::Ink);
    palette.setColor(QPalette::Base, Look::Field);
    palette.setColor(QPalette::Highlight, Look::Accent);
    palette.setColor(QPalette::HighlightedText, Look::Ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, Look::QuietInk);
    return palette;
}

} // namespace

void applyLook(QApplication &app)
{
    QApplication::setStyle("Fusion");
    QApplication::setPalette(darkPalette());

    QFont font = QApplication::font();
    font.setPixelSize(FontSize);
    app.setFont(font);
}

void dressControls(QWidget *panel, const QString &objectName)
{
    // The name first: a sheet that is set is matched at once.
    panel->setObjectName(objectName);
    QFile sheet(":/gallery/gallery.qss");
    if (sheet.open(QIODevice::ReadOnly))
        panel->setStyleSheet(QString::fromUtf8(sheet.readAll()));
}

QStringList fillColors()
{
    return {"#3f4650", "#1f5fae", "#7a2f3a", "#2c6e49"};
}

QStringList lineColors()
{
    return {"white", "#ebc232", "#4da3ff", "#5fd38d"};
}

QLabel *newText(const QString &text, int pixelSize, QRgb color)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    label->setFont(font);

    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    return label;
}
