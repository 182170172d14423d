#include "controlpanel.h"
#include "hprogressanime.h"
#include "page.h"
#include "progresspage.h"
#include "rotateprogress.h"
#include "stills.h"

#include <QLabel>
#include <QVariantAnimation>

using ZIRVOUI::HProgressAnime;
using ZIRVOUI::RotateProgress;

namespace {

constexpr QSize StripSize(904, 10);
constexpr int StripColumns = 4;
constexpr int StripScale = 4;

constexpr int RotateSide = 401;
constexpr int RotateColumns = 2;
constexpr int BurstSide = 641; // for the burst to stay inside
constexpr int RotateMiniature = 208;
constexpr int TurnTime = 2800; // ms

void addPicture(Exhibit *exhibit, const QString &caption, const QPixmap &picture)
{
    auto *label = new QLabel;
    label->setPixmap(picture);
    exhibit->addSpecimen(caption, label);
}

// Scaled to a quarter, so four times as high as it is to appear.
QPixmap stripAt(int ms)
{
    HProgressAnime strip;
    strip.resize(StripSize.width(), StripSize.height() * StripScale);
    freeze(&strip, ms);
    return miniature(strip, strip.size() / StripScale);
}

/*! Starts anew whenever its page is opened: it would have burst before anyone looks. */
class ShownProgress : public RotateProgress
{
protected:
    void showEvent(QShowEvent *) override
    {
        stopAnmition();
        startAnmition();
    }
};

QPixmap rotationAt(int ms)
{
    RotateProgress progress;
    progress.resize(BurstSide, BurstSide);
    progress.startAnmition();
    freeze(&progress, ms);
    // The last animation is the burst, which the end of the others has started.
    if (ms > TurnTime)
        progress.findChildren<QVariantAnimation *>().last()->setCurrentTime(ms - TurnTime);
    return miniature(progress, {RotateMiniature, RotateMiniature});
}

} // namespace

void addHProgressAnime(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "HProgressAnime", "A bar grows out of the left edge and slides off to the right",
        Exhibit::Full);
    auto *live = new HProgressAnime;
    live->setFixedSize(StripSize);
    exhibit->addSpecimen("Live", live, StripColumns);
    for (int ms : {120, 240, 500, 820})
        addPicture(exhibit, instantText(ms), stripAt(ms));
    exhibit->setStill([=] { freeze(live, 400); });

    ControlPanel *controls = exhibit->controls();
    controls->addNumber("Width", 40, StripSize.width(), StripSize.width(),
                        [=](int width) { live->setFixedWidth(width); });
    controls->addNumber("Height", 1, 48, StripSize.height(),
                        [=](int height) { live->setFixedHeight(height); });
}

void addRotateProgress(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "RotateProgress", "Dots turn while an arc grows round them, then the figure bursts",
        Exhibit::Full);
    auto *live = new ShownProgress;
    live->setFixedSize(RotateSide, RotateSide);
    exhibit->addSpecimen("Live", live, RotateColumns);
    for (int ms : {300, 1200, 2000, 2700, 2870, 3000})
        addPicture(exhibit, instantText(ms), rotationAt(ms));
    exhibit->setStill([=] { freeze(live, 1800); });

    const auto restart = [=] {
        live->stopAnmition();
        live->startAnmition();
    };
    exhibit->controls()->addActions("Turning",
                                    {{"Start", [=] { live->startAnmition(); }},
                                     {"Stop", [=] { live->stopAnmition(); }},
                                     {"Restart", restart}});
}
