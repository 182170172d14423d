#include "controlpanel.h"
#include "labelspage.h"
#include "look.h"
#include "page.h"
#include "zadjustfontlabel.h"

#include <memory>

using ZIRVOUI::ZAdjustFontLabel;

namespace {

constexpr QSize LabelSize(232, 104);
constexpr int NarrowWidth = 56;
constexpr int MinFont = 12; // px
constexpr int MaxFont = 48;
constexpr int LargeMinFont = 28;

const char LongText[] = "The heating follows the timetable of this room until somebody turns the "
                        "dial, and goes back to it at midnight.";

ZAdjustFontLabel *addLabel(Exhibit *exhibit, const QString &caption, const QString &text)
{
    auto *label = new ZAdjustFontLabel(text);
    label->setFixedSize(LabelSize);
    label->setAlignment(Qt::AlignCenter);
    // As the text is wrapped when it is measured.
    label->setWordWrap(true);
    label->setTextFlag(Qt::TextWrapAnywhere);
    label->setBgColor(Look::Gray);
    label->setFontSizeRange(MinFont, MaxFont);
    exhibit->addSpecimen(caption, label);
    return label;
}

ZAdjustFontLabel *addLabels(Exhibit *exhibit)
{
    ZAdjustFontLabel *live = addLabel(exhibit, "Short: at the maximum", "21.5 °C");
    addLabel(exhibit, "Medium, wrapped at words", "Ground floor: living room and kitchen")
        ->setTextFlag(Qt::TextWordWrap);
    addLabel(exhibit, "Long", LongText);
    addLabel(exhibit, "One long word", "Fußbodenheizungsverteilerkasten");

    addLabel(exhibit, "Narrow", "Hall 2")->setFixedWidth(NarrowWidth);
    addLabel(exhibit, "Fits at no size: minimum", LongText)
        ->setFontSizeRange(LargeMinFont, MaxFont);
    addLabel(exhibit, "No range: its own font", "21.5 °C")->setFontSizeRange(0, 0);
    addLabel(exhibit, "Disabled", "21.5 °C")->setEnabled(false);
    return live;
}

void addRangeControls(ControlPanel *controls, ZAdjustFontLabel *label)
{
    struct Range
    {
        int minimum = MinFont;
        int maximum = MaxFont;
    };
    const auto range = std::make_shared<Range>();
    const auto apply = [=] {
        label->setFontSizeRange(range->minimum, range->maximum);
        label->update();
    };
    controls->addNumber("Minimum", 0, 60, range->minimum, [=](int size) {
        range->minimum = size;
        apply();
    });
    controls->addNumber("Maximum", 0, 100, range->maximum, [=](int size) {
        range->maximum = size;
        apply();
    });
}

void addLabelControls(ControlPanel *controls, ZAdjustFontLabel *label)
{
    controls->addText("Text", label->text(), [=](const QString &text) { label->setText(text); });
    addRangeControls(controls, label);
    controls->addNumber("Width", 8, LabelSize.width(), LabelSize.width(),
                        [=](int width) { label->setFixedWidth(width); });
    controls->addNumber("Height", 8, LabelSize.height(), LabelSize.height(),
                        [=](int height) { label->setFixedHeight(height); });
    controls->addSwitch("Enabled", true, [=](bool on) { label->setEnabled(on); });
}

} // namespace

void addZAdjustFontLabel(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZAdjustFontLabel", "A label whose font is as large as its text allows", Exhibit::Full);
    addLabelControls(exhibit->controls(), addLabels(exhibit));
}
