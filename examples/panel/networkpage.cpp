#include "networkpage.h"

#include "keypad.h"
#include "look.h"
#include "notices.h"
#include "parts.h"

#include <IPValidator>
#include <LineEdit>
#include <QBoxLayout>
#include <QLabel>
#include <QSettings>
#include <SwitchButton>
#include <ZButton>
#include <ZClickLabel>

using namespace ZIRVOUI;

namespace {

enum Field {
    Address,
    Mask,
    Gateway
};

const char AutomaticKey[] = "network/automatic";
constexpr int FieldGap = 8; // between a caption and its field
constexpr int FieldMargin = 16;
constexpr int FocusAlpha = 90; // of the accent, over the card
constexpr int WorkTime = 2500; // ms

void paintField(LineEdit *edit, const Theme &theme)
{
    QPalette palette = edit->palette();
    palette.setColor(QPalette::Text, theme.ink);
    palette.setColor(QPalette::Disabled, QPalette::Text, theme.quietInk);
    edit->setPalette(palette);
}

QColor focusColor(const Theme &theme)
{
    QColor color = theme.accent;
    color.setAlpha(FocusAlpha);
    return color;
}

// Ones that are followed by zeros: the rest is one less than a power of two.
bool isMask(quint32 number)
{
    const quint32 rest = ~number;
    return number != 0 && (rest & (rest + 1)) == 0;
}

} // namespace

NetworkPage::NetworkPage(Look *look, QWidget *parent)
    : QWidget(parent)
    , m_look(look)
    , m_automatic(QSettings().value(AutomaticKey, false).toBool())
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Parts::Gap);
    row->addWidget(newForm(), 1);
    row->addWidget(newKeypad());
    Parts::newPage(this, tr("Network"))->addLayout(row, 1);
    setAutomatic(m_automatic);
}

QWidget *NetworkPage::newForm()
{
    SwitchButton *automatic = Parts::newSwitch(m_look, m_automatic);
    automatic->setObjectName("automatic");
    connect(automatic, &SwitchButton::stateChanged, this,
            [this](int state) { setAutomatic(state == Qt::Checked); });
    ZButton *apply = Parts::newButton(m_look, tr("Apply"));
    apply->setObjectName("apply");
    connect(apply, &ZButton::clicked, this, &NetworkPage::apply);

    auto *form = new QVBoxLayout;
    form->setSpacing(FieldGap);
    form->addLayout(Parts::newRow(tr("Automatic (DHCP)"), automatic));
    addField(form, tr("Address"), "address", "192.168.1.20");
    addField(form, tr("Mask"), "mask", "255.255.255.0");
    addField(form, tr("Gateway"), "gateway", "192.168.1.1");
    form->addStretch();
    form->addWidget(apply);
    return Parts::newCard(m_look, form);
}

QWidget *NetworkPage::newKeypad()
{
    auto *keypad = m_look->dress(new Keypad("."), [](Keypad *keypad, const Theme &theme) {
        keypad->setColors(theme.field, theme.ink, ":/panel/delete.svg");
    });
    const auto edited = [this] { return qobject_cast<LineEdit *>(focusWidget()); };
    connect(keypad, &Keypad::typed, this, [=](const QString &character) {
        if (LineEdit *edit = edited())
            edit->insert(character);
    });
    connect(keypad, &Keypad::deleted, this, [=] {
        if (LineEdit *edit = edited())
            edit->backspace();
    });

    auto *middle = new QVBoxLayout;
    middle->addWidget(keypad, 0, Qt::AlignCenter);
    return Parts::newCard(m_look, middle);
}

void NetworkPage::addField(QBoxLayout *form, const QString &caption, const QString &key,
                           const QString &factory)
{
    auto *edit = new LineEdit;
    edit->setObjectName(key);
    edit->setFontSize(Parts::TextSize);
    edit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    edit->setValidator(new IPValidator(edit));
    edit->setText(QSettings().value("network/" + key, factory).toString());
    m_look->dress(edit, paintField);
    m_fields.append(edit);

    form->addSpacing(FieldGap);
    form->addWidget(Parts::newCaption(m_look, caption));
    form->addWidget(newGround(edit));
}

// The edit draws no ground of its own.
QWidget *NetworkPage::newGround(LineEdit *edit)
{
    auto *ground = m_look->dress(new ZClickLabel, [](ZClickLabel *ground, const Theme &theme) { //
        ground->setBgColor(theme.field);
    });
    ground->setRadius(Parts::Radius);
    connect(ground, &ZClickLabel::signal_clicked, edit, [edit] { edit->setFocus(); });
    connect(edit, &LineEdit::signal_focusIn, ground,
            [=] { ground->setBgColor(focusColor(m_look->theme())); });
    connect(edit, &LineEdit::signal_focusOut, ground,
            [=] { ground->setBgColor(m_look->theme().field); });

    auto *content = new QHBoxLayout;
    content->setContentsMargins(FieldMargin, 0, FieldMargin, 0);
    content->addWidget(edit);
    QWidget *field = Parts::newGrounded(ground, content);
    field->setFixedHeight(Parts::Finger);
    return field;
}

void NetworkPage::setAutomatic(bool on)
{
    m_automatic = on;
    for (LineEdit *edit : qAsConst(m_fields))
        edit->setEnabled(!on);
}

void NetworkPage::apply()
{
    const auto isComplete = [](const LineEdit *edit) { return edit->hasAcceptableInput(); };
    if (!m_automatic && !std::all_of(m_fields.cbegin(), m_fields.cend(), isComplete))
        Notices::toast(this, ToastWarning, tr("Fill in all three addresses."));
    else if (!fault().isEmpty())
        Notices::toast(this, ToastError, fault());
    else
        Notices::wait(this, tr("Applying the settings …"), WorkTime, [this] {
            save();
            Notices::toast(this, ToastConfirm, tr("Network settings saved"));
        });
}

void NetworkPage::save()
{
    QSettings settings;
    settings.setValue(AutomaticKey, m_automatic);
    for (const LineEdit *edit : qAsConst(m_fields))
        settings.setValue("network/" + edit->objectName(), edit->text());
}

QString NetworkPage::fault() const
{
    if (m_automatic)
        return {};
    if (!isMask(number(Mask)))
        return tr("This mask belongs to no network.");
    if ((number(Address) ^ number(Gateway)) & number(Mask))
        return tr("The gateway is outside the network.");
    return {};
}

quint32 NetworkPage::number(int field) const
{
    constexpr int ByteBits = 8;
    quint32 number = 0;
    for (const QString &byte : m_fields.at(field)->text().split('.'))
        number = number << ByteBits | byte.toUInt();
    return number;
}
