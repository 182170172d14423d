#include "zscrollbar.h"

#include "devicepixels_p.h"
#include "keptshape_p.h"

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

// Between its corners the track is as wide as its rectangle.
bool isBetweenCorners(const QRect &handle, const QRect &track)
{
    constexpr int Corner = int(TrackRadius);
    const QRect middle = track.adjusted(Corner, Corner, -Corner, -Corner);
    return (handle.top() >= middle.top() && handle.bottom() <= middle.bottom())
        || (handle.left() >= middle.left() && handle.right() <= middle.right());
}

void drawTrack(QPainter &painter, const QRect &track, const QColor &color, KeptShape &shape)
{
    if (color.alpha() == 0)
        return;
    painter.setBrush(color);
    if (qMin(track.width(), track.height()) > 1 && takesWholePixels(painter, track)) {
        shape.drawRoundedRect(painter, track, TrackRadius);
    } else { // a single pixel and parts of pixels are clipped otherwise than drawn
        clipToTrack(painter, track);
        painter.drawRect(track);
    }
}

void drawHandle(QPainter &painter, const QRect &handle, const QRect &track, const QColor &color,
                KeptShape &shape)
{
    painter.setBrush(color);
    if (handle.isValid() && isBetweenCorners(handle, track) && takesWholePixels(painter, track)) {
        painter.setClipRect(track); // which costs less
        shape.drawRoundedRect(painter, handle, HandleRadius);
    } else {
        clipToTrack(painter, track);
        painter.drawRoundedRect(handle, HandleRadius, HandleRadius);
    }
}

} // namespace

ZScrollBar::ZScrollBar(QWidget *parent)
    : ZScrollBar(Qt::Vertical, parent)
{
}

ZScrollBar::ZScrollBar(Qt::Orientation orientation, QWidget *parent)
    : QScrollBar(orientation, parent)
    , m_track(new KeptShape)
    , m_handle(new KeptShape)
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
    painter.setPen(Qt::NoPen);
    drawTrack(painter, track, m_backgroundColor, *m_track);
    drawHandle(painter, handleRect(), track, handleColor(), *m_handle);
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
