#include "switchbutton.h"

#include "flipchecked_p.h"
#include "keptshape_p.h"
#include "laidouttext_p.h"

#include <QPainter>
#include <QPointer>
#include <QPropertyAnimation>

namespace ZIRVOUI {

namespace {

constexpr int CaptionSize = 10; // points

// Leaves nothing but effects and rendering to the widget's font.
QFont newCaptionFont()
{
    QFont font(QStringLiteral("Arial"), CaptionSize, QFont::Normal, false);
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    font.setFamilies({font.family()});
#endif
    return font;
}

} // namespace

class SwitchButtonPrivate
{
public:
    explicit SwitchButtonPrivate(SwitchButton *owner)
        : q(owner)
    {
    }

    void init(bool autoToggle);
    void followState(int state);
    void slideKnob(const QVariant &from, const QVariant &to);

    int offset = 0; // pixels
    double margin = 8.0; // pixels
    double dashLength = 7.0; // pixels
    QColor knobColor = Qt::white;
    QColor checkedBackground = QColor(57, 158, 251);
    QColor uncheckedBackground = QColor(121, 123, 129, 76);
    bool tristate = false;
    int checkState = Qt::Unchecked;
    int previousState = Qt::Unchecked;
    QString checkText;
    QString noCheckText;
    bool isFlipping = false; // nextCheckState() is at work
    SwitchButton *q;

