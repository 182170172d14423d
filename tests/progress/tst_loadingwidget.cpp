#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QPainterPath>
#include <QtTest>
#include <limits>
#include <loadingwidget.h>

using ZIRVOUI::LoadingWidget;

class TestLoadingWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void addsColors();
    void returnsForEveryWidth();
    void turnsUntilStopped();
    void repaintsForNewValuesOnly();
};

void TestLoadingWidget::paints_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("angle");
    QTest::addColumn<int>("width");
    QTest::newRow("start") << 0 << 0 << 10;
    QTest::newRow("odd width") << 20 << 40 << 7;
    QTest::newRow("end of the turn") << 179 << 358 << 10;
    QTest::newRow("next turn") << 181 << 2 << 10;
    QTest::newRow("width of the radius") << 30 << 60 << 45;
}

void TestLoadingWidget::paints()
{
    QFETCH(int, steps);
    QFETCH(int, angle);
    QFETCH(int, width);
    LoadingWidget spinner;
    spinner.stop();
    spinner.setWidth(width);
    for (int i = 0; i < steps; ++i)
        spinner.updateRotate();
    QConicalGradient gradient(0, 0, 0);
    gradient.setColorAt(0.0, "#316AFF");
    gradient.setColorAt(1.0, Qt::white);

    const QHash<int, int> radiusOfHeight = {{90, 45}, {101, 50}};
    for (const QSize size : {QSize(90, 90), QSize(201, 101)}) {
        spinner.resize(size);
        const int radius = radiusOfHeight.value(size.height());
        const int half = width / 2;
        const int diameter = 2 * radius - 2 * half;
        COMPARE_PICTURES(
            snapshot(spinner), reference(size, [&](QPainter &painter) {
                painter.translate(size.width() / 2, size.height() / 2);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.rotate(angle);
                painter.setPen(
                    {gradient, double(width), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin});
                painter.drawArc(QRectF(half - radius, half - radius, diameter, diameter), 0, 5760);
                QPainterPath head(QPointF(radius - width, 0));
                head.arcTo(radius - width, -half, width, width, 0, 360);
                painter.fillPath(head, QColor("#316AFF"));
            }));
    }
}

void TestLoadingWidget::addsColors()
{
    LoadingWidget spinner;
    spinner.stop();
    spinner.resize(90, 90);
    const QImage before = snapshot(spinner);
    spinner.addGradientColor({});
    COMPARE_PICTURES(snapshot(spinner), before);

    spinner.addGradientColor({{0.5, QColor(Qt::red)}, {7.0, Qt::green}, {qQNaN(), Qt::green}});
    const auto greenAt = [&](int x, int y) { return snapshot(spinner).pixelColor(x, y).green(); };
    QCOMPARE(greenAt(85, 45), 0); // the head
    QVERIFY(greenAt(5, 45) < 5); // half way round
    QVERIFY(qAbs(greenAt(45, 85) - 127) < 5); // three quarters, on the way to white
    spinner.addGradientColor({{0.5, QColor(Qt::cyan)}});
    QVERIFY(greenAt(5, 45) > 250);
}

void TestLoadingWidget::returnsForEveryWidth()
{
    LoadingWidget spinner;
    spinner.resize(90, 90);
    QElapsedTimer timer;
    timer.start();
    for (int width :
         {0, -1, 100, 40000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        spinner.setWidth(width);
        snapshot(spinner);
    }
    QVERIFY(timer.elapsed() < 1000);
}

void TestLoadingWidget::turnsUntilStopped()
{
    LoadingWidget spinner;
    spinner.resize(90, 90);
    const auto turns = [&] {
        const QImage before = snapshot(spinner);
        QTest::qWait(60);
        return snapshot(spinner) != before;
    };
    QVERIFY(turns());
    spinner.stop();
    QVERIFY(!turns());
    spinner.start();
    QVERIFY(turns());
}

void TestLoadingWidget::repaintsForNewValuesOnly()
{
    LoadingWidget spinner;
    spinner.stop();
    spinner.show();
    QVERIFY(QTest::qWaitForWindowExposed(&spinner));
    PaintCounter paints(spinner);
    spinner.setWidth(10);
    spinner.addGradientColor({{0.0, QColor(Qt::red)}});
    QCOMPARE(paints.take(), 0);
    spinner.setWidth(12);
    QCOMPARE(paints.take(), 1);
    spinner.start();
    QTest::qWait(100);
    QVERIFY(paints.take() > 0);
    spinner.hide();
    paints.take();
    QTest::qWait(60);
    QCOMPARE(paints.take(), 0);
}

QTEST_MAIN(TestLoadingWidget)
#include "tst_loadingwidget.moc"
