#include "finger.h"
#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <zbutton.h>

using ZIRVOUI::ZButton;

class TestZButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints()
    {
        QPixmap pixmap(8, 8);
        pixmap.fill(Qt::darkGreen);
        QPainter(&pixmap).fillRect(2, 3, 4, 2, Qt::yellow);
        ZButton button(QStringLiteral("A && B"));
        button.setFontSize(13);
        button.setCheckable(true);
        button.setChecked(true);
        // Every combination: the bits of the look are its states.
        for (const int look : {0, 1, 2, 3, 4, 5, 6, 7}) {
            const bool icon = look & 4;
            button.setEnabled(look & 1);
            button.setDown(look & 2);
            button.setIcon(icon ? QIcon(pixmap) : QIcon());
            for (const QSize size : {QSize(120, 63), QSize(61, 15)}) {
                const QRect all(QPoint(), size);
                const QRect text = all.adjusted(0, -(size.height() / 16), 0, 0);
                const auto draw = [&](QPainter &painter) {
                    painter.setRenderHint(QPainter::Antialiasing);
                    painter.setOpacity(button.isDown() ? 0.6 : button.isEnabled() ? 1.0 : 0.3);
                    painter.setPen(Qt::NoPen);
                    painter.setBrush(QColor("#316AFF"));
                    if (icon)
                        painter.drawPixmap(all, button.icon().pixmap(size));
                    else
                        painter.drawRoundedRect(all, 10, 10);
                    painter.setFont(button.font());
                    painter.setPen(Qt::white);
                    painter.drawText(text, Qt::AlignCenter, button.text());
                };
                COMPARE_PICTURES(snapshot(button, size), reference(size, draw));
            }
        }
    }

    void comesUpAfterADrag()
    {
        QWidget window;
        ZButton button(&window);
        button.setGeometry(10, 10, 100, 60);
        button.setAutoRepeat(true);
        button.setAutoRepeatDelay(1);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        Finger finger(button);

        QSignalSpy released(&button, &QAbstractButton::released);
        finger.press({50, 10});
        button.setAutoRepeat(false);
        released.clear();
        finger.move({50, 31});
        finger.release({50, 31});
        QVERIFY(!button.isDown());
        QCOMPARE(released.count(), 0);

        finger.press({50, 10});
        finger.move({90, 30});
        finger.release({90, 30});
        QCOMPARE(released.count(), 1);
    }

    void passesItsEventsToItsParent()
    {
        struct Parent : QWidget
        {
            int events = 0;
            void mousePressEvent(QMouseEvent *) override { ++events; }
            void mouseMoveEvent(QMouseEvent *) override { ++events; }
            void mouseReleaseEvent(QMouseEvent *) override { ++events; }
        } parent;
        ZButton button(&parent);
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));
        QSignalSpy clicks(&button, &QAbstractButton::clicked);

        for (const bool passed : {false, true}) {
            parent.events = 0;
            button.setMouseEventToParent(passed);
            Finger finger(button);
            finger.press({5, 5});
            finger.move({8, 8});
            finger.release({8, 8});
            QCOMPARE(parent.events, passed ? 3 : 0);
        }
        QCOMPARE(clicks.count(), 2);

        // A parent that scrolls takes the button along, so that it stays under the finger.
        Finger finger(parent);
        const QPoint start = button.geometry().center();
        finger.press(start);
        for (int way = 10; way <= 30; way += 10) {
            finger.move(start + QPoint(0, way));
            button.move(0, way);
        }
        finger.release(start + QPoint(0, 30));
        QCOMPARE(clicks.count(), 2);
    }

    void mayBeDeletedInItsSlots()
    {
        for (auto signal : {&QAbstractButton::pressed, &QAbstractButton::released}) {
            auto *button = new ZButton;
            button->setMouseEventToParent(true);
            QVERIFY(mayBeDeletedIn(signal, button));
        }
        QVERIFY(mayBeDeletedIn(&QAbstractButton::clicked, new ZButton));
        auto *checkable = new ZButton;
        checkable->setCheckable(true);
        QVERIFY(mayBeDeletedIn(&QAbstractButton::toggled, checkable));
    }

    void lookSettersOnlyStore()
    {
        ZButton button;
        const auto change = [&] {
            button.setBackgroundColor(Qt::red);
            button.setFontColor(Qt::blue);
            button.setRadius(3);
            button.setFontSize(0);
        };
        QVERIFY(!repaints(button, change));
        QVERIFY(repaints(button, [&] { button.setFontSize(33); }));
    }
};

QTEST_MAIN(TestZButton)
#include "tst_zbutton.moc"