    const QFont captionFont = newCaptionFont();
    LaidOutText laidOutCaption;
    KeptShape track;
    KeptShape knob;
};

namespace {

constexpr QSize FixedSize(119, 68);
constexpr int SlideDuration = 120; // ms
constexpr double DisabledOpacity = 0.4;
constexpr QRgb DashColor = 0xff1f81dd;
constexpr double DashWidth = 2.0;
constexpr double TextMargin = 4.0;

// The middle is a whole pixel, as the track's radius is.
QRectF knobRect(const SwitchButtonPrivate &d, const QSize &size)
{
    const double diameter = size.height() - 2 * d.margin;
    const double middle = size.height() / 2;
    return {d.offset + d.margin, middle - diameter / 2, diameter, diameter};
}

void drawTrack(QPainter &painter, const QSize &size, const QColor &color, KeptShape &track)
{
    const int radius = size.height() / 2;
    painter.setBrush(color);
    track.drawRoundedRect(painter, QRectF(QPointF(), size), radius);
}

void drawDash(QPainter &painter, const QPointF &center, double length)
{
    const QPointF half(length / 2, 0);
    painter.setPen({QColor(DashColor), DashWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin});
    painter.drawLine(center - half, center + half);
}

void drawCaption(QPainter &painter, const QSize &size, Qt::Alignment side, const QString &text,
                 SwitchButtonPrivate &d)
{
    painter.setFont(d.captionFont);
    painter.setPen(Qt::white);
    const QRectF rect(TextMargin, 0, size.width() - 2 * TextMargin, size.height());
    d.laidOutCaption.draw(painter, rect, int(side | Qt::AlignVCenter), text);
}

} // namespace

void SwitchButtonPrivate::init(bool autoToggle)
{
    q->setCheckable(true);
    q->setAttribute(Qt::WA_MouseTracking);
    q->setForegroundRole(QPalette::WindowText);
    q->setAttribute(Qt::WA_MacShowFocusRect);

    if (autoToggle) {
        QObject::connect(q, &QAbstractButton::toggled, q, [this](bool checked) {
            q->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
        });
    }
    QObject::connect(q, &SwitchButton::stateChanged, q, [this](int state) { followState(state); });
}

void SwitchButtonPrivate::followState(int state)
{
    const bool on = state == Qt::PartiallyChecked || state == Qt::Checked;
    if (!on) {
        slideKnob(offset, 0);
    } else if (previousState == Qt::Unchecked) {
        const double margin = q->margin();
        const double end = q->width() - (q->height() - 2 * margin) - 2 * margin;
        slideKnob(0, qIsFinite(end) ? end : 0.0);
    }

    q->blockSignals(true);
    q->setChecked(on);
    q->blockSignals(false);
}

void SwitchButtonPrivate::slideKnob(const QVariant &from, const QVariant &to)
{
    auto *animation = new QPropertyAnimation(q, "offset", q);
    animation->setStartValue(from);
    animation->setEndValue(to);
    animation->setDuration(SlideDuration);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

SwitchButton::SwitchButton(QWidget *parent, bool autoToggle)
    : QAbstractButton(parent)
    , d(new SwitchButtonPrivate(this))
{
    d->init(autoToggle);
    setFixedSize(FixedSize);
}

SwitchButton::~SwitchButton() = default;

double SwitchButton::margin()
{
    return d->margin;
}

void SwitchButton::setMargin(double margin)
{
    d->margin = margin;
    update();
}

QColor SwitchButton::checkedBackground()
{
    return d->checkedBackground;
}

void SwitchButton::setCheckedBackground(const QColor &color)
{
    d->checkedBackground = color;
    update();
}

QColor SwitchButton::nocheckedBackground()
{
    return d->uncheckedBackground;
}

void SwitchButton::setNocheckedBackground(const QColor &color)
{
    d->uncheckedBackground = color;
    update();
}

Qt::CheckState SwitchButton::checkState() const
{
    return Qt::CheckState(d->checkState);
}

void SwitchButton::setCheckState(Qt::CheckState state)
{
    const QPointer<SwitchButton> guard(this);
    if (state != d->checkState) {
        d->previousState = d->checkState;
        d->checkState = state;
        Q_EMIT stateChanged(state);
    }
    if (guard)
        update();
}

bool SwitchButton::isTristate() const
{
    return d->tristate;
}

void SwitchButton::setTristate(bool tristate)
{
    d->tristate = tristate;
}

void SwitchButton::setCheckText(const QString &text)
{
    d->checkText = text;
}

void SwitchButton::setNoCheckText(const QString &text)
{
    d->noCheckText = text;
}

int SwitchButton::offset()
{
    return d->offset;
}

void SwitchButton::setOffset(int offset)
{
    d->offset = offset;
    update();
}

void SwitchButton::enterEvent(QEvent *)
{
    setCursor(Qt::PointingHandCursor);
    update();
}

void SwitchButton::leaveEvent(QEvent *)
{
    setCursor(Qt::ArrowCursor);
    update();
}

void SwitchButton::checkStateSet()
{
    const bool blockedByOthers = signalsBlocked() && !d->isFlipping;
    if (!blockedByOthers || d->previousState == Qt::PartiallyChecked
        || d->checkState == Qt::PartiallyChecked)
        return;

    const int state = isChecked() ? Qt::Checked : Qt::Unchecked;
    if (d->checkState == state)
        return;
    d->checkState = state;
    const int end = width() - height();
    if (isChecked())
        d->slideKnob(0, end);
    else
        d->slideKnob(end, 0);
}

void SwitchButton::nextCheckState()
{
    const QPointer<SwitchButton> guard(this);
    d->isFlipping = !signalsBlocked() && !group();
    const bool flipped = flipChecked(*this);
    if (guard)
        d->isFlipping = false;
    if (flipped)
        Q_EMIT toggled(isChecked());
}

void SwitchButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setOpacity(isEnabled() ? 1.0 : DisabledOpacity);

    const bool off = d->checkState == Qt::Unchecked;
    drawTrack(painter, size(), off ? d->uncheckedBackground : d->checkedBackground, d->track);
    const QRectF knob = knobRect(*d, size());
    if (qIsFinite(knob.width())) {
        painter.setBrush(d->knobColor);
        d->knob.drawEllipse(painter, knob);
        if (d->checkState == Qt::PartiallyChecked)
            drawDash(painter, knob.center(), d->dashLength);
    }
    if (isChecked())
        drawCaption(painter, size(), Qt::AlignLeft, d->checkText, *d);
    else
        drawCaption(painter, size(), Qt::AlignRight, d->noCheckText, *d);
}

} // namespace ZIRVOUI
