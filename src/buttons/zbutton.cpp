#include "zbutton.h"

#include "buttonstate_p.h"
#include "devicepixels_p.h"
#include "flipchecked_p.h"
#include "keptshape_p.h"
#include "laidouttext_p.h"
#include "widgetlook_p.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionButton>

namespace ZIRVOUI {

struct ZButtonPrivate
{
    QColor backgroundColor = QColor(49, 106, 255);
    QColor fontColor = Qt::white;
    int radius = 10; // pixels
    KeptShape background;
    LaidOutText laidOutText;
};

namespace {

constexpr int DragDistance = 20; // pixels up or down that are still a tap
constexpr int TextRaise = 16; // parts of the height

void drawBackground(QPainter &painter, const QRectF &rect, ZButtonPrivate &d)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(d.backgroundColor);
    d.background.drawRoundedRect(painter, rect, d.radius);
}

void drawIcon(QPainter &painter, const QRect &rect, const QIcon &icon)
{
    // With this attribute QIcon multiplies by a ratio of its own.
    const bool multiplied = QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps);
    const double ratio = pixelRatio(painter);
    const QSize size = rect.size() * (multiplied ? ratio / qApp->devicePixelRatio() : ratio);
    painter.drawPixmap(QRectF(rect), icon.pixmap(size), QRectF());
}

void drawText(QPainter &painter, QRect rect, const QString &text, ZButtonPrivate &d)
{
    rect.setTop(-(rect.height() / TextRaise));
    painter.setPen(d.fontColor);
    d.laidOutText.draw(painter, rect, Qt::AlignCenter, text);
}

} // namespace

ZButton::ZButton(QWidget *parent)
    : QPushButton(parent)
    , d(new ZButtonPrivate)
{
}

ZButton::ZButton(const QString &text, QWidget *parent)
    : ZButton(parent)
{
    setText(text);
}

ZButton::~ZButton() = default;

void ZButton::setBackgroundColor(const QColor &color)
{
    d->backgroundColor = color;
}

void ZButton::setFontColor(const QColor &color)
{
    d->fontColor = color;
}

void ZButton::setRadius(const int &radius)
{
    d->radius = radius;
}

void ZButton::setFontSize(int size)
{
    setFontPixelSize(*this, size);
}

void ZButton::setMouseEventToParent(bool enabled)
{
    m_mouseEventToParent = enabled;
}

void ZButton::mousePressEvent(QMouseEvent *event)
{
    const QPointer<ZButton> guard(this);
    QAbstractButton::mousePressEvent(event);
    if (!guard)
        return;

    m_moved = false;
    m_pressPosition = event->pos();
    m_pressOrigin = mapTo(window(), QPoint());
    passToParent(event);
}

void ZButton::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<ZButton> guard(this);
    if (!m_moved)
        QAbstractButton::mouseReleaseEvent(event);
    else if (event->button() == Qt::LeftButton)
        setDown(false);

    if (guard)
        passToParent(event);
}

void ZButton::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<ZButton> guard(this);
    QAbstractButton::mouseMoveEvent(event);
    if (!guard)
        return;

    // A parent that follows the finger takes the button along.
    const int distance = event->pos().y() - m_pressPosition.y();
    const int takenAlong = mapTo(window(), QPoint()).y() - m_pressOrigin.y();
    if (!rect().contains(event->pos()) || qAbs(distance) > DragDistance
        || qAbs(distance + takenAlong) > DragDistance)
        m_moved = true;
    passToParent(event);
}

void ZButton::passToParent(QMouseEvent *event) const
{
    if (m_mouseEventToParent)
        event->ignore();
}

void ZButton::nextCheckState()
{
    if (flipChecked(*this))
        Q_EMIT toggled(isChecked());
}

void ZButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(stateOpacity(option.state));

    if (option.icon.isNull())
        drawBackground(painter, rect(), *d);
    else
        drawIcon(painter, rect(), option.icon);
    drawText(painter, rect(), option.text, *d);
}

} // namespace ZIRVOUI
