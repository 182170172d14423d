#include "lockscreen.h"

#include "clock.h"
#include "displaypage.h"
#include "keypad.h"
#include "notices.h"
#include "parts.h"

#include <LineEdit>
#include <QBoxLayout>
#include <QDate>
#include <QLabel>
#include <QLocale>
#include <QSettings>
#include <ZClickLabel>

using namespace ZIRVOUI;

namespace {

const char NumberKey[] = "lock/number";
const char DefaultNumber[] = "2580";

constexpr int Margin = 96 + LockScreen::Overhang;
constexpr int ClockSize = 112; // px
constexpr int DateSize = 28; // px
constexpr int EntryWidth = 328; // as wide as the keypad
constexpr int EntrySize = 36; // px
constexpr int MostDigits = 8;
constexpr QRgb KeyColor = 0x38ffffff;
constexpr QRgb EntryColor = 0x50000000;

ZClickLabel *newLine(const QString &text, int pixelSize)
{
    auto *line = new ZClickLabel(text);
    line->setTextSize(pixelSize);
    return line;
}

} // namespace

LockScreen::LockScreen(Clock *clock, QWidget *parent)
    : MaskWidget(parent)
{
    setObjectName("lock screen");
    setDistance(0);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Margin, 0, Margin, 0);
    row->addLayout(newTime(clock));
    row->addStretch();
    row->addLayout(newEntry());
}

void LockScreen::showEvent(QShowEvent *event)
{
    m_entry->clear();
    setBlurRadius(DisplayPage::wallpaperBlur());
    setPixmap(QPixmap(":/panel/dusk.png"));
    MaskWidget::showEvent(event);
}

QBoxLayout *LockScreen::newTime(Clock *clock)
{
    ZClickLabel *time = newLine(clock->text(), ClockSize);
    time->setFontWeight(QFont::Light);
    connect(clock, &Clock::changed, time, &ZClickLabel::setLabelText);
    const QString today = QLocale().toString(QDate::currentDate(), QLocale::LongFormat);

    auto *column = new QVBoxLayout;
    column->addStretch();
    column->addWidget(time);
    column->addWidget(newLine(today, DateSize));
    column->addStretch();
    return column;
}

QBoxLayout *LockScreen::newEntry()
{
    m_entry = new LineEdit;
    m_entry->setObjectName("entry");
    m_entry->setEchoMode(QLineEdit::Password);
    m_entry->setReadOnly(true);
    m_entry->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_entry->setFocusPolicy(Qt::NoFocus);
    m_entry->setAlignment(Qt::AlignCenter);
    m_entry->setMaxLength(MostDigits);
    m_entry->setFontSize(EntrySize);
    auto *ground = new ZClickLabel;
    ground->setBgColor(QColor::fromRgba(EntryColor));
    ground->setRadius(Parts::Finger / 2);
    auto *line = new QHBoxLayout;
    line->addWidget(m_entry);
    QWidget *field = Parts::newGrounded(ground, line);
    field->setFixedSize(EntryWidth, Parts::Finger);

    auto *column = new QVBoxLayout;
    column->setSpacing(Parts::Gap);
    column->addStretch();
    column->addWidget(field);
    column->addWidget(newKeypad());
    column->addStretch();
    return column;
}

Keypad *LockScreen::newKeypad()
{
    auto *keypad = new Keypad({});
    keypad->setColors(QColor::fromRgba(KeyColor), Qt::white, ":/panel/delete_white.svg");
    connect(keypad, &Keypad::typed, this, [this](const QString &digit) {
        m_entry->setText(m_entry->text() + digit);
        check();
    });
    connect(keypad, &Keypad::deleted, m_entry, [this] {
        m_entry->setText(m_entry->text().chopped(m_entry->text().isEmpty() ? 0 : 1));
    });
    return keypad;
}

// A number of the right length that is wrong is told at once, as there is no key to confirm it.
void LockScreen::check()
{
    const QString number = QSettings().value(NumberKey, DefaultNumber).toString();
    if (m_entry->text() == number) {
        Q_EMIT opened();
    } else if (m_entry->text().size() == MostDigits) {
        m_entry->clear();
        Notices::toast(this, ToastError, tr("This is not the number."));
    }
}
