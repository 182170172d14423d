#include "progressbar.h"

#include "announcement_p.h"
#include "keptshape_p.h"
#include "truncated_p.h"

#include <QPainter>

namespace ZIRVOUI {

namespace {

void drawBar(QPainter &painter, const QSizeF &size, int radius, const QBrush &brush, KeptShape &bar)
{
    painter.setBrush(brush);
    bar.drawRoundedRect(painter, QRectF(QPointF(), size), radius);
}

} // namespace

ProgressBar::ProgressBar(QWidget *parent)
    : QWidget(parent)
    , m_background(new KeptShape)
    , m_bar(new KeptShape)
{
    setBgColor(Qt::darkGray);
    setPadding(0);
    setRadius(0);
    setValueBrush(Qt::blue);
    setRange(0, 100);
    setValue(0);
}

ProgressBar::~ProgressBar() = default;

double ProgressBar::getMinValue() const
{
    return m_minValue;
}

double ProgressBar::getMaxValue() const
{
    return m_maxValue;
}

double ProgressBar::getValue() const
{
    return m_curValue;
}

bool ProgressBar::getPercent() const
{
    return m_percent;
}

int ProgressBar::getPadding() const
{
    return m_padding;
}

int ProgressBar::getRadius() const
{
    return m_radius;
}

QBrush ProgressBar::getValueBrush() const
{
    return m_valueBrush;
}

QColor ProgressBar::getValueColor() const
{
    return m_valueColor;
}

QColor ProgressBar::getBgColor() const
{
    return m_bgColor;
}

QColor ProgressBar::getTipColor() const
{
    return m_tipColor;
}

QColor ProgressBar::getTextColor() const
{
    return m_textColor;
}

void ProgressBar::setRange(double minValue, double maxValue)
{
    setMaxValue(maxValue);
    setMinValue(minValue);
}

void ProgressBar::setRange(int minValue, int maxValue)
{
    setRange(double(minValue), double(maxValue));
}

void ProgressBar::setMinValue(double minValue)
{
    m_minValue = minValue;
}

void ProgressBar::setMaxValue(double maxValue)
{
    m_maxValue = maxValue;
}

void ProgressBar::setValue(double value)
{
    if (value > m_maxValue)
        value = m_maxValue;
    if (m_minValue > value)
        value = m_minValue;
    m_curValue = value;
    announceValue(*this, value);
    Q_EMIT valueChanged(value);
}

void ProgressBar::setValue(int value)
{
    if (value > m_maxValue)
        value = truncated(m_maxValue);
    if (m_minValue > value)
        value = truncated(m_minValue);
    m_curValue = value;
    update();
    announceValue(*this, value);
    Q_EMIT valueChanged(value);
}

void ProgressBar::setPercent(bool percent)
{
    m_percent = percent;
}

void ProgressBar::setPadding(int padding)
{
    m_padding = padding;
}

void ProgressBar::setRadius(int radius)
{
    m_radius = radius;
}

void ProgressBar::setValueBrush(const QBrush &valueBrush)
{
    m_valueBrush = valueBrush;
}

void ProgressBar::setValueColor(const QColor &valueColor)
{
    m_valueColor = valueColor;
}

void ProgressBar::setBgColor(const QColor &bgColor)
{
    m_bgColor = bgColor;
}

void ProgressBar::setTipColor(const QColor &tipColor)
{
    m_tipColor = tipColor;
}

void ProgressBar::setTextColor(const QColor &textColor)
{
    m_textColor = textColor;
}

void ProgressBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setPen(Qt::NoPen);

    const bool hasBrush = m_valueBrush != QBrush(Qt::NoBrush);
    drawBar(painter, size(), m_radius, m_bgColor, *m_background);
    drawBar(painter, QSizeF(fillLength(), height()), m_radius,
            hasBrush ? m_valueBrush : QBrush(m_valueColor), *m_bar);
}

int ProgressBar::fillLength() const
{
    if (m_maxValue == m_minValue)
        return 0;
    const double fraction = (m_curValue - m_minValue) / (m_maxValue - m_minValue);
    return truncated((width() - 2.0 * m_padding) * fraction);
}

} // namespace ZIRVOUI
