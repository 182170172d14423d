#include "imagespage.h"

#include "controlpanel.h"
#include "page.h"
#include "pages.h"
#include "zsvgwidget.h"

#include <QLabel>

using ZIRVOUI::ZSvgWidget;

namespace {

constexpr int IconSize = 160;
constexpr int Percent = 100;

const char BellPath[] = ":/gallery/bell.svg";
const char GearPath[] = ":/gallery/gear.svg";
const char HillsPath[] = ":/gallery/hills.png";

ZSvgWidget *addIcon(Exhibit *exhibit, const QString &caption, const QString &path)
{
    auto *icon = new ZSvgWidget(path);
    icon->setFixedSize(IconSize, IconSize);
    exhibit->addSpecimen(caption, icon);
    return icon;
}

ZSvgWidget *addSvgWidgetSpecimens(Exhibit *exhibit)
{
    ZSvgWidget *live = addIcon(exhibit, "SVG", BellPath);
    addIcon(exhibit, "Bitmap", HillsPath);
    addIcon(exhibit, "Rotated", GearPath)->setRotateAngle(15.0);

    ZSvgWidget *blinking = addIcon(exhibit, "Blinking", BellPath);
    blinking->startBlinking();
    exhibit->setStill([=] {
        blinking->stopBlinking();
        blinking->setOpacity(0.6);
    });

    addIcon(exhibit, "SVG, disabled", BellPath)->setEnabled(false);
    addIcon(exhibit, "Bitmap, disabled", HillsPath)->setEnabled(false);
    addIcon(exhibit, "Half opaque", GearPath)->setOpacity(0.5);
    addIcon(exhibit, "Stretched", GearPath)->setFixedSize(IconSize * 3 / 2, IconSize);
    return live;
}

QString sizeText(const QSize &size)
{
    return QString("%1 × %2").arg(size.width()).arg(size.height());
}

void addSourceControls(ControlPanel *controls, ZSvgWidget *icon)
{
    auto *natural = new QLabel(sizeText(icon->sizeHint()));
    controls->addChoice<QString>("File",
                                 {{"Bell", BellPath}, {"Gear", GearPath}, {"Hills", HillsPath}},
                                 [=](const QString &path) {
                                     icon->loadSvgImage(path);
                                     natural->setText(sizeText(icon->sizeHint()));
                                 });
    controls->addChoice<QString>("Bitmap", {{"None", ""}, {"Hills", HillsPath}},
                                 [=](const QString &path) { icon->setmPixmap(QPixmap(path)); });
    controls->addRow("Natural size", natural);
}

void addSvgWidget(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZSvgWidget", "An icon, SVG or bitmap, which fills the widget, blinks and turns",
        Exhibit::Full);
    ZSvgWidget *live = addSvgWidgetSpecimens(exhibit);
    ControlPanel *controls = exhibit->controls();

    addSourceControls(controls, live);
    controls->addNumber("Angle", -180, 180, 0, [=](int angle) { live->setRotateAngle(angle); });
    controls->addNumber("Opacity, %", 0, Percent, Percent,
                        [=](int opacity) { live->setOpacity(double(opacity) / Percent); });
    controls->addNumber("Size", 16, IconSize, IconSize,
                        [=](int size) { live->setFixedSize(size, size); });
    const auto stopBlinking = [=] {
        live->stopBlinking();
        live->update();
    };
    controls->addActions("Blinking",
                         {{"Start", [=] { live->startBlinking(); }}, {"Stop", stopBlinking}});
    controls->addSwitch("Enabled", true, [=](bool on) { live->setEnabled(on); });
}

} // namespace

void fillImagesPage(Page *page)
{
    addSvgWidget(page);
    addZGifWidget(page);
    addMaskWidget(page);
}
