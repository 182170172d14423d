#include "buttontest.h"

#include <zbutton.h>

using ZIRVOUI::ZButton;

class TestZButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints()
    {
        ZButton button(QStringLiteral("A && B"));
        button.setFontSize(13);
        button.setCheckable(true);
        button.setChecked(true);
        for (const QIcon &icon : {QIcon(), QIcon(spottedPixmap())}) {
            button.setIcon(icon);
            compareStates(button, {{120, 63}, {61, 15}}, [&](QPainter &painter, const QRect &all) {
                painter.setOpacity(button.isDown() ? 0.6 : button.isEnabled() ? 1.0 : 0.3);
                painter.setPen(Qt::NoPen);
                painter.setBrush(QColor("#316AFF"));
                if (icon.isNull())
                    painter.drawRoundedRect(all, 10, 10);
                else
                    painter.drawPixmap(all, icon.pixmap(all.size()));
                painter.setPen(Qt::white);
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
        QVERIFY(!repaints(button, [&] {
            button.setBackgroundColor(Qt::red);
            button.setFontColor(Qt::blue);
            button.setRadius(3);
            button.setFontSize(0);
        }));
        QVERIFY(repaints(button, [&] { button.setFontSize(33); }));
    }
};

QTEST_MAIN(TestZButton)
#include "tst_zbutton.moc"
