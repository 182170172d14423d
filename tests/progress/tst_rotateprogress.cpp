#include "widgettest.h"

#include <QVariantAnimation>
#include <cmath>
#include <rotateprogress.h>

namespace {

/*! The figure at an instant of its turn, which lasts 2800 ms, and of the burst after it. */
void drawFigure(QPainter &painter, const QRect &all, int turn, int burst)
{
    const QPoint center = all.center();
    const double radius = 200 + 1.7 * burst;
    const auto square
        = [&](double r) { return QRectF(center.x() - r, center.y() - r, 2 * r, 2 * r); };
    const double turned = turn * 360 / 2800.0;
    const int left = int(360 - turned);
    painter.setBrush(QColor("#87F50E"));
    painter.setOpacity((200 - burst) / 100.0);
    for (int i = 0; i < 16; ++i) {
        const double angle = qDegreesToRadians(left + 22.5 * i);
        painter.drawEllipse(int(std::cos(angle) * (radius - 6)) + center.x() - 4,
                            int(std::sin(angle) * (radius - 6)) + center.y() - 4, 8, 8);
    }
    QPainterPath slice(center);
    slice.arcTo(square(radius), 5 * left, -int(turned));
    QPainterPath hole;
    hole.addEllipse(square(radius - 12));
    painter.fillPath(slice.subtracted(hole), QColor("#87F50E"));

    if (burst == 0)
        return;
    QRadialGradient glow(center, 200 + burst);
    glow.setStops({{0.0, QColor(228, 217, 22)}, {1.0, QColor(229, 247, 56, 0)}});
    const int half = all.width() / 2;
    painter.setOpacity(1.0);
    painter.setBrush(glow);
    painter.drawEllipse(center.x() - half, center.y() - half, 2 * half, 2 * half);
}

/*! Holds the animations, which \a widget has in the order of their phases, at an instant. */
void hold(const RotateProgress &widget, int time)
{
    const auto animations = widget.findChildren<QVariantAnimation *>();
    for (auto *animation : animations) {
        const int start = animation == animations.last() ? 2800 : 0;
        if (animation->state() == QAbstractAnimation::Running)
            animation->pause();
        if (time > start)
            animation->setCurrentTime(time - start); // starts the burst when it is the end
    }
}

} // namespace

class TestRotateProgress : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paintsUntilStopped()
    {
        RotateProgress widget;
        COMPARE_PICTURES(snapshot(widget), blankPicture(widget.size()));
        for (int time : {53,   106,  318,  583,  901,  1219, 1643, 1855, 2120, 2385, 2597,
                         2756, 2790, 2796, 2800, 2850, 700,  2862, 2950, 0,    3000, 1431}) {
            // Stopped in any phase it draws nothing, and starts from the beginning.
            widget.startAnmition();
            hold(widget, time);
            comparePictures(widget, {{420, 420}, {451, 303}}, [&](auto &painter, const QRect &all) {
                drawFigure(painter, all, qMin(time, 2800), qMax(0, time - 2800));
            });
            widget.stopAnmition();
            COMPARE_PICTURES(snapshot(widget), blankPicture(widget.size()));
            for (const auto *animation : widget.findChildren<QVariantAnimation *>())
                QCOMPARE(animation->state(), QAbstractAnimation::Stopped);
        }

        // Its glow stays from one turn to the next.
        for (int time : {3000, 1400}) {
            widget.startAnmition();
            hold(widget, time);
        }
        comparePictures(widget, {{420, 420}}, [](QPainter &painter, const QRect &all) {
            drawFigure(painter, all, 1400, 200);
        });
    }
};

QTEST_MAIN(TestRotateProgress)
#include "tst_rotateprogress.moc"
