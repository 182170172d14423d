#include "finger.h"
#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <climits>
#include <zslider.h>

using ZIRVOUI::ZSlider;

struct Look
{
    QSize size;
    int min, max, value;
    int thickness, radius;
    QRectF groove;
    int slipped, handle; // width and left edge
};
Q_DECLARE_METATYPE(Look)

// In whole numbers and without signs, where the slider computes with fractions and both signs.
int snapped(const ZSlider &slider, int x)
{
    const __int128 way = slider.width() - slider.height();
    const __int128 range = __int128(slider.maximum()) - slider.minimum();
    const __int128 exact = slider.minimum() * way + range * (__int128(x) - slider.height() / 2);
    const __int128 length = exact < 0 ? -exact : exact; // in parts of the way
    const __int128 step = slider.singleStep();
    __int128 value = length / way;
    if (step > 0) {
        const bool roundsUp = 2 * (value % step) >= step;
        value = (length / (way * step) + roundsUp) * step;
    }
    if (exact < 0)
        value = -value;
    return int(qBound<__int128>(slider.minimum(), value, slider.maximum()));
}

// What a slider reports, in its order.
QStringList *record(ZSlider &slider)
{
    auto *log = new QStringList;
    QObject::connect(&slider, &QObject::destroyed, [log] { delete log; });
    QObject::connect(&slider, &ZSlider::sliderPressed, [log] { *log << "pressed"; });
    QObject::connect(&slider, &ZSlider::sliderReleased, [log] { *log << "released"; });
    QObject::connect(&slider, &ZSlider::sliderMoved, [log, &slider](int position) {
        *log << QString("moved %1=%2").arg(position).arg(slider.value());
    });
    QObject::connect(&slider, &ZSlider::valueChanged,
                     [log](int value) { *log << QString("changed %1").arg(value); });
    return log;
}

class TestZSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data()
    {
        QTest::addColumn<Look>("look");
        QTest::newRow("middle") << Look{{200, 20}, 0, 100, 50, 6, 0, {1, 7, 198, 6}, 100, 90};
        QTest::newRow("odd") << Look{{151, 31}, -7, 93, 30, 6, 3, {1, 12, 149, 7}, 59, 44};
        QTest::newRow("thick") << Look{{90, 15}, 0, 4, 4, 20, 9, {1, -2, 88, 19}, 82, 75};
        QTest::newRow("no range") << Look{{90, 20}, 5, 5, 5, 24, 2, {1, -2, 88, 24}, 10, 0};
        QTest::newRow("square") << Look{{20, 20}, 0, 9, 9, 8, 0, {1, 6, 18, 8}, 10, 0};
        QTest::newRow("upright") << Look{{20, 40}, 0, 9, 3, 8, 0, {1, 16, 18, 8}, 14, -6};
        QTest::newRow("no size") << Look{{1, 1}, 0, 9, 9, 0, 0, {1, 0, -1, 1}, 0, 0};
        QTest::newRow("all numbers")
            << Look{{80, 20}, INT_MIN, INT_MAX, INT_MAX, -1, -5, {1, 10, 78, 0}, 70, 60};
        QTest::newRow("beyond all")
            << Look{{80, 20}, 0, 1, 1, INT_MIN, 0, {1, 1.5e9, 78, -3e9}, 70, 60};
    }

    void paints()
    {
        QFETCH(Look, look);
        const QColor slipped(200, 90, 10, 150), up(20, 220, 30), down(10, 30, 190);
        const QColor grooveStart(Qt::yellow);
        ZSlider slider;
        slider.resize(look.size);
        slider.setOrientation(Qt::Vertical);
        slider.setRange(look.min, look.max);
        slider.setValue(look.value);
        QVERIFY(!repaints(slider, [&] {
            slider.addGradientColor({{0.0, Qt::red}, {1.0, Qt::blue}, {0.0, grooveStart}});
            slider.setGrooveColor(Qt::green);
            slider.setGrooveRadius(look.radius);
            slider.setGrooveThickness(look.thickness);
            slider.setGrooveSlippedColor(slipped);
            slider.setHandleNormalColor(up);
            slider.setHandlePressColor(down);
        }));
        slider.resize(look.size);
        for (const bool enabled : {true, false}) {
            for (const bool pressed : {false, true}) {
                slider.setEnabled(enabled);
                slider.setSliderDown(pressed);
                const QImage expected = reference(look.size, [&](QPainter &painter) {
                    QLinearGradient gradient(0, 0, look.size.width() - 1, 0);
                    gradient.setColorAt(0, grooveStart);
                    gradient.setColorAt(1, Qt::green);
                    QRectF groove = look.groove;
                    painter.setRenderHint(QPainter::Antialiasing);
                    painter.setPen(Qt::NoPen);
                    painter.setOpacity(enabled ? 1 : 0.3);
                    painter.setBrush(gradient);
                    painter.drawRoundedRect(groove, look.radius, look.radius);
                    groove.setWidth(look.slipped);
                    painter.setBrush(slipped);
                    painter.drawRoundedRect(groove, look.radius, look.radius);
                    painter.setOpacity(1);
                    painter.setBrush(!enabled ? QColor(121, 123, 129) : pressed ? down : up);
                    const int height = look.size.height();
                    painter.drawEllipse(QRect(look.handle, 0, height, height));
                });
                COMPARE_PICTURES(snapshot(slider), expected);
            }
        }
    }

    void snaps_data()
    {
        QTest::addColumn<int>("min");
        QTest::addColumn<int>("max");
        QTest::addColumn<int>("step");
        const int steps[] = {0, 1, 2, 3, 10, 250, INT_MAX};
        for (const int step : steps) {
            QTest::addRow("percent, step %d", step) << 0 << 100 << step;
            QTest::addRow("both signs, step %d", step) << -37 << 41 << step;
            QTest::addRow("below zero, step %d", step) << -105 << -5 << step;
            QTest::addRow("one number, step %d", step) << 7 << 7 << step;
            QTest::addRow("all numbers, step %d", step) << INT_MIN << INT_MAX << step;
        }
    }

    void snaps()
    {
        QFETCH(int, min);
        QFETCH(int, max);
        QFETCH(int, step);
        ZSlider slider;
        slider.setRange(min, max);
        slider.setSingleStep(step);
        for (const QSize size : {QSize(200, 20), QSize(333, 31), QSize(21, 20)}) {
            slider.resize(size);
            QVector<int> places = {INT_MIN, -100000, 100000, INT_MAX};
            for (int x = -20; x < size.width() + 20; ++x)
                places << x;
            for (const int x : qAsConst(places)) {
                slider.calcHandleValue(x);
                QCOMPARE(slider.value(), snapped(slider, x));
            }
        }
        slider.setValue(max);
        slider.resize(20, 20);
        slider.calcHandleValue(0);
        QCOMPARE(slider.value(), max);
    }

    void takesTheWholePartFirst()
    {
        ZSlider slider;
        slider.resize(120, 20); // ten pixels to one
        slider.setRange(-5, 5);
        slider.setSingleStep(3);
        slider.calcHandleValue(10 + 64); // 1.4: 1
        QCOMPARE(slider.value(), 0);
        slider.calcHandleValue(10 + 69); // 1.9: 1, though 3 is nearer
        QCOMPARE(slider.value(), 0);
        slider.calcHandleValue(10 + 70);
        QCOMPARE(slider.value(), 3);
        slider.calcHandleValue(10 + 30);
        QCOMPARE(slider.value(), -3);
    }

    void isDragged()
    {
        QWidget window;
        window.resize(400, 300);
        ZSlider slider(&window);
        slider.setGeometry(90, 140, 220, 20); // two pixels to one
        slider.setMaximum(100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QStringList &log = *record(slider);
        Finger finger(slider, Qt::RightButton);
        finger.press({110, 3});
        QVERIFY(slider.isSliderDown());
        finger.move({130, 90});
        finger.move({131, 90});
        finger.move({300, -90});
        finger.release({300, -90});
        QVERIFY(!slider.isSliderDown());
        QCOMPARE(log.join(", "),
                 QString("pressed, moved 50=50, changed 50, moved 60=60, changed 60, "
                         "moved 100=100, changed 100, released"));

        log.clear();
        slider.setTracking(false);
        finger.press({215, 0});
        slider.setSliderPosition(7);
        finger.release({215, 0});
        QCOMPARE(log.join(", "), QString("pressed, moved 7=100, released, changed 7"));
    }

    void keepsItsHandle()
    {
        ZSlider slider;
        slider.resize(220, 20);
        slider.setValue(20);
        const QImage before = snapshot(slider);
        slider.QSlider::setValue(50);
        QTest::keyClick(&slider, Qt::Key_Right);
        QCOMPARE(slider.value(), 51);
        slider.setRange(70, 100);
        QCOMPARE(slider.value(), 70);
        slider.setRange(0, 100);
        slider.resize(400, 20);
        COMPARE_PICTURES(snapshot(slider, {220, 20}), before);

        QVERIFY(repaints(slider, [&] { slider.calcHandlePosition(); }));
        QVERIFY(repaints(slider, [&] { QTest::mouseRelease(&slider, Qt::LeftButton); }));
        QVERIFY(snapshot(slider) != before);
        slider.setValue(20);
        COMPARE_PICTURES(snapshot(slider), before);
    }

    void mayBeDeletedByItsSlots()
    {
        const auto newSlider = [] {
            auto *slider = new ZSlider;
            slider->setValue(99);
            return slider;
        };
        QVERIFY(mayBeDeletedIn(&ZSlider::sliderPressed, newSlider()));
        QVERIFY(mayBeDeletedIn(&ZSlider::sliderMoved, newSlider()));
        QVERIFY(mayBeDeletedIn(&ZSlider::valueChanged, newSlider()));
        QVERIFY(mayBeDeletedIn(&ZSlider::sliderReleased, newSlider()));
    }

    void refusesQuietly()
    {
        ZSlider slider;
        slider.paintGroove();
        slider.paintHanle();

        slider.resize(200, 20);
        const QImage before = snapshot(slider);
        slider.addGradientColor({{qQNaN(), Qt::red}});
        COMPARE_PICTURES(snapshot(slider), before);
    }
};

QTEST_MAIN(TestZSlider)
#include "tst_zslider.moc"
