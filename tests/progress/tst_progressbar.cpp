#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QtTest>
#include <limits>
#include <progressbar.h>

using ZIRVOUI::ProgressBar;

class TestProgressBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void limitsItsValue_data();
    void limitsItsValue();
    void repaintsForWholeValuesOnly();
    void liesOpenToTheMetaObject();
};

void TestProgressBar::paints_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("padding");
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("length"); // on 205 pixels
    constexpr double Huge = std::numeric_limits<double>::max();
    QTest::newRow("empty") << 0.0 << 100.0 << 0.0 << 0 << 0 << 0;
    QTest::newRow("half, truncated") << 50.0 << 100.0 << 75.0 << 0 << 6 << 102;
    QTest::newRow("full, padded") << 0.0 << 100.0 << 100.0 << 10 << 20 << 185;
    QTest::newRow("inverted range") << 10.0 << -10.0 << 5.0 << 0 << 0 << 51;
    QTest::newRow("empty range") << 7.0 << 7.0 << 9.0 << 0 << 0 << 0;
    QTest::newRow("no number") << 0.0 << 1.0 << qQNaN() << 0 << 0 << 0;
    QTest::newRow("huge range") << -Huge << Huge << Huge << 0 << 0 << 0;
    QTest::newRow("huge padding") << 0.0 << 2.0 << 1.0 << std::numeric_limits<int>::min() << 0
                                  << 205;
}

void TestProgressBar::paints()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, value);
    QFETCH(int, padding);
    QFETCH(int, radius);
    QFETCH(int, length);
    QLinearGradient gradient(0, 0, 100, 0);
    gradient.setColorAt(0.5, Qt::red);

    for (const QBrush &brush : {QBrush(Qt::NoBrush), QBrush(gradient)}) {
        ProgressBar bar;
        bar.setRange(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
        bar.setValue(value);
        bar.setRange(min, max);
        bar.setPadding(padding);
        bar.setRadius(radius);
        bar.setValueBrush(brush);
        bar.setValueColor(QColor(10, 200, 90, 120));
        bar.resize(205, 31);
        COMPARE_PICTURES(snapshot(bar), reference(bar.size(), [&](QPainter &painter) {
                             painter.setRenderHint(QPainter::Antialiasing);
                             painter.setPen(Qt::NoPen);
                             painter.setBrush(Qt::darkGray);
                             painter.drawRoundedRect(QRectF(0, 0, 205, 31), radius, radius);
                             painter.setBrush(brush == QBrush(Qt::NoBrush)
                                                  ? QBrush(QColor(10, 200, 90, 120))
                                                  : brush);
                             painter.drawRoundedRect(QRectF(0, 0, length, 31), radius, radius);
                         }));
    }
}

void TestProgressBar::limitsItsValue_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<double>("stored");
    QTest::newRow("within") << 0.5 << 10.5 << QVariant(4.2) << 4.2;
    QTest::newRow("above") << 0.5 << 10.5 << QVariant(20.0) << 10.5;
    QTest::newRow("below") << 0.5 << 10.5 << QVariant(0.0) << 0.5;
    QTest::newRow("whole, above") << 0.5 << 10.5 << QVariant(20) << 10.0;
    QTest::newRow("whole, below") << 0.5 << 10.5 << QVariant(0) << 0.0;
    QTest::newRow("inverted range") << 8.0 << 2.0 << QVariant(5.0) << 8.0;
    QTest::newRow("whole, end beyond int")
        << 1e300 << 1e301 << QVariant(5) << double(std::numeric_limits<int>::max());
}

void TestProgressBar::limitsItsValue()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QVariant, value);
    QFETCH(double, stored);
    ProgressBar bar;
    bar.setRange(min, max);
    QSignalSpy changes(&bar, &ProgressBar::valueChanged);
    for (int i = 0; i < 2; ++i) {
        if (value.type() == QVariant::Int)
            bar.setValue(value.toInt());
        else
            bar.setValue(value.toDouble());
    }
    QCOMPARE(bar.getValue(), stored);
    QCOMPARE(changes, QList<QVariantList>({{stored}, {stored}}));
}

void TestProgressBar::repaintsForWholeValuesOnly()
{
    ProgressBar bar;
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    PaintCounter paints(bar);
    for (int i = 0; i < bar.metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = bar.metaObject()->property(i);
        if (property.enclosingMetaObject() == &ProgressBar::staticMetaObject)
            property.write(&bar, property.read(&bar));
    }
    bar.setRange(0, 50);
    QCOMPARE(paints.take(), 0);
    bar.setValue(0);
    QCOMPARE(paints.take(), 1);
}

void TestProgressBar::liesOpenToTheMetaObject()
{
    const QMetaObject &meta = ProgressBar::staticMetaObject;
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        names << meta.property(i).name();
    QCOMPARE(names.join(' '),
             QStringLiteral("m_minValue m_maxValue m_curValue m_percent m_padding m_radius "
                            "m_valueBrush m_valueColor m_bgColor m_tipColor m_textColor"));
    names.clear();
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names << meta.method(i).methodSignature();
    QCOMPARE(names.join(' '),
             QStringLiteral("valueChanged(double) setRange(double,double) setRange(int,int) "
                            "setMinValue(double) setMaxValue(double) setValue(double) "
                            "setValue(int) setPercent(bool) setPadding(int) setRadius(int) "
                            "setValueBrush(QBrush) setValueColor(QColor) setBgColor(QColor) "
                            "setTipColor(QColor) setTextColor(QColor)"));
}

QTEST_MAIN(TestProgressBar)
#include "tst_progressbar.moc"
