#include "widgettest.h"

#include <progressbar.h>

struct Look
{
    double min, max, value;
    int padding, radius;
    int length; // on 205 pixels
};
Q_DECLARE_METATYPE(Look)

class TestProgressBar : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints_data()
    {
        QTest::addColumn<Look>("look");
        QTest::newRow("half, truncated") << Look{50, 100, 75, 0, 6, 102};
        QTest::newRow("full, padded") << Look{0, 100, 100, 10, 20, 185};
        QTest::newRow("inverted range") << Look{10, -10, 5, 0, 0, 51};
        QTest::newRow("empty range") << Look{7, 7, 9, 0, 0, 0};
        QTest::newRow("no number") << Look{0, 1, qQNaN(), 0, 0, 0};
        QTest::newRow("huge range") << Look{-DBL_MAX, DBL_MAX, DBL_MAX, 0, 0, 0};
        QTest::newRow("huge padding") << Look{0, 2, 1, INT_MIN, 0, INT_MAX};
    }

    void paints()
    {
        QFETCH(Look, look);
        QLinearGradient gradient(0, 0, 100, 0);
        gradient.setColorAt(0.5, Qt::red);
        const QColor color(10, 200, 90, 120);
        for (const QBrush &brush : {QBrush(Qt::NoBrush), QBrush(gradient)}) {
            ProgressBar bar;
            const QColor ground = bar.getBgColor();
            const QHash<QString, QVariant> properties
                = {{"m_minValue", look.min},      {"m_maxValue", look.max},
                   {"m_padding", look.padding},   {"m_radius", look.radius},
                   {"m_valueBrush", brush},       {"m_valueColor", color},
                   {"m_bgColor", ground},         {"m_percent", true},
                   {"m_tipColor", QColor("red")}, {"m_textColor", QColor("red")}};
            QVERIFY(!repaints(bar, [&] {
                bar.setRange(-DBL_MAX, DBL_MAX);
                bar.setValue(look.value);
                for (auto property = properties.begin(); property != properties.end(); ++property)
                    QVERIFY(bar.setProperty(qPrintable(property.key()), *property));
            }));
            for (auto property = properties.begin(); property != properties.end(); ++property)
                QCOMPARE(bar.property(qPrintable(property.key())), *property);
            comparePictures(bar, {{205, 31}}, [&](QPainter &painter, const QRect &all) {
                painter.setBrush(Qt::darkGray);
                painter.drawRoundedRect(all, look.radius, look.radius);
                painter.setBrush(brush == QBrush(Qt::NoBrush) ? QBrush(color) : brush);
                painter.drawRoundedRect(QRectF(0, 0, look.length, 31), look.radius, look.radius);
            });
        }
    }

    void limitsItsValue()
    {
        ProgressBar bar;
        const auto stored = [&](double min, double max, auto value) {
            bar.setRange(min, max);
            QSignalSpy changes(&bar, &ProgressBar::valueChanged);
            bar.setValue(value);
            bar.setValue(value); // emits it again
            const QVariantList change = {bar.getValue()};
            return changes == QList<QVariantList>({change, change}) ? bar.getValue() : qQNaN();
        };
        QVERIFY(repaints(bar, [&] { bar.setValue(0); }));
        QCOMPARE(stored(0.5, 10.5, 7.25), 7.25);
        QCOMPARE(stored(0.5, 10.5, 20.0), 10.5);
        QCOMPARE(stored(0.5, 10.5, 0.0), 0.5);
        QCOMPARE(stored(0.5, 10.5, 20), 10.0);
        QCOMPARE(stored(0.5, 10.5, 0), 0.0);
        QCOMPARE(stored(8, 2, 5.0), 8.0);
        QCOMPARE(stored(1e300, 1e301, 5), double(INT_MAX));
    }
};

QTEST_MAIN(TestProgressBar)
#include "tst_progressbar.moc"
