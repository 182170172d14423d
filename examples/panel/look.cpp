#include "look.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>
#include <QVector>
#include <algorithm>

namespace {

const char ThemeKey[] = "display/theme";

QPalette paletteOf(const Theme &theme)
{
    QPalette palette{QColor(theme.field), QColor(theme.ground)};
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, theme.ink);
    palette.setColor(QPalette::Base, theme.field);
    palette.setColor(QPalette::Highlight, theme.accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

Look::Look(QObject *parent)
    : QObject(parent)
{
    setTheme(QSettings().value(ThemeKey).toString());
}

const QVector<Theme> &Look::themes()
{
    static const QVector<Theme> themes{
        {"Dark", 0xff14171c, 0xff20252d, 0xff2f3640, 0xff9ba6b4, 0xfff2f4f7, 0xff3b82f6},
        {"Light", 0xffe9edf2, 0xffffffff, 0xffe6eaf0, 0xff5f6b7a, 0xff1a1f27, 0xff2563eb},
        {"Dusk", 0xff1c1524, 0xff2a2035, 0xff3d3049, 0xffb8a6c6, 0xfff8f1fb, 0xffd9578f},
    };
    return themes;
}

void Look::setTheme(const QString &name)
{
    const auto named = [&](const Theme &theme) { return theme.name == name; };
    const auto found = std::find_if(themes().begin(), themes().end(), named);
    m_theme = found != themes().end() ? &*found : &themes().first();

    QSettings().setValue(ThemeKey, m_theme->name);
    QApplication::setPalette(paletteOf(*m_theme));
    Q_EMIT changed(*m_theme);
}
