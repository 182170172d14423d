#include "buttonspage.h"
#include "controlpanel.h"
#include "look.h"
#include "page.h"
#include "zimagebutton.h"

using ZIRVOUI::ZImageButton;

namespace {

constexpr QSize TileSize(200, 112);
constexpr int TileRadius = 16;
constexpr int TileIcon = 48;
constexpr int TileMargin = 12;
constexpr int SignSize = 32;

const char LampPath[] = ":/gallery/lamp.svg";
const char CheckPath[] = ":/gallery/check.svg";
const char HillsPath[] = ":/gallery/hills.png";

void layUpright(ZImageButton *tile)
{
    const int left = (TileSize.width() - TileIcon) / 2;
    const int textTop = TileMargin + TileIcon;
    tile->setIcoRect({left, TileMargin, TileIcon, TileIcon});
    tile->setTextRect({0, textTop, TileSize.width(), TileSize.height() - textTop});
    tile->update();
}

void layAcross(ZImageButton *tile)
{
    const int top = (TileSize.height() - TileIcon) / 2;
    const int textLeft = TileMargin + TileIcon;
    tile->setIcoRect({TileMargin, top, TileIcon, TileIcon});
    tile->setTextRect({textLeft, 0, TileSize.width() - textLeft, TileSize.height()});
    tile->update();
}

ZImageButton *addTile(Exhibit *exhibit, const QString &caption, const QString &icon = LampPath)
{
    auto *tile = new ZImageButton("Lamp", icon, CheckPath);
    tile->setFixedSize(TileSize);
    layUpright(tile);
    tile->setRadius(TileRadius);
    tile->setBgColor(Look::Gray);
    // A new tile shows its sign although it is not checked.
    tile->setSignVisible(false);
    exhibit->addSpecimen(caption, tile);
    return tile;
}

ZImageButton *addTileSpecimens(Exhibit *exhibit)
{
    ZImageButton *live = addTile(exhibit, "Icon above the text");
    addTile(exhibit, "Checked")->setChecked(true);
    addTile(exhibit, "Down")->setDown(true);

    ZImageButton *disabled = addTile(exhibit, "Checked, disabled");
    disabled->setChecked(true);
    disabled->setEnabled(false);

    ZImageButton *border = addTile(exhibit, "Border");
    border->setBorderWidth(4);
    border->setBorderColor(Look::Yellow);

    layAcross(addTile(exhibit, "Icon at the left"));

    ZImageButton *picture = addTile(exhibit, "Picture", QString());
    ZImageButton *large = addTile(exhibit, "Picture, large sign", QString());
    for (ZImageButton *tile : {picture, large}) {
        tile->setText("Hills");
        tile->setBgPicture(HillsPath);
    }
    large->setSingSize(TileIcon, TileIcon);
    large->setChecked(true);
    return live;
}

void addTileContentControls(ControlPanel *controls, ZImageButton *tile)
{
    controls->addText("Text", tile->text(), [=](const QString &text) { tile->setText(text); });
    controls->addColor("Text colour", lineColors(),
                       [=](const QColor &color) { tile->setFontColor(color); });
    controls->addChoice<void (*)(ZImageButton *)>(
        "Rectangles", {{"Icon on top", layUpright}, {"Icon at the left", layAcross}},
        [=](auto lay) { lay(tile); });
    controls->addChoice<QString>("Icon",
                                 {{"Lamp", LampPath}, {"Bell", ":/gallery/bell.svg"}, {"None", ""}},
                                 repainting(tile, &ZImageButton::loadIcoImage));
    controls->addSwitch("Sign", false, [=](bool on) { tile->setSignVisible(on); });
    controls->addNumber("Sign size", 16, TileSize.height() / 2, SignSize,
                        [=](int size) { tile->setSingSize(size, size); });
}

void addTileBodyControls(ControlPanel *controls, ZImageButton *tile)
{
    controls->addColor("Background", fillColors(), repainting(tile, &ZImageButton::setBgColor));
    controls->addChoice<QString>("Picture", {{"None", ""}, {"Hills", HillsPath}},
                                 [=](const QString &path) { tile->setBgPicture(path); });
    controls->addNumber("Radius", 0, TileSize.height() / 2, TileRadius,
                        repainting(tile, &ZImageButton::setRadius));
    controls->addNumber("Border", 0, 16, 0, repainting(tile, &ZImageButton::setBorderWidth));
    controls->addColor("Border tint", lineColors(),
                       [=](const QColor &color) { tile->setBorderColor(color); });
    controls->addSwitch("Enabled", true, [=](bool on) { tile->setEnabled(on); });
}

} // namespace

void addZImageButton(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZImageButton", "A checkable tile with icon, text and a sign while it is checked",
        Exhibit::Full);
    ZImageButton *live = addTileSpecimens(exhibit);
    addTileContentControls(exhibit->controls(), live);
    addTileBodyControls(exhibit->controls(), live);
}
