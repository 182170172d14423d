#include "loadingwidget.h"

#include <QDeadlineTimer>
#include <QPainter>
#include <QPainterPath>

namespace ZIRVOUI {

namespace {

constexpr int Interval = 6; // ms
constexpr int FrameTime = 16; // ms
constexpr int Step = 2; // degrees
constexpr int FullCircle = 360; // degrees
constexpr int AngleUnits = 16; // of QPainter in a degree
constexpr QRgb HeadColor = 0xff316aff;

} // namespace

LoadingWidget::LoadingWidget(QWidget *parent)
    : QWidget(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &LoadingWidget::tick);
    m_timer.start(Interval);

    const QColor head(HeadColor);
    const QColor tail(Qt::white);
    addGradientColor({{0.0, head}, {1.0, tail}});
}

LoadingWidget::~LoadingWidget() = default;

void LoadingWidget::updateRotate()
{
    turn();
    update();
}

void LoadingWidget::start()
{
    m_timer.start();
}

void LoadingWidget::stop()
{
    m_timer.stop();
    if (m_isBehind)
        update();
}

void LoadingWidget::setWidth(int width)
{
    if (width == m_width)
        return;
    m_width = width;
    update();
}

void LoadingWidget::addGradientColor(const QVector<QPair<double, const QColor &>> &colors)
{
    if (colors.isEmpty())
        return;

    for (const auto &stop : colors) {
        if (!qIsNaN(stop.first)) // which QGradient lets pass
            m_gradient.setColorAt(stop.first, stop.second);
    }
    m_headColor = colors.first().second;
}

void LoadingWidget::turn()
{
    m_angle += Step;
    if (m_angle >= FullCircle)
        m_angle = 0;
    m_isBehind = true;
}

// Qt paints a window as often as something in it asks for it, however often that is.  So the first
// spinner that ticks within a frame of the clock asks for all.
void LoadingWidget::tick()
{
    turn();
    const qint64 frame = QDeadlineTimer::current().deadline() / FrameTime;
    if (frame == m_frame || !isVisible())
        return;

    m_frame = frame;
    update();
    const auto spinners = window()->findChildren<LoadingWidget *>();
    for (LoadingWidget *spinner : spinners) {
        spinner->m_frame = frame;
        if (spinner->m_isBehind)
            spinner->update();
    }
}

void LoadingWidget::paintEvent(QPaintEvent *)
{
    m_isBehind = false;
    const int radius = qMin(width(), height()) / 2;

    QPainter painter(this);
    painter.translate(width() / 2, height() / 2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.rotate(m_angle);
    drawRing(painter, radius);
    drawHead(painter, radius);
}

void LoadingWidget::drawRing(QPainter &painter, int radius)
{
    const double middle = radius - m_width / 2; // of the line
    painter.setPen({m_gradient, double(m_width), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin});
    painter.drawArc(QRectF(-middle, -middle, 2 * middle, 2 * middle), 0, FullCircle * AngleUnits);
}

void LoadingWidget::drawHead(QPainter &painter, int radius)
{
    const double left = double(radius) - m_width;
    QPainterPath head({left, 0});
    head.arcTo(left, -(m_width / 2), m_width, m_width, 0, FullCircle);
    painter.fillPath(head, m_headColor);
}

} // namespace ZIRVOUI
