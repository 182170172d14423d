#include "buttonspage.h"
#include "controlpanel.h"
#include "imageswitchbutton.h"
#include "look.h"
#include "page.h"
#include "signalcounts.h"

using ZIRVOUI::CircleButton;
using ZIRVOUI::ImageSwitchButton;

namespace {

constexpr int CircleSize = 96;
constexpr QSize EllipseSize(200, 72);

const char PlusPath[] = ":/gallery/plus.svg";

CircleButton *addCircle(Exhibit *exhibit, const QString &caption, const QString &path = PlusPath)
{
    auto *button = new CircleButton(path);
    button->setFixedSize(CircleSize, CircleSize);
    button->setBackgroundColor(Look::Blue);
    button->setFontColor(Qt::white);
    button->setLongPressDelayMS(500);
    button->setLongPressIntervalMS(200);
    exhibit->addSpecimen(caption, button);
    return button;
}

void setOutline(CircleButton *button, QRgb color, int width)
{
    button->setBorderColor(color);
    button->setBorderWidth(width);
}

void addCountingCircle(Exhibit *exhibit)
{
    CircleButton *button = addCircle(exhibit, "Hold: counts on", QString());
    button->setText("0");
    button->setFontSize(28);
    button->setLongPressRepeat(true);
    QObject::connect(button, &CircleButton::signal_longPressed, button,
                     [=] { button->setText(QString::number(button->text().toInt() + 1)); });
}

CircleButton *addCircleSpecimens(Exhibit *exhibit)
{
    CircleButton *live = addCircle(exhibit, "Icon");
    addCircle(exhibit, "Down")->setDown(true);
    addCircle(exhibit, "Disabled")->setEnabled(false);
    setOutline(addCircle(exhibit, "Border"), Look::Yellow, 6);

    CircleButton *outline = addCircle(exhibit, "Border alone");
    outline->setBackgroundColor(Qt::transparent);
    setOutline(outline, 0xffffffff, 2);

    addCircle(exhibit, "Text", QString())->setText("Start");
    addCircle(exhibit, "Ellipse")->setFixedSize(EllipseSize);
    addCountingCircle(exhibit);
    return live;
}

void addCircleLookControls(ControlPanel *controls, CircleButton *button)
{
    controls->addChoice<QString>("Icon",
                                 {{"Plus", PlusPath},
                                  {"Play", ":/gallery/play.svg"},
                                  {"Bell", ":/gallery/bell.svg"},
                                  {"None", ".svg"}},
                                 [=](const QString &path) { button->loadSvg(path); });
    controls->addText("Text", QString(), [=](const QString &text) { button->setText(text); });
    controls->addNumber("Text size", 12, 60, button->font().pixelSize(),
                        [=](int size) { button->setFontSize(size); });
    controls->addColor("Text colour", lineColors(),
                       [=](const QColor &color) { button->setFontColor(color); });
    controls->addColor("Background", fillColors(),
                       [=](const QColor &color) { button->setBackgroundColor(color); });
    controls->addNumber("Border", 0, 16, 0, repainting(button, &CircleButton::setBorderWidth));
    controls->addColor("Border tint", lineColors(),
                       repainting(button, &CircleButton::setBorderColor));
    controls->addSwitch("Enabled", true, [=](bool on) { button->setEnabled(on); });
}

void addLongPressControls(ControlPanel *controls, CircleButton *button)
{
    controls->addChoice<int>("Delay", {{"0.5 s", 500}, {"None", 0}, {"2 s", 2000}},
                             [=](int ms) { button->setLongPressDelayMS(ms); });
    controls->addChoice<int>(
        "Repeats", {{"None", 0}, {"Every 0.2 s", 200}, {"Every 0.05 s", 50}, {"Every 1 s", 1000}},
        [=](int ms) {
            button->setLongPressRepeat(ms > 0);
            button->setLongPressIntervalMS(ms);
        });

    auto *counts = new SignalCounts;
    counts->watch("longPressed", button, &CircleButton::signal_longPressed);
    counts->watch("clicked", button, &CircleButton::clicked);
    controls->addRow("Signals", counts, 2);
}

ImageSwitchButton *addImageSwitch(Exhibit *exhibit, const QString &caption, bool open)
{
    auto *button = new ImageSwitchButton(":/gallery/speaker_on.svg", ":/gallery/speaker_off.svg");
    button->setFixedSize(CircleSize, CircleSize);
    button->setBackgroundColor(Look::Blue);
    button->setOpenState(open);
    exhibit->addSpecimen(caption, button);
    return button;
}

ImageSwitchButton *addImageSwitchSpecimens(Exhibit *exhibit)
{
    ImageSwitchButton *live = addImageSwitch(exhibit, "Closed at first", false);
    addImageSwitch(exhibit, "Open", true);
    addImageSwitch(exhibit, "Open, down", true)->setDown(true);
    addImageSwitch(exhibit, "Open, disabled", true)->setEnabled(false);
    return live;
}

QString stateText(bool open)
{
    return open ? "Open" : "Closed";
}

void addImageSwitchControls(ControlPanel *controls, ImageSwitchButton *button)
{
    auto *reading = new QLabel(stateText(button->openState()));
    const auto setOpen = [=](bool open) {
        button->setOpenState(open);
        reading->setText(stateText(open));
    };
    QObject::connect(button, &ImageSwitchButton::signal_clicked, reading,
                     [=](bool open) { reading->setText(stateText(open)); });
    controls->addActions("Set state",
                         {{"Open", [=] { setOpen(true); }}, {"Closed", [=] { setOpen(false); }}});
    controls->addRow("It is now", reading);
    controls->addColor("Background", fillColors(),
                       [=](const QColor &color) { button->setBackgroundColor(color); });
    controls->addNumber("Border", 0, 16, 0, repainting(button, &ImageSwitchButton::setBorderWidth));
    controls->addColor("Border tint", lineColors(),
                       repainting(button, &ImageSwitchButton::setBorderColor));
    controls->addSwitch("Enabled", true, [=](bool on) { button->setEnabled(on); });

    auto *counts = new SignalCounts;
    counts->watch("clicked", button, &ImageSwitchButton::signal_clicked);
    controls->addRow("Signals", counts);
}

} // namespace

void addCircleButton(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "CircleButton", "A round button with an icon that reports long presses", Exhibit::Full);
    CircleButton *live = addCircleSpecimens(exhibit);
    addCircleLookControls(exhibit->controls(), live);
    addLongPressControls(exhibit->controls(), live);
}

void addImageSwitchButton(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ImageSwitchButton", "A round button, one icon open and one closed", Exhibit::Half);
    addImageSwitchControls(exhibit->controls(), addImageSwitchSpecimens(exhibit));
}
