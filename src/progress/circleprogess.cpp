#include "circleprogess.h"

#include "announcement_p.h"
#include "keptshape_p.h"
#include "truncated_p.h"

#include <QPainter>

namespace ZIRVOUI {

namespace {

constexpr double FullCircle = 360.0; // degrees
constexpr double Noon = 90.0; // degrees from 3 o'clock, where Qt counts from
constexpr double AngleUnits = 16.0; // of QPainter in a degree

void drawDisc(QPainter &painter, const QRectF &square, const QBrush &brush, KeptShape &disc)
{
    painter.setBrush(brush);
    disc.drawEllipse(painter, square);
}

void drawSlice(QPainter &painter, const QRectF &square, double startAngle, int span,
               const QBrush &brush)
{
    painter.setBrush(brush);
    painter.drawPie(square, truncated((Noon - span - startAngle) * AngleUnits),
                    truncated(span * AngleUnits));
}

} // namespace

CircleProgess::CircleProgess(QWidget *parent)
    : QWidget(parent)
    , m_disc(new KeptShape)
    , m_hole(new KeptShape)
{
}

CircleProgess::~CircleProgess() = default;

double CircleProgess::min() const
{
    return m_min;
}

void CircleProgess::setMin(double min)
{
    m_min = min;
}

double CircleProgess::max() const
{
    return m_max;
}

void CircleProgess::setMax(double max)
{
    m_max = max;
}

double CircleProgess::value() const
{
    return m_value;
}

void CircleProgess::setValue(double value)
{
    m_value = value;
    update();
    announceValue(*this, value);
}

double CircleProgess::startAngle() const
{
    return m_startAngle;
}

void CircleProgess::setStartAngle(double angle)
{
    m_startAngle = angle;
}

double CircleProgess::progressAngle() const
{
    return m_progressAngle;
}

void CircleProgess::setProgressAngle(double angle)
{
    m_progressAngle = angle;
}

int CircleProgess::borderWidth() const
{
    return m_borderWidth;
}

void CircleProgess::setBorderWidth(int width)
{
    m_borderWidth = width;
}

QBrush CircleProgess::bgColor() const
{
    return m_bgColor;
}

void CircleProgess::setBgColor(const QBrush &brush)
{
    m_bgColor = brush;
}

QBrush CircleProgess::circleColor() const
{
    return m_circleColor;
}

void CircleProgess::setCircleColor(const QBrush &brush)
{
    m_circleColor = brush;
}

QBrush CircleProgess::progressColor() const
{
    return m_progressColor;
}

void CircleProgess::setProgressColor(const QBrush &brush)
{
    m_progressColor = brush;
}

void CircleProgess::paintEvent(QPaintEvent *)
{
    const int side = qMin(width(), height());
    const double hole = side - 2.0 * m_borderWidth;
    const QRectF outer(0, 0, side, side);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    drawDisc(painter, outer, m_circleColor, *m_disc);
    if (m_max != m_min)
        drawSlice(painter, outer, m_startAngle, spanAngle(), m_progressColor);
    if (hole > 0)
        drawDisc(painter, {double(m_borderWidth), double(m_borderWidth), hole, hole}, m_bgColor,
                 *m_hole);
}

int CircleProgess::spanAngle() const
{
    const double fraction = (m_value - m_min) / (m_max - m_min);

    // By way of percent: another order of the factors rounds to other degrees.
    const int degrees = truncated(fraction * 100 * FullCircle / 100);
    return truncated(degrees * m_progressAngle / FullCircle);
}

} // namespace ZIRVOUI
