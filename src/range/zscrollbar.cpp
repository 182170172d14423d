#include "zscrollbar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionSlider>

namespace ZIRVOUI {

namespace {

constexpr int TrackMargin = 2;
constexpr double TrackRadius = 3;
constexpr double HandleRadius = 8;
constexpr int HoverDarkness = 120; // percent, as QColor::darker() takes it
constexpr int PressDarkness = 140;

void clipToTrack(QPainter &painter, const QRect &track)
{
    QPainterPath path;
    path.addRoundedRect(track, TrackRadius, TrackRadius);
    painter.setClipPath(path);
}

} // namespace

ZScrollBar::ZScrollBar(QWidget *parent)
    : ZScrollBar(Qt::Vertical, parent)
{
}

ZScrollBar::ZScrollBar(Qt::Orientation orientation, QWidget *parent)
    : QScrollBar(orientation, parent)
{
    setMouseTracking(true);
}

ZScrollBar::~ZScrollBar() = default;

void ZScrollBar::setBackGroudColor(const QColor &color)
{
    m_backgroundColor = color;
    update();
}

void ZScrollBar::setSliderColor(const QColor &color)
{
    m_sliderColor = color;
    update();
}

QRect ZScrollBar::handleRect() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
}

QColor ZScrollBar::handleColor() const
{
    QColor color = m_sliderColor;
    if (m_onHandle && m_hovered)
        color = color.darker(HoverDarkness);
    if (m_onHandle && m_pressed)
        color = color.darker(PressDarkness);
    return color;
}

void ZScrollBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().brush(QPalette::Current, QPalette::Window));

    constexpr int Margin = TrackMargin;
    const QRect track = rect().adjusted(Margin, Margin, -Margin, -Margin);
    if (track.isEmpty())
        return;
    clipToTrack(painter, track);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_backgroundColor);
    painter.drawRect(track);
    painter.setBrush(handleColor());
    painter.drawRoundedRect(handleRect(), HandleRadius, HandleRadius);
}

void ZScrollBar::mousePressEvent(QMouseEvent *event)
{
    m_onHandle = m_pressed = handleRect().contains(event->pos());
    QScrollBar::mousePressEvent(event);
}

void ZScrollBar::mouseReleaseEvent(QMouseEvent *event)
{
    m_pressed = false;
    m_onHandle = handleRect().contains(event->pos());
    QScrollBar::mouseReleaseEvent(event);
}

void ZScrollBar::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed)
        m_onHandle = m_hovered = handleRect().contains(event->pos());
    QScrollBar::mouseMoveEvent(event);
}

void ZScrollBar::leaveEvent(QEvent *event)
{
    m_hovered = m_pressed = m_onHandle = false;
    QWidget::leaveEvent(event);
}

} // namespace ZIRVOUI
