#include "rangepage.h"

#include "controlpanel.h"
#include "look.h"
#include "page.h"
#include "pages.h"
#include "signalcounts.h"
#include "zslider.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

using ZIRVOUI::ZSlider;

namespace {

constexpr int LiveColumns = 4;
constexpr int LiveWidth = 904;
constexpr QSize SliderSize(224, 36);
constexpr int SliderValue = 40;
constexpr int ThickGroove = 16;

/*! Keeps the handle of a slider where its value is, which the slider does only for the mouse. */
class HandlePlacer : public QObject
{
public:
    explicit HandlePlacer(ZSlider *slider)
        : QObject(slider)
        , m_slider(slider)
    {
        slider->installEventFilter(this);
        connect(slider, &ZSlider::rangeChanged, slider, &ZSlider::calcHandlePosition);
        connect(slider, &ZSlider::valueChanged, slider, &ZSlider::calcHandlePosition);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            m_slider->calcHandlePosition();
        return false;
    }

private:
    ZSlider *m_slider;
};

ZSlider *newSlider(int value)
{
    auto *slider = new ZSlider;
    new HandlePlacer(slider);
    slider->setFixedHeight(SliderSize.height());
    slider->setValue(value);
    return slider;
}

ZSlider *addSlider(Exhibit *exhibit, const QString &caption, int value)
{
    ZSlider *slider = newSlider(value);
    slider->setFixedWidth(SliderSize.width());
    exhibit->addSpecimen(caption, slider);
    return slider;
}

void addGradient(ZSlider *slider)
{
    const QColor cold = Look::Accent;
    const QColor mild = Qt::white;
    const QColor warm = Look::Yellow;
    slider->addGradientColor({{0.0, cold}, {0.5, mild}, {1.0, warm}});
}

ZSlider *addLiveSlider(Exhibit *exhibit)
{
    ZSlider *slider = newSlider(SliderValue);
    auto *place = new QWidget;
    place->setFixedWidth(LiveWidth);
    auto *row = new QHBoxLayout(place);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(slider);
    exhibit->addSpecimen("As wide as its layout, 40 %", place, LiveColumns);
    return slider;
}

void addSliderSpecimens(Exhibit *exhibit)
{
    addSlider(exhibit, "Plain", SliderValue);
    addGradient(addSlider(exhibit, "Gradient", SliderValue));
    ZSlider *whole = addSlider(exhibit, "Gradient alone", SliderValue);
    addGradient(whole);
    whole->setGrooveSlippedColor(Qt::transparent);

    ZSlider *thick = addSlider(exhibit, "Thick and rounded", 60);
    thick->setGrooveThickness(ThickGroove);
    thick->setGrooveRadius(ThickGroove / 2);
    thick->setGrooveColor(Look::Gray);
    thick->setGrooveSlippedColor(Look::Yellow);
    thick->setHandlePressColor(Qt::white);

    addSlider(exhibit, "Steps of 25", 75)->setSingleStep(25);
    ZSlider *range = addSlider(exhibit, "0 of −50 to 50", 50);
    range->setRange(-50, 50);
    range->setValue(0);
    addSlider(exhibit, "Down", SliderValue)->setSliderDown(true);
    addSlider(exhibit, "Disabled", SliderValue)->setEnabled(false);
}

void addSliderValueControls(ControlPanel *controls, ZSlider *slider)
{
    controls->addNumber("Value", -100, 200, SliderValue,
                        [=](int value) { slider->setValue(value); });
    controls->addNumber("Minimum", -100, 0, 0, [=](int value) { slider->setMinimum(value); });
    controls->addNumber("Maximum", 0, 200, 100, [=](int value) { slider->setMaximum(value); });
    controls->addNumber("Step", 0, 50, slider->singleStep(),
                        [=](int step) { slider->setSingleStep(step); });
    controls->addNumber("Width", SliderSize.height(), LiveWidth, LiveWidth,
                        [=](int width) { slider->parentWidget()->setFixedWidth(width); });
    controls->addSwitch("Enabled", true, [=](bool on) { slider->setEnabled(on); });
}

void addSliderLookControls(ControlPanel *controls, ZSlider *slider)
{
    controls->addNumber("Thickness", 0, SliderSize.height(), 6,
                        repainting(slider, &ZSlider::setGrooveThickness));
    controls->addNumber("Radius", 0, SliderSize.height() / 2, 0,
                        repainting(slider, &ZSlider::setGrooveRadius));
    controls->addColor("Groove", fillColors(), repainting(slider, &ZSlider::setGrooveColor));
    controls->addColor("Slipped", lineColors(),
                       repainting(slider, &ZSlider::setGrooveSlippedColor));
    controls->addColor("Handle", lineColors(), repainting(slider, &ZSlider::setHandleNormalColor));
    controls->addColor("Pressed", lineColors(), repainting(slider, &ZSlider::setHandlePressColor));
}

void addZSlider(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZSlider", "A groove in a gradient and a round handle that jumps under the finger",
        Exhibit::Full);
    ZSlider *live = addLiveSlider(exhibit);
    addSliderSpecimens(exhibit);
    addSliderValueControls(exhibit->controls(), live);
    addSliderLookControls(exhibit->controls(), live);

    auto *counts = new SignalCounts;
    counts->watch("sliderPressed", live, &ZSlider::sliderPressed);
    counts->watch("sliderReleased", live, &ZSlider::sliderReleased);
    exhibit->controls()->addRow("Signal", newValueReading(live));
    exhibit->controls()->addRow("Count", counts, 2);
}

} // namespace

QLabel *newValueReading(QAbstractSlider *slider)
{
    auto *reading = new QLabel;
    const auto showValue
        = [=](int value) { reading->setText(QString("valueChanged(%1)").arg(value)); };
    QObject::connect(slider, &QAbstractSlider::valueChanged, reading, showValue);
    showValue(slider->value());
    return reading;
}

void fillRangePage(Page *page)
{
    addZSlider(page);
    addZScrollBar(page);
}
