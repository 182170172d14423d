#include "commonlabelwidget.h"
#include "controlpanel.h"
#include "labelspage.h"
#include "look.h"
#include "page.h"
#include "signalcounts.h"
#include "zclicklabel.h"

using ZIRVOUI::CommonLabelWidget;
using ZIRVOUI::ZClickLabel;

namespace {

constexpr QSize ColumnSize(232, 152);
constexpr QSize RowSize(232, 88);
constexpr int IconSide = 72;
constexpr int LargeIconSide = 96;
constexpr int Gap = 8;
constexpr int TitleSize = 22; // px
constexpr int TextSize = 16;

const char BellPath[] = ":/gallery/bell.svg";
const char GearPath[] = ":/gallery/gear.svg";
const char LampPath[] = ":/gallery/lamp.svg";
const char HillsPath[] = ":/gallery/hills.png";

CommonLabelWidget *addLabels(Exhibit *exhibit, const QString &caption,
                             Qt::Orientation orientation = Qt::Vertical)
{
    auto *labels = new CommonLabelWidget(nullptr, orientation);
    labels->setFixedSize(orientation == Qt::Vertical ? ColumnSize : RowSize);
    labels->setTitleText("Alarm");
    labels->titleLabel()->setTextSize(TitleSize);
    labels->setText("06:45");
    labels->textLabel()->setTextSize(TextSize);
    labels->textLabel()->setFontColor(Look::QuietInk);
    labels->setIconSize({IconSide, IconSide});
    labels->setSpacing(Gap);
    exhibit->addSpecimen(caption, labels);
    return labels;
}

CommonLabelWidget *addColumns(Exhibit *exhibit)
{
    CommonLabelWidget *live = addLabels(exhibit, "Column, SVG");
    live->setIcon(BellPath);

    CommonLabelWidget *picture = addLabels(exhibit, "Column, picture");
    picture->setIcon(QPixmap(HillsPath));
    picture->setTitleText("Wallpaper");
    picture->setText("Hills");

    CommonLabelWidget *corner = addLabels(exhibit, "Corner");
    corner->setIcon(QPixmap(HillsPath));
    corner->setIcoCornerVisible(true);

    CommonLabelWidget *untitled = addLabels(exhibit, "No title, large icon");
    untitled->setTitleVisible(false);
    untitled->setIconSize({LargeIconSide, LargeIconSide});
    untitled->setIcon(GearPath);
    untitled->setText("Settings");
    return live;
}

void addRows(Exhibit *exhibit)
{
    addLabels(exhibit, "Row, SVG", Qt::Horizontal)->setIcon(BellPath);
    addLabels(exhibit, "Row, picture", Qt::Horizontal)->setIcon(QPixmap(HillsPath));

    CommonLabelWidget *close = addLabels(exhibit, "Row, no text, no gap", Qt::Horizontal);
    close->setIcon(BellPath);
    close->setTextVisible(false);
    close->setSpacing(0);

    CommonLabelWidget *disabled = addLabels(exhibit, "Row, disabled", Qt::Horizontal);
    disabled->setIcon(BellPath);
    disabled->setEnabled(false);
}

void addTextControls(ControlPanel *controls, CommonLabelWidget *labels)
{
    controls->addText("Title", labels->titleLabel()->text(),
                      [=](const QString &text) { labels->setTitleText(text); });
    controls->addSwitch("Title visible", true, [=](bool on) { labels->setTitleVisible(on); });
    controls->addText("Text", labels->textLabel()->text(),
                      [=](const QString &text) { labels->setText(text); });
    controls->addSwitch("Text visible", true, [=](bool on) { labels->setTextVisible(on); });
    controls->addNumber("Spacing", -1, 40, Gap, [=](int spacing) { labels->setSpacing(spacing); });
}

void addIconControls(ControlPanel *controls, CommonLabelWidget *labels)
{
    // Only another SVG takes the place of an SVG, if need be one that does not exist.
    controls->addChoice<QString>(
        "SVG", {{"Bell", BellPath}, {"Gear", GearPath}, {"Lamp", LampPath}, {"None", ".svg"}},
        [=](const QString &path) { labels->setIcon(path); });
    controls->addChoice<QString>("Picture", {{"None", ""}, {"Hills", HillsPath}},
                                 [=](const QString &path) { labels->setIcon(QPixmap(path)); });
    controls->addNumber("Icon size", 16, LargeIconSide, IconSide, [=](int side) {
        labels->setIconSize({side, side});
    });
    controls->addSwitch("Corner", false, [=](bool on) { labels->setIcoCornerVisible(on); });
    controls->addSwitch("Enabled", true, [=](bool on) { labels->setEnabled(on); });
}

} // namespace

void addCommonLabelWidget(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "CommonLabelWidget", "A title, an icon and a text in a column or a row", Exhibit::Full);
    CommonLabelWidget *live = addColumns(exhibit);
    addRows(exhibit);
    addTextControls(exhibit->controls(), live);
    addIconControls(exhibit->controls(), live);

    auto *counts = new SignalCounts;
    counts->watch("title", live->titleLabel(), &ZClickLabel::signal_clicked);
    counts->watch("icon", live->icoLabel(), &ZClickLabel::signal_clicked);
    counts->watch("text", live->textLabel(), &ZClickLabel::signal_clicked);
    exhibit->controls()->addRow("Taps", counts, 2);
}
