#include "zbasedialog.h"

#include "devicepixels_p.h"
#include "roundedoutline_p.h"
#include "widgetlength_p.h"

#include <QHBoxLayout>
#include <QPaintEvent>
#include <QPainter>

namespace ZIRVOUI {

namespace {

// Beyond this a shadow is wider than any widget, and coordinates would soon leave int's range.
constexpr int MaxShadowWidth = 1 << 29;

// Beyond this a raster device has no pixels.  As many outlines that are all corner take minutes.
constexpr int LargestDevice = 32767;

CornerRadii cornerRadii(ZBaseDialog::RadiusType type, int r)
{
    switch (type) {
    case ZBaseDialog::TopLeftRadius:
        return {r, 0, 0, 0};
    case ZBaseDialog::TopRightRadius:
        return {0, r, 0, 0};
    case ZBaseDialog::BottomLeftRadius:
        return {0, 0, 0, r};
    case ZBaseDialog::BottomRightRadius:
        return {0, 0, r, 0};
    case ZBaseDialog::TopRadius:
        return {r, r, 0, 0};
    case ZBaseDialog::BottomRadius:
        return {0, 0, r, r};
    case ZBaseDialog::LeftRadius:
        return {r, 0, 0, r};
    case ZBaseDialog::RightRadius:
        return {0, r, r, 0};
    case ZBaseDialog::AllRadius:
        return {r, r, r, r};
    case ZBaseDialog::NoRadius:
        break;
    }
    return {0, 0, 0, 0};
}

// How many outlines are passed over at a time if none of them may touch what is exposed.
constexpr int Leap = 1024;

// Whether an outline that stays so near to rect's edges may have a pixel in exposed.
bool mayTouch(const QRect &rect, qint64 near, const QRect &exposed)
{
    const int margin = int(qMin(near, qint64(MaxShadowWidth))) + 2;
    const QRect edges = rect.normalized();
    const QRect outer = edges.adjusted(-margin, -margin, margin, margin);
    const QRect inner = edges.adjusted(margin, margin, -margin, -margin);
    return outer.intersects(exposed) && !(inner.isValid() && inner.contains(exposed));
}

} // namespace

ZBaseDialog::ZBaseDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);

    // These flags make it a child widget, which would appear as soon as its parent does.
    if (parent)
        hide();
}

ZBaseDialog::~ZBaseDialog() = default;

void ZBaseDialog::setShadowEffectWidth(const int &width)
{
    m_shadowWidth = width;
}

void ZBaseDialog::setShadowEffectColor(const QColor &color)
{
    m_shadowColor = color;
}

void ZBaseDialog::setBackGroundColor(const QColor &color)
{
    m_backgroundColor = color;
}

void ZBaseDialog::setRadius(const int &radius)
{
    m_radius = radius;
}

void ZBaseDialog::setRadiusType(const RadiusType &type)
{
    m_radiusType = type;
}

void ZBaseDialog::setLayout(QLayout *layout)
{
    if (!layout || QWidget::layout())
        return;

    auto *frame = new QHBoxLayout;
    frame->setContentsMargins(m_shadowWidth, m_shadowWidth, m_shadowWidth, m_shadowWidth);
    frame->addLayout(layout);
    QWidget::setLayout(frame);
}

void ZBaseDialog::setFixedSize(const QSize &size)
{
    setFixedSize(size.width(), size.height());
}

void ZBaseDialog::setFixedSize(int width, int height)
{
    QWidget::setFixedSize(withShadow(width), withShadow(height));
}

void ZBaseDialog::setFixedWidth(int width)
{
    QWidget::setFixedWidth(withShadow(width));
}

void ZBaseDialog::setFixedHeight(int height)
{
    QWidget::setFixedHeight(withShadow(height));
}

QPainterPath ZBaseDialog::getDrawPath(const QRect &rect, const RadiusType &type)
{
    return roundedOutline(rect, cornerRadii(type, m_radius));
}

void ZBaseDialog::paintEvent(QPaintEvent *event)
{
    // Qt has no pixels for a window of millions by millions.
    QPainter painter(this);
    if (!painter.isActive())
        return;

    // With a clip of the painter's own, Qt does not ask for each pixel of a line whether it shows.
    if (!painter.hasClipping() && takesWholePixels(painter, event->rect()))
        painter.setClipRect(event->rect());
    drawShadow(painter, event->rect());
    drawBody(painter, event->rect());
}

int ZBaseDialog::withShadow(int length) const
{
    return widgetLength(length + 2 * qint64(m_shadowWidth));
}

void ZBaseDialog::drawShadow(QPainter &painter, const QRect &exposed)
{
    const int width = qMin(m_shadowWidth, MaxShadowWidth);
    const int fade = m_shadowWidth > 0 ? m_shadowColor.alpha() / m_shadowWidth : 0;
    const qint64 radius = qAbs(qint64(m_radius));
    QColor color = m_shadowColor;
    painter.setRenderHint(QPainter::Antialiasing);

    const auto drawOutlines = [&](int innermost, int outermost) {
        for (int inset = qMin(innermost, width); inset >= outermost; --inset) {
            const QRect outlined = insetRect(inset);
            if (!mayTouch(outlined, radius + Leap, exposed))
                inset -= Leap - 1;
            if (!mayTouch(outlined, radius, exposed))
                continue;
            color.setAlpha(m_shadowColor.alpha() - fade * (m_shadowWidth - inset));
            painter.setPen(color);
            painter.drawPath(getDrawPath(outlined, m_radiusType));
        }
    };

    // Further in than the widget is long, the outlines are mirrored and lie outside it.  Only the
    // arcs of a negative radius come back, and reach it around a quarter of that radius.
    const int reach = qMax(this->width(), height()) + 1;
    if (reach > LargestDevice && radius > LargestDevice)
        return;
    const int arcs = qMax(0, -(m_radius / 4) - 1);
    drawOutlines(arcs + reach, qMax(arcs, reach + 1));
    drawOutlines(reach, 0);
}

void ZBaseDialog::drawBody(QPainter &painter, const QRect &exposed)
{
    const QRect body = insetRect(qBound(-MaxShadowWidth, m_shadowWidth, MaxShadowWidth));
    painter.setRenderHint(QPainter::Antialiasing, false);
    // A child that moves exposes a rectangle that no corner reaches.
    const int corner = qBound(0, m_radius, MaxShadowWidth);
    const QRect middle = body.adjusted(corner, corner, -corner, -corner);
    if (m_radius >= 0 && middle.isValid() && middle.contains(exposed))
        painter.fillRect(exposed, m_backgroundColor);
    else
        painter.fillPath(getDrawPath(body, m_radiusType), m_backgroundColor);
}

QRect ZBaseDialog::insetRect(int by) const
{
    return rect().adjusted(by, by, -by, -by);
}

} // namespace ZIRVOUI
