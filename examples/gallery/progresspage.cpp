#include "progresspage.h"

#include "circleprogess.h"
#include "controlpanel.h"
#include "look.h"
#include "page.h"
#include "pages.h"
#include "progressbar.h"

#include <QLabel>

using ZIRVOUI::CircleProgess;
using ZIRVOUI::ProgressBar;

namespace {

constexpr QSize BarSize(224, 24);
constexpr int BarValue = 40;
constexpr int BarPadding = 24;
constexpr int RingSide = 144;
constexpr int RingValue = 25;
constexpr int RingWidth = 12;
constexpr int WideRing = 32;
constexpr int FullCircle = 360;
constexpr int OpenArc = 270;
constexpr int OpenArcStart = 225;
constexpr QRgb Green = 0xff2fb36d;

QBrush barGradient()
{
    QLinearGradient gradient(0, 0, BarSize.width(), 0);
    gradient.setColorAt(0.0, Look::Blue);
    gradient.setColorAt(0.5, Look::Accent);
    gradient.setColorAt(1.0, Look::Yellow);
    return gradient;
}

ProgressBar *addBar(Exhibit *exhibit, const QString &caption, int value)
{
    auto *bar = new ProgressBar;
    bar->setFixedSize(BarSize);
    bar->setValue(value);
    exhibit->addSpecimen(caption, bar);
    return bar;
}

ProgressBar *addRoundBar(Exhibit *exhibit, const QString &caption, int value)
{
    ProgressBar *bar = addBar(exhibit, caption, value);
    bar->setRadius(BarSize.height() / 2);
    bar->setBgColor(Look::Gray);
    bar->setValueBrush(QColor(Look::Accent));
    return bar;
}

ProgressBar *addBarSpecimens(Exhibit *exhibit)
{
    ProgressBar *live = addBar(exhibit, "Plain, 40 %", BarValue);
    addRoundBar(exhibit, "Rounded", 60);
    addRoundBar(exhibit, "Gradient", 80)->setValueBrush(barGradient());

    ProgressBar *color = addRoundBar(exhibit, "Value colour, no brush", 50);
    color->setValueBrush(QBrush());
    color->setValueColor(Look::Yellow);

    addRoundBar(exhibit, "Padding, 100 %", 100)->setPadding(BarPadding);
    ProgressBar *range = addRoundBar(exhibit, "0 of −50 to 50", 50);
    range->setRange(-50, 50);
    range->setValue(0);
    addRoundBar(exhibit, "Full", 100)->setValueBrush(QColor(Green));
    addRoundBar(exhibit, "Empty", 0);
    return live;
}

QLabel *newValueReading(ProgressBar *bar)
{
    auto *reading = new QLabel;
    const auto showValue
        = [=](double value) { reading->setText(QString("valueChanged(%1)").arg(value)); };
    QObject::connect(bar, &ProgressBar::valueChanged, reading, showValue);
    showValue(bar->getValue());
    return reading;
}

void addBarControls(ControlPanel *controls, ProgressBar *bar)
{
    controls->addNumber("Value", -100, 200, BarValue, [=](int value) { bar->setValue(value); });
    controls->addNumber("Minimum", -100, 100, 0, repainting(bar, &ProgressBar::setMinValue));
    controls->addNumber("Maximum", 0, 200, 100, repainting(bar, &ProgressBar::setMaxValue));
    controls->addNumber("Padding", 0, BarSize.width() / 2, 0,
                        repainting(bar, &ProgressBar::setPadding));
    controls->addNumber("Radius", 0, BarSize.height() / 2, 0,
                        repainting(bar, &ProgressBar::setRadius));
    controls->addChoice<QBrush>(
        "Brush", {{"Blue", QColor(Qt::blue)}, {"Gradient", barGradient()}, {"None", QBrush()}},
        repainting(bar, &ProgressBar::setValueBrush));
    controls->addColor("Value colour", lineColors(), repainting(bar, &ProgressBar::setValueColor));
    controls->addColor("Background", fillColors(), repainting(bar, &ProgressBar::setBgColor));
    controls->addRow("Signal", newValueReading(bar));
}

void addProgressBar(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ProgressBar", "A bar that fills from the left, in a brush or else in the value colour",
        Exhibit::Full);
    addBarControls(exhibit->controls(), addBarSpecimens(exhibit));
}

