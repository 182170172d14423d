#include "keypad.h"

#include <CircleButton>
#include <QGridLayout>

using ZIRVOUI::CircleButton;

namespace {

constexpr int Columns = 3;
constexpr int Digits = 9; // without the zero
constexpr int KeySize = 96;
constexpr int Spacing = 20;
constexpr int FontSize = 34; // px
constexpr int RepeatDelay = 400; // ms
constexpr int RepeatInterval = 120; // ms

} // namespace

Keypad::Keypad(const QString &extra, QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(Spacing);
    for (int i = 0; i < Digits; ++i)
        addCharacter(QString::number(i + 1), i / Columns, i % Columns);
    const int lastRow = Digits / Columns;
    if (!extra.isEmpty())
        addCharacter(extra, lastRow, 0);
    addCharacter("0", lastRow, 1);
    addDelete(lastRow, 2);
}

void Keypad::setColors(const QColor &key, const QColor &ink, const QString &deleteIcon)
{
    for (CircleButton *button : qAsConst(m_keys)) {
        button->setBackgroundColor(key);
        button->setFontColor(ink);
    }
    m_keys.last()->loadSvg(deleteIcon);
}

CircleButton *Keypad::newKey(const QString &text, const QString &icon)
{
    auto *key = new CircleButton(icon);
    key->setText(text);
    key->setFixedSize(KeySize, KeySize);
    key->setFontSize(FontSize);
    key->setFocusPolicy(Qt::NoFocus);
    m_keys.append(key);
    return key;
}

void Keypad::addCharacter(const QString &character, int row, int column)
{
    CircleButton *key = newKey(character, {});
    key->setObjectName("key " + character);
    connect(key, &CircleButton::clicked, this, [=] { Q_EMIT typed(character); });
    m_grid->addWidget(key, row, column);
}

void Keypad::addDelete(int row, int column)
{
    CircleButton *key = newKey({}, ":/panel/delete.svg");
    key->setObjectName("key delete");
    key->setLongPressDelayMS(RepeatDelay);
    key->setLongPressIntervalMS(RepeatInterval);
    key->setLongPressRepeat(true);
    connect(key, &CircleButton::clicked, this, &Keypad::deleted);
    connect(key, &CircleButton::signal_longPressed, this, &Keypad::deleted);
    m_grid->addWidget(key, row, column);
}
