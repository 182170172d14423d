#include "circularloadingwidget.h"
#include "controlpanel.h"
#include "loadingwidget.h"
#include "look.h"
#include "page.h"
#include "progresspage.h"
#include "stills.h"

using ZIRVOUI::CircularLoadingWidget;
using ZIRVOUI::LoadingWidget;

namespace {

constexpr int SpinnerSide = 128;
constexpr int ArcWidth = 8;
constexpr int RingWidth = 10;
constexpr int WideRing = 20;
constexpr int StepTime = 6; // ms

CircularLoadingWidget *addArc(Exhibit *exhibit, const QString &caption)
{
    auto *arc = new CircularLoadingWidget;
    arc->setFixedSize(SpinnerSide, SpinnerSide);
    arc->setLineWidth(ArcWidth);
    exhibit->addSpecimen(caption, arc);
    return arc;
}

QList<CircularLoadingWidget *> addMovingArcs(Exhibit *exhibit)
{
    CircularLoadingWidget *live = addArc(exhibit, "Live");
    CircularLoadingWidget *track = addArc(exhibit, "Colour and track");
    track->setColor(Look::Accent);
    track->setCirqueColor(Look::Gray);
    CircularLoadingWidget *thin = addArc(exhibit, "Thin line");
    thin->setLineWidth(ArcWidth / 2);
    CircularLoadingWidget *thick = addArc(exhibit, "Thick line");
    thick->setLineWidth(ArcWidth * 3 / 2);
    return {live, track, thin, thick};
}

LoadingWidget *addSpinner(Exhibit *exhibit, const QString &caption)
{
    auto *spinner = new LoadingWidget;
    spinner->setFixedSize(SpinnerSide, SpinnerSide);
    exhibit->addSpecimen(caption, spinner);
    return spinner;
}

void setColors(LoadingWidget *spinner, const QColor &head, const QColor &tail)
{
    spinner->addGradientColor({{0.0, head}, {1.0, tail}});
    spinner->update();
}

QList<LoadingWidget *> addMovingSpinners(Exhibit *exhibit)
{
    LoadingWidget *live = addSpinner(exhibit, "Live");
    LoadingWidget *wide = addSpinner(exhibit, "Wide ring");
    wide->setWidth(WideRing);
    LoadingWidget *fading = addSpinner(exhibit, "Fades out");
    setColors(fading, Look::Accent, Look::Card);
    LoadingWidget *yellow = addSpinner(exhibit, "Other colours");
    setColors(yellow, Look::Yellow, Look::Gray);
    return {live, wide, fading, yellow};
}

void turnTo(LoadingWidget *spinner, int ms)
{
    spinner->stop();
    for (int time = 0; time < ms; time += StepTime)
        spinner->updateRotate();
}

void addSpinnerControls(ControlPanel *controls, LoadingWidget *spinner)
{
    using Colors = std::pair<QRgb, QRgb>;
    controls->addNumber("Width", 1, SpinnerSide / 2, RingWidth,
                        [=](int width) { spinner->setWidth(width); });
    controls->addChoice<Colors>(
        "Colours",
        {{"Blue, white", Colors(0xff316aff, 0xffffffff)},
         {"Blue, fades out", Colors(Look::Accent, Look::Card)},
         {"Yellow, gray", Colors(Look::Yellow, Look::Gray)}},
        [=](const Colors &colors) { setColors(spinner, colors.first, colors.second); });
    controls->addActions(
        "Turning", {{"Start", [=] { spinner->start(); }}, {"Stop", [=] { spinner->stop(); }}});
}

} // namespace

void addCircularLoadingWidget(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "CircularLoadingWidget", "An arc that grows, shrinks and travels on a turning circle",
        Exhibit::Full);
    const QList<CircularLoadingWidget *> moving = addMovingArcs(exhibit);
    for (int ms : {300, 800, 1300, 1800}) {
        CircularLoadingWidget *still = addArc(exhibit, instantText(ms));
        still->setCirqueColor(Look::Gray);
        freeze(still, ms);
    }
    exhibit->setStill([=] {
        for (CircularLoadingWidget *arc : moving)
            freeze(arc, 1000);
    });

    CircularLoadingWidget *live = moving.first();
    ControlPanel *controls = exhibit->controls();
    controls->addColor("Arc", {"#d2d442", "#4da3ff", "#5fd38d", "white"},
                       [=](const QColor &color) { live->setColor(color); });
    controls->addColor("Track", fillColors(),
                       repainting(live, &CircularLoadingWidget::setCirqueColor));
    controls->addNumber("Line width", 1, SpinnerSide / 4, ArcWidth,
                        [=](int width) { live->setLineWidth(width); });
}

void addLoadingWidget(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "LoadingWidget", "A ring in a conical gradient that turns behind its round head",
        Exhibit::Full);
    const QList<LoadingWidget *> moving = addMovingSpinners(exhibit);
    for (int ms : {0, 270, 540, 810})
        turnTo(addSpinner(exhibit, instantText(ms)), ms);
    exhibit->setStill([=] {
        for (LoadingWidget *spinner : moving)
            turnTo(spinner, 900);
    });
    addSpinnerControls(exhibit->controls(), moving.first());
}
