#include "circulardelegate.h"

#include "circularloadingwidget.h"

namespace ZIRVOUI {

CircularDelegate::CircularDelegate(CircularLoadingWidget *widget)
    : QObject(widget)
    , m_widget(widget)
{
}

CircularDelegate::~CircularDelegate() = default;

double CircularDelegate::dashOffset() const
{
    return m_dashOffset;
}

void CircularDelegate::setDashOffset(double offset)
{
    m_dashOffset = offset;
    m_widget->update();
}

double CircularDelegate::dashLength() const
{
    return m_dashLength;
}

void CircularDelegate::setDashLength(double length)
{
    m_dashLength = length;
    m_widget->update();
}

int CircularDelegate::angle() const
{
    return m_angle;
}

void CircularDelegate::setAngle(int angle)
{
    m_angle = angle;
    m_widget->update();
}

} // namespace ZIRVOUI
