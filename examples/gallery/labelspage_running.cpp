#include "controlpanel.h"
#include "labelspage.h"
#include "look.h"
#include "page.h"
#include "zscrolllabel.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QTimerEvent>

using ZIRVOUI::ScrollDirection;
using ZIRVOUI::ZScrollLabel;

namespace {

constexpr int StripHeight = 64;
constexpr int StripWidth = 232;
constexpr int LiveColumns = 2;
constexpr int LiveWidth = 488;
constexpr int LiveStill = 240; // px moved
constexpr int Padding = 12;
constexpr int DefaultSpacing = 72;
constexpr int DefaultInterval = 10; // ms
constexpr int WideSpacing = 120;
constexpr int LinesSpacing = 96;
constexpr int LargeFont = 32; // px

const char LongText[] = "Kitchen: the dishwasher has finished. Garden: the soil is dry.";
const char Lines[] = "Monday 21 °C, sunny\nTuesday 17 °C, rain\nWednesday 19 °C";

/*! The ground of a label that has none, with room at both ends. */
QWidget *newStrip(ZScrollLabel *label, int width)
{
    auto *strip = new QWidget;
    strip->setFixedSize(width, StripHeight);
    QPalette palette = strip->palette();
    palette.setColor(QPalette::Window, Look::Field);
    strip->setPalette(palette);
    strip->setAutoFillBackground(true);

    auto *row = new QHBoxLayout(strip);
    row->setContentsMargins(Padding, 0, Padding, 0);
    row->addWidget(label);
    return strip;
}

ZScrollLabel *addLabel(Exhibit *exhibit, const QString &caption, const QString &text = LongText)
{
    auto *label = new ZScrollLabel(text);
    exhibit->addSpecimen(caption, newStrip(label, StripWidth));
    return label;
}

ZScrollLabel *addLiveLabel(Exhibit *exhibit)
{
    auto *label = new ZScrollLabel(LongText);
    exhibit->addSpecimen("Leftwards", newStrip(label, LiveWidth), LiveColumns);
    return label;
}

void addStandingLabels(Exhibit *exhibit)
{
    addLabel(exhibit, "Fits: stands still", "The soil is dry.");
    ZScrollLabel *standing = addLabel(exhibit, "Need scroll off");
    standing->setNeedScroll(false);
    standing->upateLabelRollingState();
}

struct Run
{
    ZScrollLabel *label;
    int still; // px moved
};

QVector<Run> addRunningLabels(Exhibit *exhibit)
{
    ZScrollLabel *rising = addLabel(exhibit, "Upwards", Lines);
    rising->setScrollDirection(ZIRVOUI::ScrollVertical);
    rising->setSpacing(LinesSpacing);

    ZScrollLabel *fast = addLabel(exhibit, "Colour, spacing and step");
    fast->setFontColor(Look::Yellow);
    fast->setSpacing(WideSpacing);
    fast->setStep(3);

    ZScrollLabel *slow = addLabel(exhibit, "Every 40 ms");
    slow->setTimerMsc(40);

    ZScrollLabel *large = addLabel(exhibit, "Large font", "Dinner at half past seven");
    QFont font = large->font();
    font.setPixelSize(LargeFont);
    large->setFont(font);

    const QVector<Run> runs = {{rising, 44}, {fast, 460}, {slow, 60}, {large, 24}};
    for (const Run &run : runs)
        run.label->upateLabelRollingState();
    return runs;
}

/*! Moves a running text by \a pixels in a single tick of its timer, and lets it rest there. */
void moveOn(ZScrollLabel *label, int pixels)
{
    label->setStep(pixels);
    for (const auto &timer : QAbstractEventDispatcher::instance()->registeredTimers(label)) {
        QTimerEvent tick(timer.timerId);
        QCoreApplication::sendEvent(label, &tick);
    }
    label->setStep(0);
}

void addTextControls(ControlPanel *controls, ZScrollLabel *label)
{
    controls->addText("Text", label->text(), [=](const QString &text) { label->setText(text); });
    controls->addNumber("Step", -10, 20, 1, [=](int step) { label->setStep(step); });
    controls->addNumber("Spacing", 0, 200, DefaultSpacing,
                        [=](int spacing) { label->setSpacing(spacing); });
    controls->addColor("Text colour", lineColors(),
                       [=](const QColor &color) { label->setFontColor(color); });
}

/*! Controls of what counts only when the label decides anew whether its text runs. */
void addRunControls(ControlPanel *controls, ZScrollLabel *label)
{
    const auto decide = [=] {
        label->upateLabelRollingState();
        label->update();
    };
    controls->addNumber("Interval, ms", -1, 100, DefaultInterval, [=](int interval) {
        label->setTimerMsc(interval);
        decide();
    });
    controls->addChoice<ScrollDirection>(
        "Direction",
        {{"Leftwards", ZIRVOUI::ScrollHorizontal}, {"Upwards", ZIRVOUI::ScrollVertical}},
        [=](ScrollDirection direction) {
            label->setScrollDirection(direction);
            decide();
        });
    controls->addSwitch("Need scroll", true, [=](bool on) {
        label->setNeedScroll(on);
        decide();
    });
    controls->addNumber("Width", 2 * Padding, LiveWidth, LiveWidth,
                        [=](int width) { label->parentWidget()->setFixedWidth(width); });
}

} // namespace

void addZScrollLabel(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZScrollLabel", "A text that runs through its label, over and over, when it does not fit",
        Exhibit::Full);
    ZScrollLabel *live = addLiveLabel(exhibit);
    addStandingLabels(exhibit);
    const QVector<Run> runs = addRunningLabels(exhibit);
    exhibit->setStill([=] {
        moveOn(live, LiveStill);
        for (const Run &run : runs)
            moveOn(run.label, run.still);
    });
    addTextControls(exhibit->controls(), live);
    addRunControls(exhibit->controls(), live);
}
