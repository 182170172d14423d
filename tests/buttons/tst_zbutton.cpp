#include "buttontest.h"

#include <zbutton.h>

class TestZButton : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints()
    {
        ZButton button("A && B");
        QVERIFY(staysCheckedInItsGroup(button));
        QVERIFY(repaints(button, [&] { button.setFontSize(13); }));
        for (const int look : {0, 1, 2}) { // as it is, with all set, and with an icon
            if (look == 1)
                QVERIFY(!repaints(button, [&] {
                    button.setBackgroundColor(Qt::red);
                    button.setFontColor(Qt::blue);
                    button.setRadius(3);
                    button.setFontSize(0);
                }));
            const int radius = look == 0 ? 10 : 3;
            const QIcon icon(look == 2 ? spottedPixmap().scaled(210, 150) : QPixmap());
            button.setIcon(icon);
            compareStates(button, {{120, 331}, {61, 15}}, [&](QPainter &painter, const QRect &all) {
                const double ratio = painter.device()->devicePixelRatioF();
                painter.setOpacity(button.isDown() ? 0.6 : button.isEnabled() ? 1.0 : 0.3);
                painter.setBrush(QColor(look == 0 ? "#316AFF" : "red"));
                if (icon.isNull())
                    painter.drawRoundedRect(all, radius, radius);
                else
                    painter.drawPixmap(all, icon.pixmap(all.size() * ratio));
                painter.setPen(look == 0 ? Qt::white : Qt::blue);
                painter.drawText(all.adjusted(0, -(all.height() / 16), 0, 0), Qt::AlignCenter,
                                 button.text());
            });
        }
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
        Finger finger(parent);
        for (const bool passed : {false, true}) {
            button.setMouseEventToParent(passed);
            finger.press({5, 5});
            finger.move({5, 6});
            finger.move({5, 25});
            finger.release({5, 25});
            QCOMPARE(parent.events, passed ? 4 : 0);
        }
        QCOMPARE(clicks.count(), 2);
        for (const QPoint &away : {QPoint(5, 4), QPoint(-1, 25)}) {
            finger.press({5, 25});
            finger.move(away);
            Finger(parent, Qt::RightButton).release(away);
            QCOMPARE(button.isDown(), button.rect().contains(away));
            finger.release({5, 25});
            QVERIFY(!button.isDown());
        }

        // A parent that scrolls takes the button along, so that it stays under the finger.
        finger.press({5, 5});
        for (int way = 10; way <= 30; way += 10) {
            finger.move({5, 5 + way});
            button.move(0, way);
        }
        finger.release({5, 35});
        QCOMPARE(clicks.count(), 2);
    }

    void mayBeDeletedInItsSlots()
    {
        QVERIFY(mayBeDeletedInSlots([] {
            auto *button = new ZButton;
            button->setMouseEventToParent(true);
            button->setCheckable(true);
            return button;
        }));
    }
};

QTEST_MAIN(TestZButton)
#include "tst_zbutton.moc"
