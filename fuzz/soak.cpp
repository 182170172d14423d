// A day of everything that moves, in steps of a frame: soak [hours]
// Painting takes nearly all of the time, so each hour begins with a painted minute.

#include "circlebutton.h"
#include "circulardelegate.h"
#include "circularloadingwidget.h"
#include "hprogressanime.h"
#include "loadingwidget.h"
#include "rotateprogress.h"
#include "samples.h"
#include "sequence.h"
#include "stage.h"
#include "switchbutton.h"
#include "virtualtime.h"
#include "zgifwidget.h"
#include "zloadingdialog.h"
#include "zscrolllabel.h"
#include "zsvgwidget.h"
#include "ztoastdialog.h"

#include <QElapsedTimer>
#include <QImage>
#include <QMouseEvent>
#include <QMovie>
#include <QParallelAnimationGroup>
#include <QVariantAnimation>
#include <cstdio>
#include <cstdlib>
#include <sanitizer/allocator_interface.h>

using namespace ZIRVOUI;

namespace {

constexpr int Frame = 16; // ms
constexpr int Minute = 60 * 1000; // ms
constexpr int Hour = 60 * Minute;
constexpr int ArcPeriod = 2050; // ms, of CircularLoadingWidget
constexpr int StripPeriod = 1200; // ms, of HProgressAnime
constexpr int BlinkPeriod = 1000; // ms
constexpr int SpinnerTick = 6; // ms
constexpr int SpinnerTicks = 180; // of 2 degrees in a turn
constexpr int PressDelay = 500; // ms
constexpr int PressInterval = 100; // ms

void check(bool holds, const char *what)
{
    if (holds)
        return;
    printf("Not so at %lld ms: %s\n", static_cast<long long>(Stage::time().now()), what);
    std::exit(1);
}

void checkWithin(double least, double value, double most, const char *what)
{
    check(value >= least && value <= most, what);
}

/*! All widgets that move, side by side. */
struct Movers
{
    explicit Movers(QWidget *parent);
    void touch(qint64 now);
    void checkBounds() const;
    void checkExactly(qint64 now);

    LoadingWidget spinner;
    CircularLoadingWidget arc;
    HProgressAnime strip;
    RotateProgress burst;
    ZScrollLabel marquee;
    ZSvgWidget blinking;
    ZGifWidget gif;
    SwitchButton toggle;
    CircleButton pressed;
    ZToastDialog toast;
    ZLoadingDialog loading;
    qint64 start = Stage::time().now();
    qint64 reports = 0; // of the long press
    QImage firstSpinner;
};

QString sample(const char *name)
{
    return Samples::paths().filter(name).first();
}

Movers::Movers(QWidget *parent)
    : spinner(parent)
    , arc(parent)
    , strip(parent)
    , burst(parent)
    , marquee(QStringLiteral("A text that is longer than its label"), parent)
    , blinking(sample("/a.svg"), parent)
    , gif(sample("/a.gif"), parent)
    , toggle(parent)
    , pressed(sample("/a.svg"), parent)
    , toast(ToastConfirm, QStringLiteral("Done"), parent)
    , loading(QStringLiteral("Loading"), 2000, parent)
{
    const std::vector<QWidget *> all
        = {&spinner, &arc, &strip, &burst, &marquee, &blinking, &gif, &pressed};
    for (QWidget *widget : all) {
        widget->resize(40, 30);
        widget->show();
    }
    toggle.show();
    blinking.startBlinking();
    firstSpinner = pictureOf(spinner, 1);

    pressed.setLongPressRepeat(true);
    pressed.setLongPressDelayMS(PressDelay);
    pressed.setLongPressIntervalMS(PressInterval);
    QObject::connect(&pressed, &CircleButton::signal_longPressed, &pressed, [this] { ++reports; });
    const QPointF middle(20, 15);
    QMouseEvent press(QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&pressed, &press);
}

// What only moves when it is asked to.
void Movers::touch(qint64 now)
{
    constexpr int Pause = 250; // frames
    const qint64 frame = now / Frame;
    if (frame % Pause == 0)
        toggle.click();
    if (frame % Pause == 1)
        burst.startAnmition();
    if (frame % Pause == 2)
        toast.show();
    if (frame % Pause == 3)
        loading.show();
}

void Movers::checkBounds() const
{
    const auto *values = arc.findChild<CircularDelegate *>();
    checkWithin(0, values->angle(), 719, "the arc's angle is within two turns");
    checkWithin(1, values->dashLength(), 25, "the arc's length is within bounds");
    checkWithin(-30, values->dashOffset(), 0, "the arc's offset is within bounds");
    checkWithin(0, blinking.opacity(), 1, "the opacity is within 0 and 1");
    for (const auto *animation : strip.findChildren<QVariantAnimation *>())
        checkWithin(0, animation->currentValue().toInt(), 1200, "the strip is on its way");
    check(toggle.children().size() <= 2, "the switch has at most two slides at a time");
}

// At whole minutes, at which every frame but the arc's ends.
void Movers::checkExactly(qint64 now)
{
    const qint64 elapsed = now - start;
    check(reports == (elapsed - PressDelay) / PressInterval + 1, "every long press was reported");
    check(gif.movie()->state() == QMovie::Running, "the animation runs");
    check(gif.movie()->currentFrameNumber() >= 0, "it has a frame");
    check(arc.findChild<QParallelAnimationGroup *>()->currentLoop() == elapsed / ArcPeriod,
          "the arc's loops");
    for (const auto *animation : strip.findChildren<QVariantAnimation *>())
        check(animation->currentLoop() == elapsed / StripPeriod, "the strip's loops");
    if (elapsed % (SpinnerTick * SpinnerTicks) == 0)
        check(pictureOf(spinner, 1) == firstSpinner, "whole turns take the spinner where it was");
    if (elapsed % BlinkPeriod == 0)
        check(blinking.opacity() == 1, "the icon is opaque at each whole second");
}

void runHour(Movers &movers)
{
    for (int passed = 0; passed < Hour; passed += Frame) {
        Stage::window()->setUpdatesEnabled(passed < Minute);
        Stage::time().pass(Frame, Frame);
        movers.touch(Stage::time().now());
        movers.checkBounds();
        if (passed == Hour / 2)
            movers.marquee.setVisible(!movers.marquee.isHidden());
    }
    movers.checkExactly(Stage::time().now());
}

} // namespace

int main(int count, char **arguments)
{
    constexpr int WarmUp = 2; // hours
    const int hours = count > 1 ? atoi(arguments[1]) : 24;
    Stage::open();
    Movers movers(Stage::window());
    size_t before = 0;
    for (int hour = 1; hour <= hours; ++hour) {
        QElapsedTimer timer;
        timer.start();
        runHour(movers);
        const size_t now = __sanitizer_get_current_allocated_bytes();
        printf("hour %d: %zu bytes, %lld ms\n", hour, now, static_cast<long long>(timer.elapsed()));
        fflush(stdout);
        if (hour == WarmUp)
            before = now;
        check(now <= before || hour <= WarmUp, "no memory is lost");
    }
    return 0;
}
