#include "movers.h"

#include "row.h"

#include <QLabel>
#include <QMovie>
#include <QProgressBar>
#include <QTimer>
#include <QVariantAnimation>
#include <hprogressanime.h>
#include <loadingwidget.h>
#include <rotateprogress.h>
#include <zgifwidget.h>
#include <zscrolllabel.h>
#include <zsvgwidget.h>

using namespace ZIRVOUI;

namespace {

constexpr int SpinnerInterval = 6; // ms
constexpr int MarqueeInterval = 10; // ms
constexpr int MarqueeStep = 3; // pixels
constexpr int ArcPeriod = 2050; // ms
constexpr int StripPeriod = 1200; // ms
constexpr int TurnPeriod = 2700; // ms, just less than it takes, so that it never bursts
constexpr int BlinkPeriod = 1000; // ms
constexpr int BusyBarHeight = 24;

const QString Title = QStringLiteral("A title that is longer than the label that shows it");

Canvas *newCanvas(const char *row)
{
    return new Canvas(rowNamed(QLatin1String(row)).bare);
}

/*! Bare calls at the ticks of a timer. */
Mover ticking(Canvas *canvas, int interval, const std::function<void()> &tick)
{
    auto *timer = new QTimer(canvas);
    timer->setInterval(interval);
    QObject::connect(timer, &QTimer::timeout, canvas, tick);
    return {canvas, [=] { timer->start(); }, [=] { timer->stop(); }};
}

/*! Bare calls at the frames of an animation. */
Mover animated(Canvas *canvas, int period)
{
    auto *animation = new QVariantAnimation(canvas);
    animation->setStartValue(0);
    animation->setEndValue(period / FrameTime);
    animation->setDuration(period);
    animation->setLoopCount(-1);
    QObject::connect(animation, &QVariantAnimation::valueChanged, canvas,
                     [=](const QVariant &frame) {
                         canvas->setFrame(frame.toInt());
                         canvas->update();
                     });
    return {canvas, [=] { animation->start(); }, [=] { animation->pause(); }};
}

Mover standing(QWidget *widget)
{
    const auto nothing = [] {};
    return {widget, nothing, nothing};
}

Mover newStockBar()
{
    auto *bar = new QProgressBar;
    bar->setMaximumHeight(BusyBarHeight);
    bar->setTextVisible(false);
    const auto stop = [=] {
        bar->setRange(0, 100);
        bar->setValue(50);
    };
    return {bar, [=] { bar->setRange(0, 0); }, stop};
}

Mover filmOf(QWidget *widget, QMovie *movie)
{
    movie->start();
    return {widget, [=] { movie->setPaused(false); }, [=] { movie->setPaused(true); }};
}

Mover newLibraryTurn()
{
    auto *turn = new RotateProgress;
    auto *restart = new QTimer(turn);
    restart->setInterval(TurnPeriod);
    QObject::connect(restart, &QTimer::timeout, turn, [=] { turn->startAnmition(); });
    const auto start = [=] {
        turn->startAnmition();
        restart->start();
    };
    const auto stop = [=] {
        pauseAnimations(*turn);
        restart->stop();
    };
    return {turn, start, stop};
}

Mover newLibraryMarquee()
{
    auto *label = new ZScrollLabel(Title);
    label->setStep(MarqueeStep);
    const auto setMoving = [=](bool isMoving) {
        label->setNeedScroll(isMoving);
        label->upateLabelRollingState();
    };
    return {label, [=] { setMoving(true); }, [=] { setMoving(false); }};
}

Mover newBareMarquee(int frame = 0)
{
    Canvas *canvas = newCanvas("ZScrollLabel, moving");
    return ticking(canvas, MarqueeInterval, [=]() mutable {
        canvas->setFrame(++frame);
        canvas->repaint();
    });
}

Mover newBareSpinner(int frame = 0)
{
    Canvas *canvas = newCanvas("LoadingWidget");
    return ticking(canvas, SpinnerInterval, [=]() mutable {
        canvas->setFrame(++frame);
        canvas->update();
    });
}

Mover newBareFilm()
{
    Canvas *canvas = newCanvas("ZGifWidget");
    auto *movie = new QMovie(samplePath("ball.gif"), {}, canvas);
    QObject::connect(movie, &QMovie::frameChanged, canvas, [=](int frame) {
        canvas->setFrame(frame);
        canvas->update();
    });
    return filmOf(canvas, movie);
}

Mover pausing(QWidget *widget)
{
    return {widget, [=] { resumeAnimations(*widget); }, [=] { pauseAnimations(*widget); }};
}

} // namespace

Mover newSpinner(Making making)
{
    if (making == OfStockWidgets)
        return newStockBar();
    if (making == OfBareCalls)
        return newBareSpinner();
    auto *spinner = new LoadingWidget;
    return {spinner, [=] { spinner->start(); }, [=] { spinner->stop(); }};
}

Mover newArc(Making making)
{
    if (making == OfStockWidgets)
        return newStockBar();
    if (making == OfBareCalls)
        return animated(newCanvas("CircularLoadingWidget"), ArcPeriod);
    return pausing(rowNamed(QStringLiteral("CircularLoadingWidget")).library());
}

Mover newStrip(Making making)
{
    if (making == OfStockWidgets)
        return newStockBar();
    if (making == OfBareCalls)
        return animated(newCanvas("HProgressAnime"), StripPeriod);
    return pausing(new HProgressAnime);
}

Mover newTurn(Making making)
{
    if (making == OfStockWidgets)
        return newStockBar();
    if (making == OfBareCalls)
        return animated(newCanvas("RotateProgress, turning"), TurnPeriod);
    return newLibraryTurn();
}

Mover newMarquee(Making making)
{
    if (making == OfStockWidgets)
        return standing(new QLabel(Title));
    return making == OfBareCalls ? newBareMarquee() : newLibraryMarquee();
}

Mover newBlinkingIcon(Making making)
{
    if (making == OfStockWidgets)
        return standing(rowNamed(QStringLiteral("ZSvgWidget")).stock());
    if (making == OfBareCalls)
        return animated(newCanvas("ZSvgWidget, blinking"), BlinkPeriod);
    auto *icon = new ZSvgWidget(samplePath("bell.svg"));
    return {icon, [=] { icon->startBlinking(); }, [=] { icon->stopBlinking(); }};
}

Mover newFilm(Making making)
{
    if (making == OfBareCalls)
        return newBareFilm();
    auto *label = making == OfLibrary ? new ZGifWidget(samplePath("ball.gif")) : new QLabel;
    if (making == OfStockWidgets)
        label->setMovie(new QMovie(samplePath("ball.gif"), {}, label));
    return filmOf(label, label->movie());
}
