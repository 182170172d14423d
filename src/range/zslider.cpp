#include "zslider.h"

#include "keptshape_p.h"
#include "truncated_p.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <cmath>

namespace ZIRVOUI {

struct ZSliderPrivate
{
    QLinearGradient grooveGradient;
    int grooveRadius = 0; // pixels
    int grooveThickness = 6; // pixels
    QColor grooveSlippedColor = QColor(15, 112, 226);
    QColor handleNormalColor = Qt::white;
    QColor handlePressColor = QColor(15, 112, 226);
    double handlePosition = 0; // of its left edge, pixels
    KeptShape slippedGroove;
    KeptShape handle;
};

namespace {

constexpr QRgb DefaultGrooveColor = 0xff797979;
constexpr QRgb DisabledHandleColor = 0xff797b81;
constexpr double DisabledGrooveOpacity = 0.3;

// Takes the whole part first, so that this is not the nearest multiple of every number.
double snapped(double exact, double step)
{
    const double whole = std::trunc(exact);
    if (qIsNull(step))
        return whole;
    const double multiple = step * std::trunc(exact / step);
    const double rest = std::fmod(whole, step);
    if (rest >= 0)
        return rest >= step / 2 ? multiple + step : multiple;
    return -rest >= step / 2 ? multiple - step : multiple;
}

QRectF grooveRect(const QSize &size, int thickness, double width)
{
    const qint64 top = (qint64(size.height()) - thickness) / 2;
    return {1, double(top), width, double(size.height() - 2 * top)};
}

// Qt looks at the slider once more after these two signals, so that no slot could delete it.  Here
// they are the last thing that happens to it.

void setValueWhileDown(QAbstractSlider &slider, int value)
{
    const QPointer<QAbstractSlider> guard(&slider);
    const int oldValue = slider.value();
    const int oldPosition = slider.sliderPosition();
    {
        const QSignalBlocker blocker(slider);
        slider.QAbstractSlider::setValue(value);
    }
    const int newValue = slider.value();
    if (oldPosition != newValue)
        Q_EMIT slider.sliderMoved(newValue);
    if (guard && (oldPosition != newValue || oldValue != newValue))
        Q_EMIT slider.valueChanged(newValue);
}

void setSliderUp(QAbstractSlider &slider)
{
    // A position that is not tracked becomes the value now, with the signals of that.
    if (slider.sliderPosition() != slider.value()) {
        slider.setSliderDown(false);
        return;
    }
    const bool wasDown = slider.isSliderDown();
    {
        const QSignalBlocker blocker(slider);
        slider.setSliderDown(false);
    }
    if (wasDown)
        Q_EMIT slider.sliderReleased();
}

} // namespace

ZSlider::ZSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
    , d(new ZSliderPrivate)
{
    setGrooveColor(DefaultGrooveColor);
}

ZSlider::~ZSlider() = default;

void ZSlider::addGradientColor(const QVector<QPair<double, const QColor &>> &stops)
{
    for (const auto &stop : stops) {
        if (!qIsNaN(stop.first))
            d->grooveGradient.setColorAt(stop.first, stop.second);
    }
}

void ZSlider::setGrooveColor(const QColor &color)
{
    d->grooveGradient.setColorAt(1, color);
}

void ZSlider::setGrooveRadius(const int &radius)
{
    d->grooveRadius = radius;
}

void ZSlider::setGrooveThickness(const int &thickness)
{
    d->grooveThickness = thickness;
}

void ZSlider::setGrooveSlippedColor(const QColor &color)
{
    d->grooveSlippedColor = color;
}

void ZSlider::setHandleNormalColor(const QColor &color)
{
    d->handleNormalColor = color;
}

void ZSlider::setHandlePressColor(const QColor &color)
{
    d->handlePressColor = color;
}

void ZSlider::setValue(int value)
{
    const QPointer<ZSlider> guard(this);
    if (isSliderDown())
        setValueWhileDown(*this, value);
    else
        QAbstractSlider::setValue(value);
    if (guard)
        calcHandlePosition();
}

void ZSlider::calcHandlePosition()
{
    const double range = double(maximum()) - minimum();
    const double way = double(width()) - height();
    d->handlePosition = range > 0 ? (double(value()) - minimum()) / range * way : 0;
    update();
}

void ZSlider::calcHandleValue(int x)
{
    const double way = double(width()) - height();
    if (qFuzzyIsNull(way))
        return;
    const double range = double(maximum()) - minimum();
    const double center = double(x) - height() / 2;
    const double exact = minimum() + range * center / way;
    setValue(truncated(snapped(exact, singleStep())));
}

void ZSlider::paintGroove()
{
    if (!testAttribute(Qt::WA_WState_InPaintEvent))
        return;
    d->grooveGradient.setStart(0, 0);
    d->grooveGradient.setFinalStop(width() - 1, 0);
    const int slipped = truncated(height() / 2 + d->handlePosition);
    const double radius = d->grooveRadius;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : DisabledGrooveOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(d->grooveGradient);
    painter.drawRoundedRect(grooveRect(size(), d->grooveThickness, width() - 2), radius, radius);
    painter.setBrush(d->grooveSlippedColor);
    d->slippedGroove.drawRoundedRect(painter, grooveRect(size(), d->grooveThickness, slipped),
                                     radius);
}

void ZSlider::paintHanle()
{
    if (!testAttribute(Qt::WA_WState_InPaintEvent))
        return;
    const QColor &color = isSliderDown() ? d->handlePressColor : d->handleNormalColor;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isEnabled() ? color : QColor(DisabledHandleColor));
    d->handle.drawEllipse(painter, QRect(truncated(d->handlePosition), 0, height(), height()));
}

void ZSlider::mousePressEvent(QMouseEvent *event)
{
    const QPointer<ZSlider> guard(this);
    setSliderDown(true);
    if (guard)
        calcHandleValue(event->x());
    if (guard)
        update();
}

void ZSlider::mouseMoveEvent(QMouseEvent *event)
{
    calcHandleValue(event->x());
}

void ZSlider::mouseReleaseEvent(QMouseEvent *)
{
    const QPointer<ZSlider> guard(this);
    setSliderUp(*this);
    if (guard)
        update();
}

void ZSlider::paintEvent(QPaintEvent *)
{
    paintGroove();
    paintHanle();
}

} // namespace ZIRVOUI
