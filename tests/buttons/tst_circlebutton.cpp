#include "buttontest.h"

#include <circlebutton.h>
#include <tuple>
#include <zsvgwidget.h>

class TestCircleButton : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints()
    {
        const QColor color(30, 120, 60, 200);
        CircleButton button("missing.svg");
        button.setText("A && B");
        button.setFontSize(13);
        button.setFontColor(Qt::yellow);
        QVERIFY(
            !repaints(button, [&] { button.setBorderColor(Qt::red), button.setBorderWidth(3); }));
        QVERIFY(repaints(button, [&] { button.setBackgroundColor(color); }));
        for (const double width : {0.0, 5.0}) {
            const double half = width / 2;
            button.setBorderWidth(int(width));
            compareStates(button, {{60, 60}, {91, 45}}, [&](QPainter &painter, const QRectF &all) {
                const QColor up = button.isEnabled() ? color : QColor(79, 79, 79, 200);
                painter.setPen({Qt::red, width, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin});
                painter.setBrush(button.isDown() ? color.lighter(135) : up);
                painter.drawEllipse(all.adjusted(half, half, -half, -half));
                painter.setPen(Qt::yellow);
                painter.drawText(all, Qt::AlignCenter, button.text());
            });
        }
    }

    void keepsTheSizeOfItsFirstIcon()
    {
        const SampleFile svg("icon.svg", sampleSvg("red"));
        CircleButton button(svg.path());
        svg.write("<svg width='50' height='50'/>");
        button.loadSvg(svg.path());
        snapshot(button, QSize(60, 40));
        QCOMPARE(button.findChild<ZSvgWidget *>()->geometry(), QRect(20, 15, 20, 10));
        QCOMPARE(CircleButton(QString()).findChild<ZSvgWidget *>()->maximumSize(), QSize(0, 0));
    }

    void reportsAfterItsDelayAndIntervals()
    {
        CircleButton button((QString()));
        QSignalSpy reports(&button, &CircleButton::signal_longPressed);
        // Delay, interval, whether it repeats, and the reports in 100 ms.
        for (const auto &[delay, interval, repeats, count] :
             {std::make_tuple(-5, 20, false, 1), {-5, 60000, true, 1}, {60000, 0, true, 0}}) {
            button.setLongPressDelayMS(delay);
            button.setLongPressIntervalMS(interval);
            button.setLongPressRepeat(repeats);
            reports.clear();
            QTest::mousePress(&button, Qt::LeftButton);
            QTest::qWait(100);
            QTest::mouseRelease(&button, Qt::LeftButton);
            QCOMPARE(reports.count(), count);
        }
    }

    void countsFromTheFirstOfItsPresses()
    {
        CircleButton button((QString()));
        button.setLongPressDelayMS(80);
        QSignalSpy reports(&button, &CircleButton::signal_longPressed);
        const auto hasReported = [&] { // is asked every 50 ms
            QTest::mousePress(&button, Qt::RightButton);
            return reports.count() == 1;
        };
        QTRY_VERIFY(hasReported());
    }

    void repeatsWhileDownEnabledAndVisible()
    {
        CircleButton button((QString()));
        button.setLongPressRepeat(true);
        button.setLongPressIntervalMS(-5);
        QSignalSpy reports(&button, &CircleButton::signal_longPressed);
        const std::function<void()> ways[] = {
            [&] { button.setDown(false); }, [&] { button.setEnabled(false), button.setDown(true); },
            [&] { button.hide(), button.setDown(true); }};
        button.show();
        for (const auto &stop : ways) {
            QTest::mousePress(&button, Qt::LeftButton);
            QTRY_VERIFY(reports.count() > 3);
            stop();
            QTest::qWait(20);
            button.setEnabled(true);
            button.show();
            button.setDown(true);
            reports.clear();
            QTest::qWait(50);
            QCOMPARE(reports.count(), 0);
        }
    }

    void mayBeDeletedInItsSlots()
    {
        QVERIFY(mayBeDeletedInSlots([] { return new CircleButton(QString()); }));
        QPointer<CircleButton> button = new CircleButton(QString());
        button->setLongPressRepeat(true);
        connect(button, &CircleButton::signal_longPressed, this, [&] { delete button.data(); });
        QTest::mousePress(button.data(), Qt::LeftButton);
        QTRY_VERIFY(!button);
    }
};

QTEST_MAIN(TestCircleButton)
#include "tst_circlebutton.moc"
