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

    void paints_data();
    void paints();
    void comesUpAfterADrag();
    void passesItsEventsToItsParent();
    void mayBeDeletedInItsSlots();
    void lookSettersOnlyStore();
};

void TestZButton::paints_data()
{
    QTest::addColumn<bool>("icon");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("down");
    QTest::addColumn<double>("opacity");
    for (const bool icon : {false, true}) {
        const QByteArray kind = icon ? "with an icon, " : "plain, ";
        QTest::newRow(kind + "up") << icon << true << false << 1.0;
        QTest::newRow(kind + "disabled") << icon << false << false << 0.3;
        QTest::newRow(kind + "down") << icon << true << true << 0.6;
        QTest::newRow(kind + "disabled while down") << icon << false << true << 0.6;
    }
}

void TestZButton::paints()
{
    QFETCH(bool, icon);
    QFETCH(bool, enabled);
    QFETCH(bool, down);
    QFETCH(double, opacity);
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::darkGreen);
    QPainter(&pixmap).fillRect(2, 3, 4, 2, Qt::yellow);

    ZButton button(QStringLiteral("A && B"));
    button.setFontSize(13);
    button.setCheckable(true);
    button.setChecked(true);
    button.setEnabled(enabled);
    button.setDown(down);
    if (icon)
        button.setIcon(pixmap);

    const QHash<int, int> raiseOfHeight = {{63, 3}, {15, 0}};
    for (const QSize size : {QSize(120, 63), QSize(61, 15)}) {
        button.resize(size);
        const QRect all(QPoint(), size);
        const QRect text = all.adjusted(0, -raiseOfHeight.value(size.height()), 0, 0);
        COMPARE_PICTURES(snapshot(button), reference(size, [&](QPainter &painter) {
                             painter.setRenderHint(QPainter::Antialiasing);
                             painter.setOpacity(opacity);
                             painter.setPen(Qt::NoPen);
                             painter.setBrush(QColor("#316AFF"));
                             if (icon)
                                 painter.drawPixmap(all, button.icon().pixmap(size));
                             else
                                 painter.drawRoundedRect(all, 10, 10);
                             painter.setFont(button.font());
                             painter.setPen(Qt::white);
                             painter.drawText(text, Qt::AlignCenter, QStringLiteral("A && B"));
                         }));
    }
}

void TestZButton::comesUpAfterADrag()
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

void TestZButton::passesItsEventsToItsParent()
{
    class Parent : public QWidget
    {
    public:
        int events = 0;

    protected:
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

void TestZButton::mayBeDeletedInItsSlots()
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

void TestZButton::lookSettersOnlyStore()
{
    ZButton button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    PaintCounter paints(button);
    button.setBackgroundColor(Qt::red);
    button.setFontColor(Qt::blue);
    button.setRadius(3);
    QCOMPARE(paints.take(), 0);
    button.setFontSize(0);
    button.setFontSize(33);
    QCOMPARE(paints.take(), 1);
}

QTEST_MAIN(TestZButton)
#include "tst_zbutton.moc"
