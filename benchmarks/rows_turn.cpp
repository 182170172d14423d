#include "row.h"

#include <QtMath>
#include <cmath>
#include <rotateprogress.h>

using ZIRVOUI::RotateProgress;

namespace {

constexpr int FullCircle = 360; // degrees
constexpr QSize TurnSize(420, 420);
constexpr int TurnPeriod = 2800; // ms
constexpr int BurstPeriod = 200; // ms
constexpr double TurnRadius = 200;
constexpr int TurnThickness = 12;
constexpr QRgb TurnColor = 0xff87f50e;
constexpr int Dots = 16;
constexpr QSize DotSize(8, 8);

const QString Sheet = QStringLiteral("QProgressBar { background: #3f4650; border: none; } "
                                     "QProgressBar::chunk { background: #2fb36d; }");

QRectF squareAround(const QPoint &center, double radius)
{
    return {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius};
}

void drawDots(QPainter &painter, const QPoint &center, double orbit, int turned)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(TurnColor));
    for (int i = 0; i < Dots; ++i) {
        const double angle = qDegreesToRadians(turned + double(FullCircle) / Dots * i);
        const QPoint place(int(std::cos(angle) * orbit), int(std::sin(angle) * orbit));
        painter.drawEllipse(QRect(center + place - QPoint(4, 4), DotSize));
    }
}

void drawBand(QPainter &painter, const QPoint &center, double radius, int start, int sweep)
{
    QPainterPath slice(center);
    slice.arcTo(squareAround(center, radius), start, -sweep);
    QPainterPath hole;
    hole.addEllipse(squareAround(center, radius - TurnThickness));
    painter.fillPath(slice.subtracted(hole), QColor(TurnColor));
}

void drawGlow(QPainter &painter, const QPoint &center, double radius, int side)
{
    QRadialGradient glow(center, radius);
    glow.setColorAt(0, QColor(228, 217, 22));
    glow.setColorAt(1, QColor(229, 247, 56, 0));
    painter.setOpacity(1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(center.x() - side / 2, center.y() - side / 2, side, side);
}

void drawTurn(QPainter &painter, const QSize &size, int turnTime, int burst)
{
    const QPoint center((size.width() - 1) / 2, (size.height() - 1) / 2);
    const double turned = turnTime * double(FullCircle) / TurnPeriod;
    const int left = int(FullCircle - turned);
    const double radius = TurnRadius + 0.7 * burst + burst;

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity((TurnRadius - burst) / 100);
    drawDots(painter, center, radius - TurnThickness / 2, left);
    drawBand(painter, center, radius, 5 * left, int(turned));
    if (burst > 0)
        drawGlow(painter, center, TurnRadius + burst, size.width());
}

RotateProgress *newTurn()
{
    auto *turn = new RotateProgress;
    turn->startAnmition();
    pauseAnimations(*turn);
    return turn;
}

int turnTime(int frame)
{
    return frame * FrameTime % TurnPeriod;
}

Row turning()
{
    const auto bare = [](QPainter &painter, const QSize &size, int frame) {
        drawTurn(painter, size, turnTime(frame), 0);
    };
    const auto advance
        = [](QWidget &widget, int frame) { setAnimationTime(widget, turnTime(frame)); };
    return {QStringLiteral("RotateProgress, turning"),
            TurnSize,
            newTurn,
            bare,
            newBusyBar,
            Sheet,
            advance};
}

int burstTime(int frame)
{
    return frame * FrameTime % BurstPeriod;
}

Row bursting()
{
    const auto library = [] {
        RotateProgress *turn = newTurn();
        setAnimationTime(*turn, TurnPeriod); // the end of the turn starts the burst
        pauseAnimations(*turn);
        return turn;
    };
    const auto bare = [](QPainter &painter, const QSize &size, int frame) {
        drawTurn(painter, size, TurnPeriod, int(TurnRadius * burstTime(frame) / BurstPeriod));
    };
    const auto advance
        = [](QWidget &widget, int frame) { setAnimationTime(widget, burstTime(frame)); };
    return {QStringLiteral("RotateProgress, bursting"),
            TurnSize,
            library,
            bare,
            newBusyBar,
            Sheet,
            advance};
}

} // namespace

Rows turnRows()
{
    return {turning(), bursting()};
}
