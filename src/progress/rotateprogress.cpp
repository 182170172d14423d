#include "rotateprogress.h"

#include "arcband_p.h"

#include <QPainter>
#include <QVariantAnimation>
#include <cmath>

namespace ZIRVOUI {

namespace {

constexpr int TurnDuration = 2800; // ms
constexpr int BurstDuration = 200; // ms
constexpr int FullCircle = 360; // degrees
constexpr int Dots = 16;
constexpr double DegreesBetweenDots = 22.5;
constexpr double RadiansPerDegree = 0.017453292519943295;
constexpr int ArcTurnsPerDotTurn = 5;
constexpr double BurstGrowth = 0.7; // of the arc, besides its way outwards
constexpr double FadeDistance = 100.0; // pixels
constexpr QRgb GlowMiddle = 0xffe4d916;
constexpr QRgb GlowRim = 0x00e5f738;

} // namespace

RotateProgress::RotateProgress(QWidget *parent)
    : QWidget(parent)
    , m_pointAnimation(new QVariantAnimation(this))
    , m_circleAnimation(new QVariantAnimation(this))
    , m_expandAnimation(new QVariantAnimation(this))
{
    for (auto *animation : {m_pointAnimation, m_circleAnimation, m_expandAnimation}) {
        connect(animation, &QVariantAnimation::valueChanged, this,
                QOverload<>::of(&QWidget::update));
    }
    connect(m_circleAnimation, &QAbstractAnimation::finished, this,
            &RotateProgress::startExpandAnmi);
}

RotateProgress::~RotateProgress() = default;

void RotateProgress::startAnmition()
{
    startPointAnmi();
    startCircleAnmi();
    m_running = true;
    update();
}

void RotateProgress::stopAnmition()
{
    m_running = false;
    m_pointAnimation->stop();
    m_circleAnimation->stop();
    m_expandAnimation->stop();
    m_expandAnimation->setCurrentTime(0);
    update();
}

void RotateProgress::startPointAnmi()
{
    m_pointAnimation->setDuration(TurnDuration);
    m_pointAnimation->setStartValue(FullCircle);
    m_pointAnimation->setEndValue(0);
    m_pointAnimation->setLoopCount(1);
    m_pointAnimation->setCurrentTime(0);
    m_pointAnimation->start();
}

void RotateProgress::startCircleAnmi()
{
    m_circleAnimation->setDuration(TurnDuration);
    m_circleAnimation->setStartValue(0);
    m_circleAnimation->setEndValue(FullCircle);
    m_circleAnimation->setCurrentTime(0);
    m_circleAnimation->setLoopCount(1);
    m_circleAnimation->start();
}

void RotateProgress::startExpandAnmi()
{
    m_expandAnimation->setDuration(BurstDuration);
    m_expandAnimation->setStartValue(0);
    m_expandAnimation->setEndValue(int(m_radius));
    m_expandAnimation->setLoopCount(1);
    m_expandAnimation->start();
}

void RotateProgress::paintEvent(QPaintEvent *)
{
    if (!m_running)
        return;
    paintPoint();
    paintCircle();
    if (expansion() != 0)
        paintGold();
}

void RotateProgress::paintPoint()
{
    const double turned = m_pointAnimation->currentValue().toDouble();
    const double orbit = m_radius + BurstGrowth * expansion() - m_thickness / 2 + expansion();
    const int dotRadius = m_thickness / 3;
    const QPoint corner = center() - QPoint(dotRadius, dotRadius);

    QPainter painter(this);
    painter.setOpacity(fadeOpacity());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    for (int i = 0; i < Dots; ++i) {
        const double angle = (turned + DegreesBetweenDots * i) * RadiansPerDegree;
        const QPoint place(int(std::cos(angle) * orbit), int(std::sin(angle) * orbit));
        painter.drawEllipse(QRect(corner + place, QSize(2 * dotRadius, 2 * dotRadius)));
    }
}

void RotateProgress::paintCircle()
{
    const int start = ArcTurnsPerDotTurn * m_pointAnimation->currentValue().toInt();
    const int sweep = m_circleAnimation->currentValue().toInt();

    QPainter painter(this);
    painter.setOpacity(fadeOpacity());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(arcBand(center(), outerRadius(), outerRadius() - m_thickness, start, sweep),
                     m_color);
}

void RotateProgress::paintGold()
{
    QRadialGradient glow(center(), m_radius + expansion());
    glow.setColorAt(0.0, QColor::fromRgba(GlowMiddle));
    glow.setColorAt(1.0, QColor::fromRgba(GlowRim));
    const int half = width() / 2;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(QRect(center() - QPoint(half, half), QSize(2 * half, 2 * half)));
}

int RotateProgress::expansion() const
{
    return m_expandAnimation->currentValue().toInt();
}

// Above 1 while the burst is young, which the painter takes for 1.
double RotateProgress::fadeOpacity() const
{
    return (m_radius - expansion()) / FadeDistance;
}

double RotateProgress::outerRadius() const
{
    return m_radius + BurstGrowth * expansion() + expansion();
}

QPoint RotateProgress::center() const
{
    return {(width() - 1) / 2, (height() - 1) / 2};
}

} // namespace ZIRVOUI
