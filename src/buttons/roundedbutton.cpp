#include "roundedbutton.h"

#include "buttonstate_p.h"
#include "flipchecked_p.h"
#include "keptshape_p.h"
#include "laidouttext_p.h"
#include "roundedoutline_p.h"
#include "stretchedpicture_p.h"
#include "widgetlook_p.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionButton>

namespace {

constexpr int DownLightness = 130; // percent

// Beyond this a border is wider than any widget, and coordinates would soon leave int's range.
constexpr int MaxInset = 1 << 29;

void drawOutline(QPainter &painter, const QRectF &rect, double radius)
{
    const int corner = int(radius);
    painter.drawPath(ZIRVOUI::roundedOutline(rect.toRect(), {corner, corner, corner, corner}));
}

// Its edges are twice as soft as those of the outline alone.
void drawClippedOutline(QPainter &painter, const QRectF &rect, double radius)
{
    const int corner = int(radius);
    painter.setClipPath(ZIRVOUI::roundedOutline(rect.toRect(), {corner, corner, corner, corner}));
    drawOutline(painter, rect, radius);
    painter.setClipping(false);
}

} // namespace

RoundedButton::RoundedButton(QWidget *parent)
    : QPushButton(parent)
    , m_background(new ZIRVOUI::KeptShape)
    , m_border(new ZIRVOUI::KeptShape)
    , m_stretchedImage(new ZIRVOUI::StretchedPicture)
    , m_laidOutText(new ZIRVOUI::LaidOutText)
{
    setBackgroundColor(QBrush(Qt::transparent));
    setFontColor(Qt::white);
}

RoundedButton::~RoundedButton() = default;

void RoundedButton::setRadius(int radius)
{
    if (radius == m_radius)
        return;
    m_radius = radius;
    update();
}

int RoundedButton::radius()
{
    return m_radius;
}

void RoundedButton::setBackgroundColor(const QBrush &brush)
{
    ZIRVOUI::setPaletteBrush(*this, QPalette::Window, brush);
}

void RoundedButton::setBackgroundImage(const QPixmap &image)
{
    if (image.cacheKey() == m_backgroundImage.cacheKey())
        return;
    m_backgroundImage = image;
    update();
}

void RoundedButton::setBorderWidth(int width)
{
    m_borderWidth = width;
    update();
}

void RoundedButton::setBorderColor(QColor color)
{
    m_borderColor = color;
    update();
}

void RoundedButton::setFontSize(int size)
{
    ZIRVOUI::setFontPixelSize(*this, size);
}

void RoundedButton::setFontColor(QColor color)
{
    ZIRVOUI::setPaletteBrush(*this, QPalette::WindowText, color);
}

QPainterPath RoundedButton::getDrawPath(const QRect &rect)
{
    return ZIRVOUI::roundedOutline(rect, {m_radius, m_radius, m_radius, m_radius});
}

void RoundedButton::mousePressEvent(QMouseEvent *event)
{
    const QPointer<RoundedButton> guard(this);
    QAbstractButton::mousePressEvent(event);
    if (!guard)
        return;

    m_movedOut = false;
    Q_EMIT signal_mousePressed();
    // The base class ignores some presses, and Qt passes those on from the widget to its parent.
    if (!guard)
        event->accept();
}

void RoundedButton::mouseMoveEvent(QMouseEvent *event)
{
    if (!rect().contains(event->pos()))
        m_movedOut = true;
    QAbstractButton::mouseMoveEvent(event);
}

void RoundedButton::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<RoundedButton> guard(this);
    Q_EMIT signal_mouseReleased();
    if (guard && !m_movedOut && rect().contains(event->pos()))
        Q_EMIT signal_clicked();
    if (guard)
        QAbstractButton::mouseReleaseEvent(event);
}

void RoundedButton::nextCheckState()
{
    if (ZIRVOUI::flipChecked(*this))
        Q_EMIT toggled(isChecked());
}

void RoundedButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (m_backgroundImage.isNull())
        drawBackground(painter);
    painter.setClipPath(getDrawPath(rect()));
    m_stretchedImage->draw(painter, rect(), m_backgroundImage, rect());
    if (m_borderWidth > 0)
        drawBorder(painter);
    painter.setPen(palette().color(QPalette::WindowText));
    m_laidOutText->draw(painter, rect(), Qt::AlignCenter, text());
}

void RoundedButton::drawBackground(QPainter &painter)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const QColor color = palette().color(QPalette::Window);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ZIRVOUI::stateColor(color, option.state, DownLightness));
    m_background->draw(painter, drawClippedOutline, rect(), m_radius);
}

void RoundedButton::drawBorder(QPainter &painter)
{
    const int inset = qMin(m_borderWidth / 2, MaxInset);
    const QPen pen(m_borderColor, m_borderWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);

    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.setClipping(false);
    m_border->draw(painter, drawOutline, rect().adjusted(inset, inset, -inset, -inset), m_radius);
    painter.setClipping(true);
}
