#include "labelspage.h"

#include "controlpanel.h"
#include "page.h"
#include "pages.h"
#include "signalcounts.h"
#include "zclicklabel.h"

using ZIRVOUI::ZClickLabel;

namespace {

constexpr QSize LabelSize(220, 104);
constexpr int LabelRadius = 24;
constexpr QRgb LabelColor = 0xff3f4650;

ZClickLabel *addLabel(Exhibit *exhibit, const QString &caption, const QString &text = "Tap me")
{
    auto *label = new ZClickLabel(text);
    label->setFixedSize(LabelSize);
    label->setAlignment(Qt::AlignCenter);
    label->setBgColor(LabelColor);
    exhibit->addSpecimen(caption, label);
    return label;
}

ZClickLabel *addClickLabelSpecimens(Exhibit *exhibit)
{
    ZClickLabel *live = addLabel(exhibit, "Background");
    addLabel(exhibit, "Rounded")->setRadius(LabelRadius);

    ZClickLabel *picture = addLabel(exhibit, "Picture", "Hills");
    picture->setPicture(QPixmap(":/gallery/hills.png"));
    picture->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);

    ZClickLabel *svg = addLabel(exhibit, "SVG", QString());
    svg->setBgPicturePath(":/gallery/bell.svg");
    svg->setFixedSize(LabelSize.height(), LabelSize.height());
    svg->setBgColor(Qt::transparent);

    ZClickLabel *corner = addLabel(exhibit, "Corner");
    corner->setRadius(LabelRadius);
    corner->setRightCornerLabels(true);

    addLabel(exhibit, "Word wrap", "A text that needs more than one line")->setWordWrap(true);

    ZClickLabel *font = addLabel(exhibit, "Font", "12:45");
    font->setTextSize(44);
    font->setFontWeight(QFont::Light);
    font->setFontColor("#ebc232");
    font->setBgColor(Qt::transparent);

    ZClickLabel *disabled = addLabel(exhibit, "Disabled");
    disabled->setRightCornerLabels(true);
    disabled->setEnabled(false);
    return live;
}

void addTextControls(ControlPanel *controls, ZClickLabel *label)
{
    controls->addText("Text", label->text(),
                      [=](const QString &text) { label->setLabelText(text); });
    controls->addActions("Empty text", {{"Show again", [=] { label->show(); }}});
    controls->addChoice<Qt::Alignment>("Alignment",
                                       {{"Centre", Qt::AlignCenter},
                                        {"Left", Qt::AlignLeft | Qt::AlignVCenter},
                                        {"Right", Qt::AlignRight | Qt::AlignVCenter},
                                        {"Top", Qt::AlignHCenter | Qt::AlignTop}},
                                       [=](Qt::Alignment value) { label->setAlignment(value); });
    controls->addSwitch("Word wrap", false, [=](bool on) { label->setWordWrap(on); });
    controls->addChoice<Qt::TextFlag>("Wrap flag",
                                      {{"Words", Qt::TextWordWrap},
                                       {"Anywhere", Qt::TextWrapAnywhere},
                                       {"Single line", Qt::TextSingleLine}},
                                      [=](Qt::TextFlag flag) { label->setTextFlag(flag); });
}

void addFontControls(ControlPanel *controls, ZClickLabel *label)
{
    controls->addChoice<QString>(
        "Font", {{"Sans", "Sans Serif"}, {"Serif", "Serif"}, {"Mono", "Monospace"}},
        [=](const QString &family) { label->setFontFamily(family); });
    controls->addNumber("Text size", 12, 60, label->font().pixelSize(),
                        [=](int size) { label->setTextSize(size); });
    controls->addNumber("Weight", 0, 99, label->font().weight(),
                        [=](int weight) { label->setFontWeight(weight); });
    controls->addNumber("Italic width", 50, 200, 100,
                        [=](int stretch) { label->setItalic(true, stretch); });
    controls->addColor("Text colour", {"white", "#ebc232", "#4da3ff", "#5fd38d"},
                       [=](const QColor &color) { label->setFontColor(color); });
}

void addBodyControls(ControlPanel *controls, ZClickLabel *label)
{
    controls->addColor("Background", {"#3f4650", "#1f5fae", "#7a2f3a", "transparent"},
                       [=](const QColor &color) { label->setBgColor(color); });
    controls->addNumber("Radius", 0, LabelSize.height() / 2, 0,
                        [=](int radius) { label->setRadius(radius); });
    controls->addChoice<QString>("Picture", {{"None", ""}, {"Hills", ":/gallery/hills.png"}},
                                 [=](const QString &path) { label->setPicture(QPixmap(path)); });
    // Only another SVG takes the place of an SVG, if need be one that does not exist.
    controls->addChoice<QString>(
        "File",
        {{"None", ".svg"}, {"Bell", ":/gallery/bell.svg"}, {"Hills", ":/gallery/hills.png"}},
        [=](const QString &path) { label->setBgPicturePath(path); });
    controls->addSwitch("Corner", false, [=](bool on) { label->setRightCornerLabels(on); });
    controls->addSwitch("Enabled", true, [=](bool on) { label->setEnabled(on); });
}

void addClickLabel(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZClickLabel",
        "A label that reports taps, with background, picture, SVG and a marked corner",
        Exhibit::Full);
    ZClickLabel *live = addClickLabelSpecimens(exhibit);

    addTextControls(exhibit->controls(), live);
    addFontControls(exhibit->controls(), live);
    addBodyControls(exhibit->controls(), live);

    auto *counts = new SignalCounts;
    for (ZClickLabel *label : exhibit->findChildren<ZClickLabel *>()) {
        counts->watch("pressed", label, &ZClickLabel::signal_pressed);
        counts->watch("released", label, &ZClickLabel::signal_released);
        counts->watch("clicked", label, &ZClickLabel::signal_clicked);
    }
    exhibit->controls()->addRow("Taps on all", counts, 2);
}

} // namespace

void fillLabelsPage(Page *page)
{
    addClickLabel(page);
    addZAdjustFontLabel(page);
    addZScrollLabel(page);
    addZResizableLabel(page);
    addCommonLabelWidget(page);
    addZTextWidget(page);
}
