#include "controlpanel.h"
#include "labelspage.h"
#include "look.h"
#include "page.h"
#include "zresizablelabel.h"

using ZIRVOUI::ZResizableLabel;

namespace {

constexpr QSize DefaultMin(70, 30);
constexpr QSize SmallMax(232, 184);
constexpr QSize LiveMax(488, 184);
constexpr int LiveColumns = 2;

const char ShortText[] = "OK";
const char MediumText[] = "The window in the hall is open.";
const char LongText[]
    = "The window in the hall has been open for an hour, and it is going to rain. The heating is "
      "off until somebody closes it.";
const char Html[] = "<p><b>Hall</b></p><p>The window is <font color='#ebc232'>open</font> "
                    "<i>since 12:45</i>.</p><ul><li>Heating off</li><li>Alarm off</li></ul>";

void setUp(ZResizableLabel *label, const QSize &max)
{
    label->setMinSize(DefaultMin);
    label->setMaxSize(max);
    label->setAlignment(Qt::AlignCenter);
    label->setFontColor(Qt::white);
    label->setBackgroundColor(Look::Gray);
}

ZResizableLabel *addLabel(Exhibit *exhibit, const QString &caption, const QString &text)
{
    auto *label = new ZResizableLabel(text);
    setUp(label, SmallMax);
    // Not what the layout would make of a text that wraps.
    label->setFixedSize(label->sizeHint());
    exhibit->addSpecimen(caption, label);
    return label;
}

/*! Gives \a label its preferred size in the middle of its place. */
void fit(ZResizableLabel *label)
{
    label->resize(label->sizeHint());
    QRect rect = label->rect();
    rect.moveCenter(label->parentWidget()->rect().center());
    label->setGeometry(rect);
    label->update();
}

ZResizableLabel *addLiveLabel(Exhibit *exhibit)
{
    auto *place = new QWidget;
    place->setFixedSize(LiveMax);
    auto *label = new ZResizableLabel(MediumText, place);
    setUp(label, LiveMax);
    fit(label);
    exhibit->addSpecimen("Medium, in its preferred size", place, LiveColumns);
    return label;
}

void addLabels(Exhibit *exhibit)
{
    addLabel(exhibit, "Long", LongText);
    addLabel(exhibit, "Too long: maximum", QString("%1 %1").arg(LongText));
    addLabel(exhibit, "Short: minimum", ShortText);

    ZResizableLabel *colored = addLabel(exhibit, "Colours, top left", MediumText);
    colored->setFontColor(Look::Yellow);
    colored->setBackgroundColor(Look::Blue);
    colored->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    addLabel(exhibit, "Rich text", Html)->setTextFormat(Qt::RichText);
    addLabel(exhibit, "Rich text without its format", "The window is <b>open</b>.");
}

void addTextControls(ControlPanel *controls, ZResizableLabel *label)
{
    const auto setText = [=](const QString &text) {
        label->setText(text);
        fit(label);
    };
    controls->addText("Text", label->text(), setText);
    controls->addChoice<QString>(
        "Sample",
        {{"One sentence", MediumText}, {"One word", ShortText}, {"More", LongText}, {"HTML", Html}},
        setText);
    controls->addSwitch("Rich text", false, [=](bool on) {
        label->setTextFormat(on ? Qt::RichText : Qt::AutoText);
        label->update();
    });
}

void addSizeControls(ControlPanel *controls, ZResizableLabel *label)
{
    const auto setMin = [=](const QSize &size) {
        label->setMinSize(size);
        fit(label);
    };
    const auto setMax = [=](const QSize &size) {
        label->setMaxSize(size);
        fit(label);
    };
    controls->addNumber("Min. width", 0, LiveMax.width(), DefaultMin.width(), [=](int width) {
        setMin({width, label->minimumHeight()});
    });
    controls->addNumber("Min. height", 0, LiveMax.height(), DefaultMin.height(), [=](int height) {
        setMin({label->minimumWidth(), height});
    });
    controls->addNumber("Max. width", 0, LiveMax.width(), LiveMax.width(), [=](int width) {
        setMax({width, label->maximumHeight()});
    });
    controls->addNumber("Max. height", 0, LiveMax.height(), LiveMax.height(), [=](int height) {
        setMax({label->maximumWidth(), height});
    });
}

} // namespace

void addZResizableLabel(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZResizableLabel", "A label that grows with its text between a least and a largest size",
        Exhibit::Full);
    ZResizableLabel *live = addLiveLabel(exhibit);
    addLabels(exhibit);

    ControlPanel *controls = exhibit->controls();
    addTextControls(controls, live);
    addSizeControls(controls, live);
    controls->addColor("Text colour", lineColors(),
                       repainting(live, &ZResizableLabel::setFontColor));
    controls->addColor("Background", fillColors(),
                       repainting(live, &ZResizableLabel::setBackgroundColor));
}
