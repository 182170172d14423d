#include "zscrolllabel.h"

#include "kept_p.h"
#include "laidouttext_p.h"
#include "truncated_p.h"

#include <QPainter>
#include <QTimerEvent>

namespace ZIRVOUI {

struct ZScrollLabelPrivate
{
    int timer = NoTimer;
    int step = 1; // pixels
    int offset = 1; // pixels
    int spacing = 72; // pixels
    QColor fontColor = Qt::white;
    ScrollDirection direction = ScrollHorizontal;
    int interval = 10; // milliseconds
    bool needScroll = true;

    Kept<int, QString, QFont> textWidth;
    LaidOutText laidOutText;

    static constexpr int NoTimer = 0; // as QObject::startTimer() has it
};

namespace {

int textWidth(const QLabel &label, ZScrollLabelPrivate &d)
{
    return d.textWidth.of({label.text(), label.font()},
                          [&] { return label.fontMetrics().horizontalAdvance(label.text()); });
}

// That of the text if it were wrapped, though it is drawn in one line.
qint64 textHeight(const QLabel &label, ZScrollLabelPrivate &d)
{
    if (label.text().isEmpty())
        return 0;
    const int width = textWidth(label, d);
    const int lines = label.width() > 0 ? (width + label.width() - 1) / label.width() : 1;
    return qint64(lines) * label.fontMetrics().height();
}

// What the text takes along its way; nothing in a direction that is none.
qint64 textLength(const QLabel &label, ZScrollLabelPrivate &d)
{
    switch (d.direction) {
    case ScrollHorizontal:
        return textWidth(label, d);
    case ScrollVertical:
        return textHeight(label, d);
    }
    return 0;
}

bool fits(const QLabel &label, ZScrollLabelPrivate &d)
{
    const int room = d.direction == ScrollHorizontal ? label.width() : label.height();
    return textLength(label, d) <= room;
}

int advancedOffset(const QLabel &label, ZScrollLabelPrivate &d)
{
    if (d.direction != ScrollHorizontal && d.direction != ScrollVertical)
        return d.offset;
    const qint64 offset = qint64(d.offset) + d.step;
    return offset <= textLength(label, d) + d.spacing ? truncated(double(offset)) : 0;
}

// Only one edge moves, and Qt centers the text between the edges.
QRectF movedRect(const QSize &size, ScrollDirection direction, double edge)
{
    QRectF rect(QPointF(), size);
    if (direction == ScrollHorizontal)
        rect.setLeft(edge);
    if (direction == ScrollVertical)
        rect.setTop(edge);
    return rect;
}

} // namespace

ZScrollLabel::ZScrollLabel(QWidget *parent)
    : QLabel(parent)
    , d(new ZScrollLabelPrivate)
{
}

ZScrollLabel::ZScrollLabel(const QString &text, QWidget *parent)
    : ZScrollLabel(parent)
{
    setText(text);
}

ZScrollLabel::~ZScrollLabel() = default;

void ZScrollLabel::setText(const QString &text)
{
    QLabel::setText(text);
    upateLabelRollingState();
}

void ZScrollLabel::setStep(int step)
{
    d->step = step;
    update();
}

void ZScrollLabel::setSpacing(int spacing)
{
    d->spacing = spacing;
    update();
}

void ZScrollLabel::setFontColor(const QColor &color)
{
    d->fontColor = color;
    update();
}

void ZScrollLabel::setScrollDirection(ScrollDirection direction)
{
    d->direction = direction;
}

void ZScrollLabel::setTimerMsc(int interval)
{
    d->interval = interval;
}

void ZScrollLabel::setNeedScroll(bool need)
{
    d->needScroll = need;
}

void ZScrollLabel::upateLabelRollingState()
{
    d->offset = 0;
    if (d->timer != d->NoTimer)
        killTimer(d->timer);
    d->timer = d->NoTimer;
    if (d->needScroll && d->interval >= 0 && !fits(*this, *d))
        d->timer = startTimer(d->interval);
}

void ZScrollLabel::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == d->timer && isVisible()) {
        d->offset = advancedOffset(*this, *d);
        repaint();
    }
    QLabel::timerEvent(event);
}

void ZScrollLabel::paintEvent(QPaintEvent *)
{
    const double edge = -double(d->offset);
    const QRectF textRect = movedRect(size(), d->direction, edge);
    const double copyEdge = edge + double(textLength(*this, *d)) + d->spacing;
    const QRectF copyRect = movedRect(size(), d->direction, copyEdge);

    QPainter painter(this);
    painter.setPen(d->fontColor);
    d->laidOutText.draw(painter, textRect, Qt::AlignVCenter, text());
    if (d->timer != d->NoTimer && copyRect.isValid())
        d->laidOutText.draw(painter, copyRect, Qt::AlignVCenter, text());
}

void ZScrollLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    upateLabelRollingState();
}

} // namespace ZIRVOUI
