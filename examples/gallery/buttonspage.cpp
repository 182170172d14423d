#include "buttonspage.h"

#include "controlpanel.h"
#include "look.h"
#include "page.h"
#include "pages.h"
#include "roundedbutton.h"
#include "signalcounts.h"
#include "zbutton.h"

using ZIRVOUI::ZButton;

namespace {

constexpr QSize ButtonSize(200, 72);
constexpr int RoundedRadius = 20;

const char PlatePath[] = ":/gallery/plate.svg";
const char HillsPath[] = ":/gallery/hills.png";

ZButton *addZButton(Exhibit *exhibit, const QString &caption, const QString &text = "Start")
{
    auto *button = new ZButton(text);
    button->setFixedSize(ButtonSize);
    exhibit->addSpecimen(caption, button);
    return button;
}

ZButton *addZButtonSpecimens(Exhibit *exhibit)
{
    ZButton *live = addZButton(exhibit, "Colour");
    addZButton(exhibit, "Down")->setDown(true);
    addZButton(exhibit, "Disabled")->setEnabled(false);

    ZButton *pill = addZButton(exhibit, "Half round, other colours", "Cancel");
    pill->setRadius(ButtonSize.height() / 2);
    pill->setBackgroundColor(Look::Gray);
    pill->setFontColor(Look::Yellow);

    ZButton *icon = addZButton(exhibit, "Icon");
    ZButton *down = addZButton(exhibit, "Icon, down");
    ZButton *disabled = addZButton(exhibit, "Icon, disabled");
    for (ZButton *button : {icon, down, disabled})
        button->setIcon(QIcon(PlatePath));
    down->setDown(true);
    disabled->setEnabled(false);

    addZButton(exhibit, "Large text", "12:45")->setFontSize(36);
    return live;
}

void addZButtonControls(ControlPanel *controls, ZButton *button)
{
    controls->addText("Text", button->text(), [=](const QString &text) { button->setText(text); });
    controls->addNumber("Text size", 12, 60, button->font().pixelSize(),
                        [=](int size) { button->setFontSize(size); });
    controls->addColor("Text colour", lineColors(), repainting(button, &ZButton::setFontColor));
    controls->addColor("Background", {"#316aff", "#3f4650", "#7a2f3a", "#2c6e49"},
                       repainting(button, &ZButton::setBackgroundColor));
    controls->addNumber("Radius", 0, ButtonSize.height() / 2, 10,
                        repainting(button, &ZButton::setRadius));
    controls->addChoice<QString>("Icon", {{"None", ""}, {"Plate", PlatePath}, {"Hills", HillsPath}},
                                 [=](const QString &path) { button->setIcon(QIcon(path)); });
    controls->addSwitch("Enabled", true, [=](bool on) { button->setEnabled(on); });
    controls->addSwitch("Drag scrolls", false, [=](bool on) { button->setMouseEventToParent(on); });

    auto *counts = new SignalCounts;
    counts->watch("pressed", button, &ZButton::pressed);
    counts->watch("clicked", button, &ZButton::clicked);
    controls->addRow("Signals", counts);
}

void addZButtonExhibit(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZButton", "One colour or its icon, stretched, with text on top; a drag is no click",
        Exhibit::Full);
    addZButtonControls(exhibit->controls(), addZButtonSpecimens(exhibit));
}

RoundedButton *addRounded(Exhibit *exhibit, const QString &caption, int radius = RoundedRadius)
{
    auto *button = new RoundedButton;
    button->setText("Start");
    button->setFixedSize(ButtonSize);
    button->setRadius(radius);
    button->setBackgroundColor(QColor(Look::Blue));
    exhibit->addSpecimen(caption, button);
    return button;
}

void setBorder(RoundedButton *button, QRgb color, int width)
{
    button->setBorderColor(color);
    button->setBorderWidth(width);
}

RoundedButton *addRoundedSpecimens(Exhibit *exhibit)
{
    RoundedButton *live = addRounded(exhibit, "Colour");
    addRounded(exhibit, "Down")->setDown(true);
    addRounded(exhibit, "Disabled")->setEnabled(false);
    addRounded(exhibit, "Square", 0);
    setBorder(addRounded(exhibit, "Border"), Look::Yellow, 4);

    RoundedButton *outline = addRounded(exhibit, "Border alone");
    outline->setBackgroundColor(QBrush(Qt::transparent));
    setBorder(outline, Look::Yellow, 2);
    outline->setFontColor(QColor(Look::Yellow));

    RoundedButton *picture = addRounded(exhibit, "Picture");
    RoundedButton *framed = addRounded(exhibit, "Picture, border", ButtonSize.height() / 2);
    setBorder(framed, 0xffffffff, 4);
    for (RoundedButton *button : {picture, framed}) {
        button->setText(QString());
        button->setBackgroundImage(QPixmap(HillsPath));
    }
    return live;
}

void addRoundedControls(ControlPanel *controls, RoundedButton *button)
{
    controls->addText("Text", button->text(), [=](const QString &text) { button->setText(text); });
    controls->addNumber("Text size", 12, 60, button->font().pixelSize(),
                        [=](int size) { button->setFontSize(size); });
    controls->addColor("Text colour", lineColors(),
                       [=](const QColor &color) { button->setFontColor(color); });
    controls->addColor("Background", fillColors(),
                       [=](const QColor &color) { button->setBackgroundColor(color); });
    controls->addNumber("Radius", 0, ButtonSize.height() / 2, button->radius(),
                        [=](int radius) { button->setRadius(radius); });
    controls->addChoice<QString>(
        "Picture", {{"None", ""}, {"Hills", HillsPath}},
        [=](const QString &path) { button->setBackgroundImage(QPixmap(path)); });
    controls->addNumber("Border", 0, 16, 0, [=](int width) { button->setBorderWidth(width); });
    controls->addColor("Border tint", lineColors(),
                       [=](const QColor &color) { button->setBorderColor(color); });
    controls->addSwitch("Enabled", true, [=](bool on) { button->setEnabled(on); });

    auto *counts = new SignalCounts;
    counts->watch("mousePressed", button, &RoundedButton::signal_mousePressed);
    counts->watch("mouseReleased", button, &RoundedButton::signal_mouseReleased);
    counts->watch("clicked", button, &RoundedButton::signal_clicked);
    controls->addRow("Its signals", counts, 2);
}

void addRoundedButton(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "RoundedButton", "A colour or a picture in rounded corners, with a border", Exhibit::Full);
    addRoundedControls(exhibit->controls(), addRoundedSpecimens(exhibit));
}

} // namespace

void fillButtonsPage(Page *page)
{
    addZButtonExhibit(page);
    addRoundedButton(page);
    addCircleButton(page);
    addZImageButton(page);
    addSwitchButton(page);
    addImageSwitchButton(page);
    addZRadioButton(page);
}
