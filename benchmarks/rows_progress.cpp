#include "row.h"

#include <QPainterPath>
#include <QProgressBar>
#include <QVariantAnimation>
#include <circleprogess.h>
#include <circularloadingwidget.h>
#include <hprogressanime.h>
#include <progressbar.h>

using ZIRVOUI::CircleProgess;
using ZIRVOUI::CircularLoadingWidget;
using ZIRVOUI::HProgressAnime;
using ZIRVOUI::ProgressBar;

namespace {

constexpr int Percent = 40;
constexpr int FullCircle = 360; // degrees
constexpr int AngleUnits = 16; // of QPainter in a degree
constexpr QRgb Green = 0xff2fb36d;
constexpr QRgb Gray = 0xff3f4650;
constexpr QRgb Ground = 0xff14161a;

const QString Sheet = QStringLiteral(
    "QProgressBar { background: #3f4650; border: none; border-radius: 12px; color: white; } "
    "QProgressBar::chunk { background: #2fb36d; border-radius: 12px; }");

QProgressBar *newStockBar()
{
    auto *bar = new QProgressBar;
    bar->setTextVisible(false);
    bar->setValue(Percent);
    return bar;
}

// ---- ring and bar

constexpr int RingWidth = 10;

Row ring()
{
    const auto library = [] {
        auto *ring = new CircleProgess;
        ring->setCircleColor(QColor(Gray));
        ring->setProgressColor(QColor(Green));
        ring->setBgColor(QColor(Ground));
        ring->setValue(Percent);
        return ring;
    };
    const auto bare = [](QPainter &painter, const QSize &size, int) {
        const int span = Percent * FullCircle / 100;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(Gray));
        painter.drawEllipse(wholeOf(size));
        painter.setBrush(QColor(Green));
        painter.drawPie(wholeOf(size), (FullCircle / 4 - span) * AngleUnits, span * AngleUnits);
        painter.setBrush(QColor(Ground));
        painter.drawEllipse(wholeOf(size).adjusted(RingWidth, RingWidth, -RingWidth, -RingWidth));
    };
    return {QStringLiteral("CircleProgess"), {120, 120}, library, bare, newStockBar, Sheet};
}

Row bar()
{
    const auto library = [] {
        auto *bar = new ProgressBar;
        bar->setRadius(12);
        bar->setBgColor(Gray);
        bar->setValueBrush(QColor(Green));
        bar->setValue(Percent);
        return bar;
    };
    const auto bare = [](QPainter &painter, const QSize &size, int) {
        const int length = size.width() * Percent / 100;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(Gray));
        painter.drawRoundedRect(wholeOf(size), 12, 12);
        painter.setBrush(QColor(Green));
        painter.drawRoundedRect(QRectF(0, 0, length, size.height()), 12, 12);
    };
    return {QStringLiteral("ProgressBar"), {240, 24}, library, bare, newStockBar, Sheet};
}

// ---- arc

constexpr int ArcPeriod = 2050; // ms
constexpr double ArcWidth = 8;
constexpr QRgb ArcColor = 0xffd2d442;
constexpr double GapPerRadius = 10; // in line widths

/*! What an animation is at each frame of its period, for a picture to find it without any work. */
QVector<double> valuesOf(int period, const QEasingCurve &easing,
                         const QVariantAnimation::KeyValues &keys)
{
    QVariantAnimation animation;
    animation.setDuration(period);
    animation.setEasingCurve(easing);
    animation.setKeyValues(keys);
    QVector<double> values;
    for (int time = 0; time < period; time += FrameTime) {
        animation.setCurrentTime(time);
        values << animation.currentValue().toDouble();
    }
    return values;
}

void drawArc(QPainter &painter, const QSize &size, int frame)
{
    static const QVector<double> lengths
        = valuesOf(ArcPeriod, QEasingCurve::InOutQuad,
                   {{0.0, 1.0}, {0.15, 10.0}, {0.6, 20.0}, {0.7, 20.0}, {1.0, 25.0}});
    static const QVector<double> offsets
        = valuesOf(ArcPeriod, QEasingCurve::InOutSine,
                   {{0.0, 0.0}, {0.15, 0.0}, {0.6, -6.0}, {0.7, -6.0}, {1.0, -30.0}});
    static const QVector<double> angles
        = valuesOf(ArcPeriod, QEasingCurve::Linear, {{0.0, 0}, {1.0, 719}});
    const int i = frame % lengths.size();
    const int radius = qMin(size.width(), size.height()) / 2;
    const int left = int(ArcWidth / 2) - radius;
    const QRect circle(left, left, -2 * left, -2 * left);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(size.width() / 2, size.height() / 2);
    painter.rotate(angles[i]);
    painter.setPen({QColor(Gray), ArcWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin});
    painter.drawEllipse(circle);
    QPen pen(QColor(ArcColor), ArcWidth);
    pen.setDashPattern({lengths[i], GapPerRadius * radius});
    pen.setDashOffset(offsets[i]);
    painter.setPen(pen);
    painter.drawEllipse(circle);
}

Row arc()
{
    const auto library = [] {
        auto *arc = new CircularLoadingWidget;
        arc->setLineWidth(ArcWidth);
        arc->setCirqueColor(Gray);
        pauseAnimations(*arc);
        return arc;
    };
    const auto advance = [](QWidget &widget, int frame) {
        const int frames = (ArcPeriod + FrameTime - 1) / FrameTime;
        setAnimationTime(widget, frame % frames * FrameTime);
    };
    return {QStringLiteral("CircularLoadingWidget"),
            {100, 100},
            library,
            drawArc,
            newBusyBar,
            Sheet,
            advance};
}

// ---- strip

constexpr int StripPeriod = 1200; // ms
constexpr double StripGrownAt = 0.2; // of the period
constexpr QRgb StripGround = 0xff3a3a3a;

Row strip()
{
    const auto library = [] {
        auto *strip = new HProgressAnime;
        pauseAnimations(*strip);
        return strip;
    };
    const QVector<double> lengths
        = valuesOf(StripPeriod, QEasingCurve::Linear, {{0.0, 0}, {StripGrownAt, 375}, {1.0, 375}});
    const QVector<double> places
        = valuesOf(StripPeriod, QEasingCurve::Linear, {{0.0, 0}, {StripGrownAt, 0}, {1.0, 1200}});
    const auto bare = [=](QPainter &painter, const QSize &size, int frame) {
        const int i = frame % lengths.size();
        painter.fillRect(wholeOf(size), QColor(StripGround));
        painter.fillRect(int(places[i]), 0, int(lengths[i]), size.height(), Qt::white);
    };
    const auto advance = [](QWidget &widget, int frame) {
        setAnimationTime(widget, frame * FrameTime % StripPeriod);
    };
    return {QStringLiteral("HProgressAnime"), {900, 10}, library, bare, newBusyBar, Sheet, advance};
}

} // namespace

Rows progressRows()
{
    return {ring(), bar(), arc(), strip()};
}
