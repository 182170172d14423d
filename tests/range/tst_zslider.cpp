#include "widgettest.h"

#include <zslider.h>

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
    using Int = __int128;
    const Int way = qAbs(slider.width() - slider.height());
    if (way == 0)
        return slider.value();
    const Int range = Int(slider.maximum()) - slider.minimum();
    const Int place = Int(x) - slider.height() / 2;
    const bool isUpright = slider.width() < slider.height();
    const Int exact = slider.minimum() * way + range * (isUpright ? -place : place);
    const Int whole = (exact < 0 ? -exact : exact) / way;
    const Int step = qMax(1, slider.singleStep());
    const Int value = (2 * whole + step) / (2 * step) * step;
    return int(qBound<Int>(slider.minimum(), exact < 0 ? -value : value, slider.maximum()));
}

class TestZSlider : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints_data()
    {
        QTest::addColumn<Look>("look");
        QTest::newRow("at first") << Look{{200, 20}, 0, 100, 0, 6, 0, {1, 7, 198, 6}, 10, 0};
        QTest::newRow("middle") << Look{{200, 20}, 0, 100, 50, 6, 0, {1, 7, 198, 6}, 100, 90};
        QTest::newRow("odd") << Look{{151, 31}, -7, 93, 30, 6, 3, {1, 12, 149, 7}, 59, 44};
        QTest::newRow("no range") << Look{{90, 15}, 5, 5, 5, 20, 9, {1, -2, 88, 19}, 7, 0};
        QTest::newRow("upright") << Look{{20, 40}, 0, 9, 3, 8, 0, {1, 16, 18, 8}, 14, -6};
        QTest::newRow("no size") << Look{{1, 1}, 0, 9, 9, 0, 0, {1, 0, -1, 1}, 0, 0};
        QTest::newRow("all numbers")
            << Look{{80, 20}, INT_MIN, INT_MAX, INT_MAX, INT_MIN, -5, {1, 1.5e9, 78, -3e9}, 70, 60};
    }

    void paints()
    {
        QFETCH(Look, look);
        const bool isSet = look.radius != 0; // or as it is at first
        const QColor gray("#797979"), blue(15, 112, 226);
        const QColor slipped = isSet ? QColor(200, 90, 10, 150) : blue;
        const QColor up = isSet ? Qt::cyan : Qt::white, down = isSet ? QColor(Qt::red) : blue;
        QLinearGradient gradient(0, 0, look.size.width() - 1, 0);
        gradient.setStops({{0, isSet ? Qt::yellow : gray}, {1, isSet ? Qt::green : gray}});
        ZSlider slider;
        slider.paintGroove(); // not yet in a paint: nothing
        slider.paintHanle();
        slider.resize(look.size);
        slider.setOrientation(Qt::Vertical);
        slider.setRange(look.min, look.max);
        if (look.value != 0)
            slider.setValue(look.value);
        slider.setGrooveThickness(look.thickness);
        if (isSet)
            QVERIFY(!repaints(slider, [&] {
                slider.addGradientColor({{0, Qt::red}, {0, Qt::yellow}, {qQNaN(), Qt::red}});
                slider.setGrooveColor(Qt::green);
                slider.setGrooveRadius(look.radius);
                slider.setGrooveSlippedColor(slipped);
                slider.setHandleNormalColor(up);
                slider.setHandlePressColor(down);
            }));
        for (const int state : {0, 1, 2, 3}) {
            const bool enabled = state & 1, pressed = state & 2;
            slider.setEnabled(enabled);
            slider.setSliderDown(pressed);
            comparePictures(slider, {look.size}, [&](QPainter &painter, const QRect &all) {
                QRectF groove = look.groove;
                painter.setOpacity(enabled ? 1 : 0.3);
                painter.setBrush(gradient);
                painter.drawRoundedRect(groove, look.radius, look.radius);
                groove.setWidth(look.slipped);
                painter.setBrush(slipped);
                painter.drawRoundedRect(groove, look.radius, look.radius);
                painter.setOpacity(1);
                painter.setBrush(!enabled ? QColor(121, 123, 129) : pressed ? down : up);
                painter.drawEllipse(look.handle, 0, all.height(), all.height());
            });
        }
    }

    void snaps()
    {
        for (const auto &[min, max] :
             {std::make_pair(0, 100), {-37, 41}, {-105, -5}, {7, 7}, {INT_MIN, INT_MAX}}) {
            ZSlider slider;
            slider.setRange(min, max);
            for (const int width : {200, 333, 21, 20, 7}) {
                slider.resize(width, 20 + width % 2);
                QVector<int> places = {INT_MIN, -100000, 100000, INT_MAX};
                for (int x = -20; x < width + 20; ++x)
                    places << x;
                for (const int step : {0, 1, 2, 3, 10, 250, INT_MAX}) {
                    slider.setSingleStep(step);
                    for (const int x : qAsConst(places)) {
                        const int expected = snapped(slider, x);
                        slider.calcHandleValue(x);
                        QCOMPARE(slider.value(), expected);
                    }
                }
            }
        }
    }

    void isDragged()
    {
        ZSlider slider;
        slider.setFixedSize(220, 20); // two pixels to one
        slider.setMaximum(100);
        slider.show();
        QString log;
        connect(&slider, &ZSlider::sliderPressed, [&] { log += "pressed "; });
        connect(&slider, &ZSlider::sliderReleased, [&] { log += "released "; });
        connect(&slider, &ZSlider::valueChanged,
                [&](int value) { log += QString("is %1 ").arg(value); });
        connect(&slider, &ZSlider::sliderMoved, [&](int position) {
            log += QString("moved %1=%2 ").arg(position).arg(slider.value());
        });
        Finger finger(slider, Qt::RightButton);
        finger.press({110, 3});
        for (const int x : {130, 131, 219})
            finger.move({x, 9});
        finger.release({219, 9});
        slider.setTracking(false);
        finger.press({214, 0});
        slider.setSliderPosition(7);
        finger.release({214, 0});
        slider.setSliderDown(true);
        slider.setSliderPosition(9);
        slider.setValue(9);
        QCOMPARE(log,
                 QString("pressed moved 50=50 is 50 moved 60=60 is 60 moved 100=100 is 100 "
                         "released pressed moved 7=100 released is 7 pressed moved 9=7 is 9 "));
    }

    void keepsItsHandle()
    {
        ZSlider slider;
        slider.resize(220, 20);
        slider.setValue(20);
        const QImage before = snapshot(slider);
        QTest::keyClick(&slider, Qt::Key_Right);
        QCOMPARE(slider.value(), 21);
        slider.setRange(70, 100);
        slider.setRange(0, 100);
        slider.resize(400, 20);
        COMPARE_PICTURES(snapshot(slider, {220, 20}), before);

        QVERIFY(repaints(slider, [&] { slider.calcHandlePosition(); }));
        QVERIFY(repaints(slider, [&] { QTest::mouseRelease(&slider, Qt::LeftButton); }));
        QVERIFY(snapshot(slider) != before);
    }

    void mayBeDeletedByItsSlots()
    {
        for (const auto signal : {&ZSlider::sliderPressed, &ZSlider::sliderReleased})
            QVERIFY(mayBeDeletedIn(signal, new ZSlider));
        for (const auto signal : {&ZSlider::sliderMoved, &ZSlider::valueChanged}) {
            auto *slider = new ZSlider;
            slider->setValue(99);
            QVERIFY(mayBeDeletedIn(signal, slider));
        }
    }
};

QTEST_MAIN(TestZSlider)
#include "tst_zslider.moc"
