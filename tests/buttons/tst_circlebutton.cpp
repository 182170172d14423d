#include "finger.h"
#include "picture.h"
#include "samplefile.h"
#include "warnings.h"

#include <circlebutton.h>
#include <tuple>
#include <zsvgwidget.h>

using ZIRVOUI::CircleButton;
using ZIRVOUI::ZSvgWidget;

class TestCircleButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints()
    {
        const QColor color(30, 120, 60, 200);
        CircleButton button(QStringLiteral("missing.svg"));
        button.setText(QStringLiteral("A && B"));
        button.setFontSize(13);
        button.setFontColor(Qt::yellow);
        button.setBackgroundColor(color);
        button.setBorderColor(Qt::red);
        // Every combination: the bits of the look are its states.
        for (const int look : {0, 1, 2, 3, 4, 5, 6, 7}) {
            const bool enabled = look & 1;
            const bool down = look & 2;
            const double half = look & 4 ? 2.5 : 0;
            const QSize size = look & 4 ? QSize(91, 45) : QSize(60, 60);
            const QRectF all(QPointF(), size);
            button.setBorderWidth(int(2 * half));
            button.setEnabled(enabled);
            button.setDown(down);
            const QColor up = enabled ? color : QColor(79, 79, 79, 200);
            const auto draw = [&](QPainter &painter) {
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen({Qt::red, 2 * half, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin});
                painter.setBrush(down ? color.lighter(135) : up);
                painter.drawEllipse(all.adjusted(half, half, -half, -half));
                painter.setFont(button.font());
                painter.setPen(Qt::yellow);
                painter.drawText(all, Qt::AlignCenter, button.text());
            };
            COMPARE_PICTURES(snapshot(button, size), reference(size, draw));
        }
    }

    void keepsTheSizeOfItsFirstIcon()
    {
        SampleFile svg(QStringLiteral("icon.svg"));
        svg.writeSvg("red");
        CircleButton button(svg.path());
        svg.write("<svg width='50' height='50'/>");
        button.loadSvg(svg.path());
        snapshot(button, QSize(60, 40));
        QCOMPARE(button.findChild<ZSvgWidget *>()->geometry(), QRect(20, 15, 20, 10));
        QCOMPARE(CircleButton(QString()).findChild<ZSvgWidget *>()->maximumSize(), QSize(0, 0));
    }

    void reportsLongPresses()
    {
        for (const auto &[delay, hold, repeat, least, most] :
             {std::make_tuple(-5, 300, false, 1, 1), std::make_tuple(40, 300, false, 1, 1),
              std::make_tuple(40, 300, true, 2, 13), std::make_tuple(150, 10, true, 0, 0)}) {
            CircleButton button((QString()));
            button.setLongPressDelayMS(delay);
            button.setLongPressIntervalMS(20);
            button.setLongPressRepeat(repeat);
            QSignalSpy reports(&button, &CircleButton::signal_longPressed);
            button.show(); // a hidden one does not repeat
            QTest::mousePress(&button, Qt::LeftButton);
            QTest::qWait(hold);
            QTest::mouseRelease(&button, Qt::LeftButton);
            const int reported = reports.count();
            QVERIFY2(reported >= least && reported <= most, qPrintable(QString::number(reported)));
            QTest::qWait(200);
            QCOMPARE(reports.count(), reported);
        }
    }

    void stopsReporting()
    {
        using Change = void (*)(CircleButton &, Finger &);
        const Change slideOff = [](CircleButton &, Finger &finger) { finger.move({-9, -9}); };
        const Change disable = [](CircleButton &button, Finger &) { button.setEnabled(false); };
        const Change hideWhileDown = [](CircleButton &button, Finger &) {
            button.hide();
            button.setDown(true);
        };
        for (const Change change : {slideOff, disable, hideWhileDown}) {
            QWidget window;
            CircleButton button(QString(), &window);
            button.setGeometry(20, 20, 50, 50);
            button.setLongPressRepeat(true);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            QSignalSpy reports(&button, &CircleButton::signal_longPressed);

            Finger finger(button);
            finger.press({10, 10});
            QTRY_VERIFY(reports.count() > 3);
            change(button, finger);
            QTest::qWait(20);
            reports.clear();
            finger.move({10, 10});
            QTest::qWait(50);
            QCOMPARE(reports.count(), 0);
        }
    }

    void mayBeDeletedInItsSlots()
    {
        QVERIFY(mayBeDeletedIn(&QAbstractButton::pressed, new CircleButton(QString())));
        QVERIFY(mayBeDeletedIn(&QAbstractButton::clicked, new CircleButton(QString())));

        QPointer<CircleButton> button = new CircleButton(QString());
        button->setLongPressRepeat(true);
        connect(button, &CircleButton::signal_longPressed, this, [&] { delete button.data(); });
        QTest::mousePress(button.data(), Qt::LeftButton);
        QTRY_VERIFY(!button);
    }
};

QTEST_MAIN(TestCircleButton)
#include "tst_circlebutton.moc"
