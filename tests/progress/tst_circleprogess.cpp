#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QtTest>
#include <circleprogess.h>

using ZIRVOUI::CircleProgess;

class TestCircleProgess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void repaintsForItsValueOnly();
};

void TestCircleProgess::paints_data()
{
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("startAngle");
    QTest::addColumn<double>("progressAngle");
    QTest::addColumn<int>("border");
    QTest::addColumn<int>("start"); // in sixteenths of a degree, from 3 o'clock to the left
    QTest::addColumn<int>("span");
    QTest::newRow("quarter") << 100.0 << 25.0 << 0.0 << 360.0 << 10 << 0 << 90 * 16;
    QTest::newRow("35 percent") << 100.0 << 35.0 << 0.0 << 360.0 << 10 << -36 * 16 << 126 * 16;
    QTest::newRow("open ring") << 100.0 << 33.3 << 30.5 << 270.0 << 15 << -472 << 89 * 16;
    QTest::newRow("below") << 100.0 << -10.0 << 0.0 << 360.0 << 10 << 126 * 16 << -36 * 16;
    QTest::newRow("above") << 100.0 << 150.0 << 0.0 << 360.0 << 10 << -450 * 16 << 540 * 16;
    QTest::newRow("empty range") << 0.0 << 5.0 << 0.0 << 360.0 << 10 << 0 << 0;
    QTest::newRow("no number") << 100.0 << qQNaN() << 0.0 << 360.0 << 10 << 0 << 0;
    QTest::newRow("no hole") << 100.0 << 50.0 << 90.0 << 360.0 << 40 << -180 * 16 << 180 * 16;
    QTest::newRow("negative border") << 100.0 << 50.0 << 0.0 << 360.0 << -4 << -90 * 16 << 180 * 16;
}

void TestCircleProgess::paints()
{
    QFETCH(double, max);
    QFETCH(double, value);
    QFETCH(double, startAngle);
    QFETCH(double, progressAngle);
    QFETCH(int, border);
    QFETCH(int, start);
    QFETCH(int, span);

    CircleProgess ring;
    ring.setMax(max);
    ring.setValue(value);
    ring.setStartAngle(startAngle);
    ring.setProgressAngle(progressAngle);
    ring.setBorderWidth(border);
    ring.resize(61, 90);
    COMPARE_PICTURES(snapshot(ring), blankPicture(ring.size()));

    ring.setBgColor(QColor(30, 30, 200, 150));
    ring.setCircleColor(QColor(120, 120, 120, 200));
    ring.setProgressColor(Qt::green);
    for (const QSize size : {QSize(61, 90), QSize(100, 60)}) {
        ring.resize(size);
        const int side = size.height() == 90 ? 61 : 60;
        COMPARE_PICTURES(snapshot(ring), reference(size, [&](QPainter &painter) {
                             painter.setRenderHint(QPainter::Antialiasing);
                             painter.setPen(Qt::NoPen);
                             painter.setBrush(QColor(120, 120, 120, 200));
                             painter.drawEllipse(0, 0, side, side);
                             painter.setBrush(Qt::green);
                             if (span != 0)
                                 painter.drawPie(0, 0, side, side, start, span);
                             painter.setBrush(QColor(30, 30, 200, 150));
                             const int hole = side - 2 * border;
                             if (hole > 0)
                                 painter.drawEllipse(border, border, hole, hole);
                         }));
    }
}

void TestCircleProgess::repaintsForItsValueOnly()
{
    CircleProgess ring;
    ring.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ring));
    PaintCounter paints(ring);
    ring.setMin(1);
    ring.setMax(2);
    ring.setStartAngle(3);
    ring.setProgressAngle(4);
    ring.setBorderWidth(5);
    ring.setBgColor(Qt::red);
    ring.setCircleColor(Qt::red);
    ring.setProgressColor(Qt::red);
    QCOMPARE(paints.take(), 0);
    ring.setValue(0);
    QCOMPARE(paints.take(), 1);
}

QTEST_MAIN(TestCircleProgess)
#include "tst_circleprogess.moc"