CircleProgess *addRing(Exhibit *exhibit, const QString &caption, double value)
{
    auto *ring = new CircleProgess;
    ring->setFixedSize(RingSide, RingSide);
    ring->setBorderWidth(RingWidth);
    ring->setBgColor(QColor(Look::Card));
    ring->setCircleColor(QColor(Look::Gray));
    ring->setProgressColor(QColor(Look::Accent));
    ring->setValue(value);
    exhibit->addSpecimen(caption, ring);
    return ring;
}

QBrush ringGradient()
{
    QConicalGradient gradient(RingSide / 2, RingSide / 2, 90);
    gradient.setColorAt(0.0, Look::Yellow);
    gradient.setColorAt(1.0, Look::Blue);
    return gradient;
}

CircleProgess *addRingSpecimens(Exhibit *exhibit)
{
    CircleProgess *live = addRing(exhibit, "25 %", RingValue);
    addRing(exhibit, "75 %, wide border", 75)->setBorderWidth(WideRing);
    addRing(exhibit, "25 % from 3 o'clock", RingValue)->setStartAngle(90);

    CircleProgess *arc = addRing(exhibit, "100 % of a 270° arc", 100);
    arc->setStartAngle(OpenArcStart);
    arc->setProgressAngle(OpenArc);

    CircleProgess *inverted = addRing(exhibit, "Inverted, 25 %", RingValue);
    inverted->setCircleColor(QColor(Green));
    inverted->setProgressColor(QColor(Look::Gray));
    addRing(exhibit, "Gradient, 80 %", 80)->setProgressColor(ringGradient());
    addRing(exhibit, "Only the slice, 60 %", 60)->setCircleColor(QBrush());
    addRing(exhibit, "No hole, 40 %", 40)->setBorderWidth(RingSide / 2);
    return live;
}

void addRingControls(ControlPanel *controls, CircleProgess *ring)
{
    controls->addNumber("Value", -100, 200, RingValue, [=](int value) { ring->setValue(value); });
    controls->addNumber("Minimum", -100, 100, 0, repainting(ring, &CircleProgess::setMin));
    controls->addNumber("Maximum", 0, 200, 100, repainting(ring, &CircleProgess::setMax));
    controls->addNumber("Border", 0, RingSide / 2, RingWidth,
                        repainting(ring, &CircleProgess::setBorderWidth));
    controls->addNumber("Start angle", -FullCircle, FullCircle, 0,
                        repainting(ring, &CircleProgess::setStartAngle));
    controls->addNumber("Full arc", 0, FullCircle, FullCircle,
                        repainting(ring, &CircleProgess::setProgressAngle));
    controls->addColor("Slice", lineColors(), repainting(ring, &CircleProgess::setProgressColor));
    controls->addColor("Disc", fillColors(), repainting(ring, &CircleProgess::setCircleColor));
    controls->addColor("Hole", {"#25292f", "#14161a", "#1f5fae", "#2c6e49"},
                       repainting(ring, &CircleProgess::setBgColor));
}

void addCircleProgess(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "CircleProgess", "A ring that fills clockwise: a disc, a slice and a hole", Exhibit::Full);
    addRingControls(exhibit->controls(), addRingSpecimens(exhibit));
}

} // namespace

void fillProgressPage(Page *page)
{
    addProgressBar(page);
    addCircleProgess(page);
    addHProgressAnime(page);
    addCircularLoadingWidget(page);
    addLoadingWidget(page);
    addRotateProgress(page);
}
