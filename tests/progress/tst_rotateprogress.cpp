#include "picture.h"
#include "warnings.h"

#include <QPainterPath>
#include <QVariantAnimation>
#include <QtTest>
#include <cmath>
#include <rotateprogress.h>

using ZIRVOUI::RotateProgress;

namespace {

struct Instant
{
    int dots; // degrees
    int sweep; // degrees
    int burst; // pixels
};

void drawFigure(QPainter &painter, const QSize &size, const Instant &now)
{
    const QPoint center((size.width() - 1) / 2, (size.height() - 1) / 2);
    const double radius = 200 + 1.7 * now.burst;
    const auto square
        = [&](double r) { return QRectF(center.x() - r, center.y() - r, 2 * r, 2 * r); };
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor("#87F50E"));
    painter.setOpacity((200 - now.burst) / 100.0);
    for (int i = 0; i < 16; ++i) {
        const double angle = qDegreesToRadians(now.dots + 22.5 * i);
        painter.drawEllipse(int(std::cos(angle) * (radius - 6)) + center.x() - 4,
                            int(std::sin(angle) * (radius - 6)) + center.y() - 4, 8, 8);
    }
    QPainterPath slice(center);
    slice.arcTo(square(radius), 5 * now.dots, -now.sweep);
    slice.closeSubpath();
    QPainterPath hole;
    hole.addEllipse(square(radius - 12));
    painter.fillPath(slice.subtracted(hole), QColor("#87F50E"));

    if (now.burst == 0)
        return;
    QRadialGradient glow(center, 200 + now.burst);
    glow.setColorAt(0.0, QColor(228, 217, 22));
    glow.setColorAt(1.0, QColor(229, 247, 56, 0));
    const int half = size.width() / 2;
    painter.setOpacity(1.0);
    painter.setBrush(glow);
    painter.drawEllipse(center.x() - half, center.y() - half, 2 * half, 2 * half);
}

/*! The widget's animations, in the order of their phases, held at an instant. */
class Timeline
{
public:
    explicit Timeline(RotateProgress &widget)
        : m_animations(widget.findChildren<QVariantAnimation *>())
    {
    }

    void hold(int ms)
    {
        for (auto *animation : {m_animations.at(0), m_animations.at(1)}) {
            if (animation->state() == QAbstractAnimation::Running)
                animation->pause();
            animation->setCurrentTime(qMin(ms, 2800)); // starts the burst when it is the end
        }
        if (m_animations.at(2)->state() == QAbstractAnimation::Running)
            m_animations.at(2)->pause();
        if (ms > 2800)
            m_animations.at(2)->setCurrentTime(ms - 2800);
    }

    bool isAtRest() const
    {
        return std::all_of(m_animations.begin(), m_animations.end(), [](auto *animation) {
            return animation->state() == QAbstractAnimation::Stopped;
        });
    }

private:
    QList<QVariantAnimation *> m_animations;
};

} // namespace

Q_DECLARE_METATYPE(Instant)

class TestRotateProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void paintsTheWholeTimeline();
    void startsAgainUnderItsGlow();
};

void TestRotateProgress::paints_data()
{
    QTest::addColumn<int>("time"); // ms
    QTest::addColumn<Instant>("instant");
    QTest::newRow("start") << 0 << Instant{360, 0, 0};
    QTest::newRow("turning") << 700 << Instant{270, 90, 0};
    QTest::newRow("before the end") << 2790 << Instant{1, 358, 0};
    QTest::newRow("nearly closed") << 2796 << Instant{0, 359, 0};
    QTest::newRow("closed") << 2800 << Instant{0, 360, 0};
    QTest::newRow("bursting") << 2850 << Instant{0, 360, 50};
    QTest::newRow("fading") << 2950 << Instant{0, 360, 150};
    QTest::newRow("glowing") << 3000 << Instant{0, 360, 200};
}

void TestRotateProgress::paints()
{
    QFETCH(int, time);
    QFETCH(Instant, instant);
    for (const QSize size : {QSize(420, 420), QSize(451, 303)}) {
        RotateProgress widget;
        widget.resize(size);
        const QImage nothing = blankPicture(size);
        COMPARE_PICTURES(snapshot(widget), nothing);

        // Stopped in any phase it draws nothing, and starts from the beginning.
        Timeline timeline(widget);
        widget.startAnmition();
        timeline.hold(2900);
        widget.stopAnmition();
        widget.startAnmition();
        timeline.hold(time);
        COMPARE_PICTURES(snapshot(widget), reference(size, [&](QPainter &painter) {
                             drawFigure(painter, size, instant);
                         }));
        widget.stopAnmition();
        COMPARE_PICTURES(snapshot(widget), nothing);
        QVERIFY(timeline.isAtRest());
    }
}

void TestRotateProgress::paintsTheWholeTimeline()
{
    RotateProgress widget;
    widget.resize(431, 401);
    widget.startAnmition();
    Timeline timeline(widget);
    for (int time = 0; time < 3000; time += 53) {
        timeline.hold(time);
        const double turned = qMin(time, 2800) * 360 / 2800.0;
        const Instant now = {int(360 - turned), int(turned), qMax(0, time - 2800)};
        COMPARE_PICTURES(snapshot(widget), reference(widget.size(), [&](QPainter &painter) {
                             drawFigure(painter, widget.size(), now);
                         }));
    }
}

void TestRotateProgress::startsAgainUnderItsGlow()
{
    RotateProgress widget;
    widget.resize(420, 420);
    widget.startAnmition();
    Timeline(widget).hold(3000);
    widget.startAnmition();
    Timeline(widget).hold(1400);
    const QImage glow = reference(widget.size(), [&](QPainter &painter) {
        drawFigure(painter, widget.size(), {180, 180, 200});
    });
    COMPARE_PICTURES(snapshot(widget), glow);
}

QTEST_MAIN(TestRotateProgress)
#include "tst_rotateprogress.moc"
