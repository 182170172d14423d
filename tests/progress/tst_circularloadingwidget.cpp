#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QParallelAnimationGroup>
#include <QtTest>
#include <circulardelegate.h>
#include <circularloadingwidget.h>
#include <limits>

using ZIRVOUI::CircularDelegate;
using ZIRVOUI::CircularLoadingWidget;

class TestCircularLoadingWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void movesItsArc_data();
    void movesItsArc();
    void paints_data();
    void paints();
    void returnsForEveryValue();
    void reducesFarOffsets();
    void paintsOnlyWhileShown();
    void liesOpenToTheMetaObject();
};

void TestCircularLoadingWidget::movesItsArc_data()
{
    QTest::addColumn<int>("time"); // ms
    QTest::addColumn<double>("length");
    QTest::addColumn<double>("offset");
    QTest::addColumn<int>("angle");
    QTest::newRow("start") << 0 << 1.0 << 0.0 << 0;
    QTest::newRow("half way") << 1025 << 10 + 10 * 0.35 / 0.45 << -6 * 0.35 / 0.45 << 359;
    // Eased: 2 * 0.2², and half of 1 - cos(0.2 pi).
    QTest::newRow("a fifth") << 410 << 1 + 9 * 0.08 / 0.15 << 0.0 << 143;
    QTest::newRow("four fifths") << 1640 << 20 + 5 * (0.92 - 0.7) / 0.3
                                 << -6 - 24 * (0.9045084971874737 - 0.7) / 0.3 << 575;
    QTest::newRow("over the seam")
        << 2050 + 1025 << 10 + 10 * 0.35 / 0.45 << -6 * 0.35 / 0.45 << 359;
}

void TestCircularLoadingWidget::movesItsArc()
{
    QFETCH(int, time);
    QFETCH(double, length);
    QFETCH(double, offset);
    QFETCH(int, angle);
    CircularLoadingWidget spinner;
    auto *group = spinner.findChild<QParallelAnimationGroup *>();
    auto *arc = spinner.findChild<CircularDelegate *>();
    QCOMPARE(group->state(), QAbstractAnimation::Running);
    QCOMPARE(group->loopCount(), -1);
    group->setCurrentTime(time);
    QCOMPARE(arc->dashLength(), length);
    QVERIFY(qAbs(arc->dashOffset() - offset) < 1e-9);
    QCOMPARE(arc->angle(), angle);
}

void TestCircularLoadingWidget::paints_data()
{
    QTest::addColumn<double>("lineWidth");
    QTest::addColumn<double>("penWidth");
    QTest::addColumn<int>("inset");
    QTest::addColumn<double>("length");
    QTest::addColumn<double>("offset");
    QTest::addColumn<int>("angle");
    QTest::newRow("first frame") << 24.0 << 24.0 << 12 << 1.0 << 0.0 << 0;
    QTest::newRow("travelling") << 7.5 << 7.5 << 3 << 17.3 << -4.2 << 200;
    QTest::newRow("closed") << 25.0 << 25.0 << 12 << 25.0 << -30.0 << 719;
    QTest::newRow("refused width") << -3.0 << 1.0 << -1 << 5.0 << 0.0 << 10;
}

