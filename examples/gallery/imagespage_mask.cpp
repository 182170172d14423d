#include "controlpanel.h"
#include "imagespage.h"
#include "look.h"
#include "maskwidget.h"
#include "page.h"
#include "roundedbutton.h"

#include <QLabel>
#include <QVBoxLayout>

using ZIRVOUI::MaskWidget;

namespace {

constexpr QSize MaskSize(232, 176);
constexpr int DefaultDistance = 100;
constexpr int DefaultRadius = 60;
constexpr int Percent = 100;

constexpr QSize SceneSize(488, 176);
constexpr int SceneColumns = 2;
constexpr QRect PaneRect(104, 12, 280, 152);
constexpr int PaneRadius = 24;
constexpr int PaneMargin = 16;
constexpr int ClockSize = 48; // px
constexpr QSize ButtonSize(144, 48);
constexpr QRgb ButtonColor = 0x60ffffff;

const char HillsPath[] = ":/gallery/hills.png";
const char BellPath[] = ":/gallery/bell.svg";

struct Blur
{
    int distance = DefaultDistance;
    int radius = DefaultRadius;
};

// The blur has to be known before the picture.
void setPicture(MaskWidget *mask, const QPixmap &picture, const Blur &blur)
{
    mask->setDistance(blur.distance);
    mask->setBlurRadius(blur.radius);
    mask->setPixmap(picture);
    mask->update();
}

MaskWidget *addMask(Exhibit *exhibit, const QString &caption, const Blur &blur)
{
    auto *mask = new MaskWidget;
    mask->setFixedSize(MaskSize);
    setPicture(mask, QPixmap(HillsPath), blur);
    exhibit->addSpecimen(caption, mask);
    return mask;
}

MaskWidget *addMasks(Exhibit *exhibit)
{
    MaskWidget *live = addMask(exhibit, "By default", {});
    addMask(exhibit, "Radius 15", {DefaultDistance, 15});
    addMask(exhibit, "Distance 0", {0, DefaultRadius});
    addMask(exhibit, "Distance −40", {-40, DefaultRadius});
    addMask(exhibit, "Half opaque", {DefaultDistance, 15})->setOpacity(0.5);
    addMask(exhibit, "Not blurred", {0, 0});
    return live;
}

/*! A pane of frosted glass before \a picture, with other widgets on it. */
void addPane(const QPixmap &picture, QWidget *parent)
{
    auto *pane = new MaskWidget(parent);
    pane->setGeometry(PaneRect);
    setPicture(pane, picture.copy(PaneRect), {0, PaneRadius});

    auto *button = new RoundedButton;
    button->setText("Good night");
    button->setFixedSize(ButtonSize);
    button->setRadius(ButtonSize.height() / 2);
    button->setBackgroundColor(QColor::fromRgba(ButtonColor));

    auto *column = new QVBoxLayout(pane);
    column->setContentsMargins(PaneMargin, PaneMargin, PaneMargin, PaneMargin);
    column->addWidget(newText("22:15", ClockSize, Look::Ink), 0, Qt::AlignCenter);
    column->addWidget(button, 0, Qt::AlignCenter);
}

void addScene(Exhibit *exhibit)
{
    const QPixmap picture
        = QPixmap(HillsPath).scaled(SceneSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    auto *scene = new QLabel;
    scene->setFixedSize(SceneSize);
    scene->setPixmap(picture);
    addPane(picture, scene);
    exhibit->addSpecimen("A pane before a picture, widgets in front", scene, SceneColumns);
}

void addMaskControls(ControlPanel *controls, MaskWidget *mask)
{
    const auto setBlur = [=](const Blur &blur) { setPicture(mask, mask->pixmap(), blur); };
    controls->addNumber("Distance", -160, 200, DefaultDistance, [=](int distance) {
        setBlur({distance, int(mask->blurRadius())});
    });
    controls->addNumber("Radius", 0, 100, DefaultRadius, [=](int radius) {
        setBlur({mask->distance(), radius});
    });
    controls->addNumber("Opacity, %", 0, Percent, Percent, [=](int opacity) {
        mask->setOpacity(double(opacity) / Percent);
        mask->update();
    });
    controls->addChoice<QString>(
        "Picture", {{"Hills", HillsPath}, {"Bell", BellPath}, {"None", ""}},
        [=](const QString &path) {
            setPicture(mask, QPixmap(path), {mask->distance(), int(mask->blurRadius())});
        });
}

} // namespace

void addMaskWidget(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "MaskWidget", "A blurred picture: a frosted ground for other widgets", Exhibit::Full);
    MaskWidget *live = addMasks(exhibit);
    addScene(exhibit);
    addMaskControls(exhibit->controls(), live);
}
