#include "buttonspage.h"
#include "controlpanel.h"
#include "look.h"
#include "page.h"
#include "signalcounts.h"
#include "switchbutton.h"
#include "zradiobutton.h"

using ZIRVOUI::SwitchButton;
using ZIRVOUI::ZRadioButton;

namespace {

constexpr QSize RadioSize(144, 48);
constexpr int RadioSpacing = 12;
constexpr QRgb Green = 0xff2fb36d;

SwitchButton *addSwitch(Exhibit *exhibit, const QString &caption, Qt::CheckState state,
                        bool autoToggle = true)
{
    auto *button = new SwitchButton(nullptr, autoToggle);
    button->setCheckState(state);
    exhibit->addSpecimen(caption, button);
    return button;
}

int knobWay(const SwitchButton *button)
{
    return button->width() - button->height();
}

void finishSlides(Exhibit *exhibit)
{
    for (SwitchButton *button : exhibit->findChildren<SwitchButton *>())
        button->setOffset(button->checkState() == Qt::Unchecked ? 0 : knobWay(button));
}

SwitchButton *addSwitchSpecimens(Exhibit *exhibit)
{
    SwitchButton *live = addSwitch(exhibit, "Texts", Qt::Unchecked);
    live->setCheckText("On");
    live->setNoCheckText("Off");
    addSwitch(exhibit, "On", Qt::Checked);
    addSwitch(exhibit, "Partially checked", Qt::PartiallyChecked);

    SwitchButton *text = addSwitch(exhibit, "Texts, other colour", Qt::Checked);
    text->setCheckText("On");
    text->setNoCheckText("Off");
    text->setCheckedBackground(Green);

    addSwitch(exhibit, "Off, disabled", Qt::Unchecked)->setEnabled(false);
    addSwitch(exhibit, "On, disabled", Qt::Checked)->setEnabled(false);
    addSwitch(exhibit, "Small margin", Qt::Checked)->setMargin(3);

    SwitchButton *waiting = addSwitch(exhibit, "No auto toggle", Qt::Unchecked, false);
    waiting->setCheckText("On");
    waiting->setNoCheckText("Off");
    return live;
}

void addSwitchControls(ControlPanel *controls, SwitchButton *button)
{
    controls->addActions("Check state",
                         {{"Off", [=] { button->setCheckState(Qt::Unchecked); }},
                          {"Part", [=] { button->setCheckState(Qt::PartiallyChecked); }},
                          {"On", [=] { button->setCheckState(Qt::Checked); }}});
    controls->addActions("Checked flag",
                         {{"Set", [=] { button->setChecked(true); }},
                          {"Clear", [=] { button->setChecked(false); }}});
    controls->addColor("On colour", {"#399efb", "#2fb36d", "#ebc232", "#7a2f3a"},
                       [=](const QColor &color) { button->setCheckedBackground(color); });
    controls->addColor("Off colour", {"#4c797b81", "#1f5fae", "#7a2f3a", "#2c6e49"},
                       [=](const QColor &color) { button->setNocheckedBackground(color); });
    controls->addNumber("Margin", 0, button->height() / 2, int(button->margin()),
                        [=](int margin) { button->setMargin(margin); });
    controls->addNumber("Offset", 0, knobWay(button), 0,
                        [=](int offset) { button->setOffset(offset); });
    controls->addSwitch("Enabled", true, [=](bool on) { button->setEnabled(on); });
    controls->addText("On text", "On", repainting(button, &SwitchButton::setCheckText));
    controls->addText("Off text", "Off", repainting(button, &SwitchButton::setNoCheckText));

    auto *counts = new SignalCounts;
    counts->watch("stateChanged", button, &SwitchButton::stateChanged);
    counts->watch("toggled", button, &SwitchButton::toggled);
    controls->addRow("Signals", counts, 2);
}

ZRadioButton *addRadio(Exhibit *exhibit, const QString &caption, const QString &text)
{
    auto *button = new ZRadioButton(text);
    button->setFixedSize(RadioSize);
    button->setSpacing(RadioSpacing);
    exhibit->addSpecimen(caption, button);
    return button;
}

ZRadioButton *addRadioSpecimens(Exhibit *exhibit)
{
    ZRadioButton *live = addRadio(exhibit, "One of three", "Morning");
    live->setChecked(true);
    addRadio(exhibit, "Plain", "Noon");

    ZRadioButton *colored = addRadio(exhibit, "Coloured", "Evening");
    ZRadioButton *checked = addRadio(exhibit, "Coloured, checked", "Night");
    for (ZRadioButton *button : {colored, checked}) {
        button->setExternalCircleLineColor(Look::Accent);
        button->setExternalCircleFillColor(Look::Gray);
        button->setInternalCircleFillColor(Look::Accent);
        button->setThickness(4);
    }

    // These stay out of the choice between the others, which allows one checked button only.
    ZRadioButton *disabled = addRadio(exhibit, "Disabled", "Summer");
    ZRadioButton *both = addRadio(exhibit, "Checked, disabled", "Winter");
    for (ZRadioButton *button : {checked, disabled, both})
        button->setAutoExclusive(false);
    checked->setChecked(true);
    disabled->setEnabled(false);
    both->setChecked(true);
    both->setEnabled(false);
    return live;
}

void addRadioControls(ControlPanel *controls, ZRadioButton *button)
{
    controls->addText("Text", button->text(), [=](const QString &text) { button->setText(text); });
    controls->addNumber("Spacing", 0, 60, RadioSpacing,
                        repainting(button, &ZRadioButton::setSpacing));
    controls->addNumber("Line width", 0, RadioSize.height() / 2, 2,
                        repainting(button, &ZRadioButton::setThickness));
    controls->addColor("Line", lineColors(),
                       repainting(button, &ZRadioButton::setExternalCircleLineColor));
    controls->addColor("Circle", fillColors(),
                       repainting(button, &ZRadioButton::setExternalCircleFillColor));
    controls->addColor("Dot", lineColors(),
                       repainting(button, &ZRadioButton::setInternalCircleFillColor));
    controls->addColor("Text colour", lineColors(),
                       repainting(button, &ZRadioButton::setTextColor));
    controls->addSwitch("Enabled", true, [=](bool on) { button->setEnabled(on); });
}

} // namespace

void addSwitchButton(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "SwitchButton", "An on/off switch with a sliding knob and a text beside it", Exhibit::Full);
    addSwitchControls(exhibit->controls(), addSwitchSpecimens(exhibit));
    exhibit->setStill([=] { finishSlides(exhibit); });
}

void addZRadioButton(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZRadioButton", "A circle, with a dot while it is the chosen one, and text", Exhibit::Half);
    addRadioControls(exhibit->controls(), addRadioSpecimens(exhibit));
}