void TestCircularLoadingWidget::paints()
{
    QFETCH(double, lineWidth);
    QFETCH(double, penWidth);
    QFETCH(int, inset);
    QFETCH(double, length);
    QFETCH(double, offset);
    QFETCH(int, angle);
    CircularLoadingWidget spinner;
    spinner.findChild<QParallelAnimationGroup *>()->pause();
    auto *arc = spinner.findChild<CircularDelegate *>();
    arc->setDashLength(length);
    arc->setDashOffset(offset);
    arc->setAngle(angle);
    spinner.setLineWidth(lineWidth);
    spinner.setCirqueColor(QColor(90, 90, 200, 120));

    const QHash<int, int> radiusOfHeight = {{100, 50}, {61, 30}};
    for (const QSize size : {QSize(120, 100), QSize(91, 61)}) {
        spinner.resize(size);
        const int radius = radiusOfHeight.value(size.height());
        const int diameter = 2 * (radius - inset);
        const QRect circle(inset - radius, inset - radius, diameter, diameter);
        COMPARE_PICTURES(snapshot(spinner), reference(size, [&](QPainter &painter) {
                             painter.setRenderHint(QPainter::Antialiasing);
                             painter.translate(size.width() / 2, size.height() / 2);
                             painter.rotate(angle);
                             QPen pen(QColor(90, 90, 200, 120));
                             pen.setWidthF(penWidth);
                             painter.setPen(pen);
                             painter.drawEllipse(circle);
                             pen.setColor("#D2D442");
                             pen.setDashPattern({length, 10.0 * radius});
                             pen.setDashOffset(offset);
                             painter.setPen(pen);
                             painter.drawEllipse(circle);
                         }));
    }
}

void TestCircularLoadingWidget::returnsForEveryValue()
{
    constexpr double Huge = std::numeric_limits<double>::max();
    CircularLoadingWidget spinner;
    spinner.findChild<QParallelAnimationGroup *>()->pause();
    spinner.resize(80, 80);
    auto *arc = spinner.findChild<CircularDelegate *>();
    QElapsedTimer timer;
    timer.start();
    for (double value : {qQNaN(), qInf(), -qInf(), Huge, -Huge, 1e12, -1e12, 40000.0, 0.0}) {
        for (double other : {3.0, value}) {
            spinner.setLineWidth(value);
            arc->setDashLength(other);
            arc->setDashOffset(other);
            snapshot(spinner);
            spinner.setLineWidth(5);
            arc->setDashLength(value);
            snapshot(spinner);
            arc->setDashOffset(value);
            snapshot(spinner);
        }
    }
    QVERIFY(timer.elapsed() < 3000);

    arc->setDashLength(5);
    arc->setDashOffset(0);
    spinner.setLineWidth(qQNaN());
    COMPARE_PICTURES(snapshot(spinner), blankPicture(spinner.size()));
    spinner.setLineWidth(5);
    arc->setDashLength(qInf());
    COMPARE_PICTURES(snapshot(spinner), blankPicture(spinner.size()));
}

void TestCircularLoadingWidget::reducesFarOffsets()
{
    CircularLoadingWidget spinner;
    spinner.findChild<QParallelAnimationGroup *>()->pause();
    spinner.resize(80, 80);
    auto *arc = spinner.findChild<CircularDelegate *>();
    arc->setDashLength(6); // and 400 of gap
    arc->setDashOffset(-5);
    const QImage near = snapshot(spinner);
    for (double offset : {401.0, -5 - 406.0 * 1048576, -5 + 406.0 * 1099511627776}) {
        arc->setDashOffset(offset);
        COMPARE_PICTURES(snapshot(spinner), near);
    }
}

void TestCircularLoadingWidget::paintsOnlyWhileShown()
{
    CircularLoadingWidget spinner;
    spinner.show();
    QVERIFY(QTest::qWaitForWindowExposed(&spinner));
    PaintCounter paints(spinner);
    QTest::qWait(100);
    QVERIFY(paints.take() > 0);
    spinner.hide();
    paints.take();
    QTest::qWait(60);
    QCOMPARE(paints.take(), 0);
}

void TestCircularLoadingWidget::liesOpenToTheMetaObject()
{
    QStringList names;
    for (const QMetaObject *meta :
         {&CircularLoadingWidget::staticMetaObject, &CircularDelegate::staticMetaObject}) {
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
            names << meta->property(i).name();
        QCOMPARE(meta->methodCount(), meta->methodOffset());
    }
    QCOMPARE(names.join(' '), QStringLiteral("lineWidth color dashOffset dashLength angle"));
}

QTEST_MAIN(TestCircularLoadingWidget)
#include "tst_circularloadingwidget.moc"
