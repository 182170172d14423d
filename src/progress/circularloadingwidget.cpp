#include "circularloadingwidget.h"

#include "circulardelegate.h"
#include "truncated_p.h"

#include <QPainter>
#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <cmath>

namespace ZIRVOUI {

namespace {

constexpr int Period = 2050; // ms
constexpr double MaxLineWidth = 32768; // from here on QPen refuses, with a warning
constexpr int MaxInset = 1 << 28; // pixels, beyond any widget
constexpr double GapPerRadius = 10.0; // in line widths: longer than any circle of that radius

QPen linePen(double width, const QColor &color)
{
    QPen pen(color);
    if (width >= 0 && width < MaxLineWidth)
        pen.setWidthF(width);
    return pen;
}

void drawArc(QPainter &painter, QPen pen, const QRect &circle, int radius,
             const CircularDelegate &arc)
{
    // Qt's dash stroker would never return.
    if (!qIsFinite(arc.dashLength() * pen.widthF()) || !qIsFinite(arc.dashOffset()))
        return;

    // Qt counts the repetitions that lie within the offset as an int.
    const double gap = GapPerRadius * radius;
    const double repetition = qMax(arc.dashLength(), 0.0) + gap;
    const bool isFarAway = std::abs(arc.dashOffset()) > repetition;
    pen.setDashPattern({arc.dashLength(), gap});
    pen.setDashOffset(isFarAway ? std::fmod(arc.dashOffset(), repetition) : arc.dashOffset());
    painter.setPen(pen);
    painter.drawEllipse(circle);
}

} // namespace

CircularLoadingWidget::CircularLoadingWidget(QWidget *parent)
    : QWidget(parent)
{
    init();
}

CircularLoadingWidget::~CircularLoadingWidget() = default;

void CircularLoadingWidget::init()
{
    m_delegate = new CircularDelegate(this);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);

    auto *group = new QParallelAnimationGroup(this);
    group->setLoopCount(-1);
    const auto animate = [&](const char *property, const QEasingCurve &easing,
                             const QVariantAnimation::KeyValues &keys) {
        auto *animation = new QPropertyAnimation(m_delegate, property, this);
        animation->setDuration(Period);
        animation->setEasingCurve(easing);
        animation->setKeyValues(keys);
        group->addAnimation(animation);
    };
    animate("dashLength", QEasingCurve::InOutQuad,
            {{0.0, 1}, {0.15, 10}, {0.6, 20}, {0.7, 20}, {1.0, 25}});
    animate("dashOffset", QEasingCurve::InOutSine,
            {{0.0, 0}, {0.15, 0}, {0.6, -6}, {0.7, -6}, {1.0, -30}});
    animate("angle", QEasingCurve::Linear, {{0.0, 0}, {1.0, 719}});
    group->start();
}

double CircularLoadingWidget::lineWidth() const
{
    return m_lineWidth;
}

void CircularLoadingWidget::setLineWidth(double width)
{
    m_lineWidth = width;
    update();
    updateGeometry();
}

QColor CircularLoadingWidget::color() const
{
    return m_color;
}

void CircularLoadingWidget::setColor(const QColor &color)
{
    m_color = color;
    update();
}

QColor CircularLoadingWidget::cirqueColor() const
{
    return m_cirqueColor;
}

void CircularLoadingWidget::setCirqueColor(const QColor &color)
{
    m_cirqueColor = color;
}

void CircularLoadingWidget::paintEvent(QPaintEvent *)
{
    if (!qIsFinite(m_lineWidth))
        return;

    const int radius = qMin(width(), height()) / 2;
    const int inset = qBound(-MaxInset, truncated(m_lineWidth * 0.5), MaxInset);
    const QRect circle(inset - radius, inset - radius, 2 * (radius - inset), 2 * (radius - inset));

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2, height() / 2);
    painter.rotate(m_delegate->angle());

    painter.setPen(linePen(m_lineWidth, m_cirqueColor));
    painter.drawEllipse(circle);
    drawArc(painter, linePen(m_lineWidth, m_color), circle, radius, *m_delegate);
}

} // namespace ZIRVOUI
