#include "finger.h"
#include "picture.h"
#include "samplefile.h"
#include "warnings.h"

#include <circlebutton.h>
#include <zsvgwidget.h>

using ZIRVOUI::CircleButton;
using ZIRVOUI::ZSvgWidget;

using Change = void (*)(CircleButton &, Finger &);
Q_DECLARE_METATYPE(Change)

class TestCircleButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void keepsTheSizeOfItsFirstIcon();
    void reportsLongPresses_data();
    void reportsLongPresses();
    void stopsReporting_data();
    void stopsReporting();
    void mayBeDeletedInItsSlots();
};

void TestCircleButton::paints_data()
{
    QTest::addColumn<int>("border");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("down");
    QTest::addColumn<QColor>("fill");
    const QColor color(30, 120, 60, 200);
    QTest::newRow("plain, hair line") << 0 << true << false << color;
    QTest::newRow("disabled") << 4 << false << false << QColor(79, 79, 79, 200);
    QTest::newRow("down") << 5 << true << true << color.lighter(135);
    QTest::newRow("disabled while down") << 1 << false << true << color.lighter(135);
}

void TestCircleButton::paints()
{
    QFETCH(int, border);
    QFETCH(bool, enabled);
    QFETCH(bool, down);
    QFETCH(QColor, fill);

    CircleButton button(QStringLiteral("missing.svg"));
    button.setText(QStringLiteral("A && B"));
    button.setFontSize(13);
    button.setFontColor(Qt::yellow);
    button.setBackgroundColor(QColor(30, 120, 60, 200));
    button.setBorderColor(Qt::red);
    button.setBorderWidth(border);
    button.setEnabled(enabled);
    button.setDown(down);

    for (const QSize size : {QSize(60, 60), QSize(91, 45)}) {
        button.resize(size);
        const double half = border / 2.0;
        const QRectF all(QPointF(), size);
        COMPARE_PICTURES(snapshot(button), reference(size, [&](QPainter &painter) {
                             painter.setRenderHint(QPainter::Antialiasing);
                             painter.setPen({Qt::red, double(border), Qt::SolidLine, Qt::FlatCap,
                                             Qt::BevelJoin});
                             painter.setBrush(fill);
                             painter.drawEllipse(all.adjusted(half, half, -half, -half));
                             painter.setFont(button.font());
                             painter.setPen(Qt::yellow);
                             painter.drawText(all, Qt::AlignCenter, QStringLiteral("A && B"));
                         }));
    }
}

void TestCircleButton::keepsTheSizeOfItsFirstIcon()
{
    SampleFile svg(QStringLiteral("icon.svg"));
    svg.writeSvg("red");
    CircleButton button(svg.path());
    auto *icon = button.findChild<ZSvgWidget *>();
    button.resize(60, 40);
    snapshot(button);
    QCOMPARE(icon->geometry(), QRect(20, 15, 20, 10));
    svg.write("<svg width='50' height='50'/>");
    button.loadSvg(svg.path());
    snapshot(button);
    QCOMPARE(icon->geometry(), QRect(20, 15, 20, 10));
    QCOMPARE(CircleButton(QString()).findChild<ZSvgWidget *>()->maximumSize(), QSize(0, 0));
}

void TestCircleButton::reportsLongPresses_data()
{
    QTest::addColumn<int>("delay");
    QTest::addColumn<int>("hold");
    QTest::addColumn<bool>("repeat");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("never set") << -5 << 300 << false << 1 << 1;
    QTest::newRow("once") << 40 << 300 << false << 1 << 1;
    QTest::newRow("again and again") << 40 << 300 << true << 2 << 13;
    QTest::newRow("released before") << 150 << 10 << true << 0 << 0;
}

void TestCircleButton::reportsLongPresses()
{
    QFETCH(int, delay);
    QFETCH(int, hold);
    QFETCH(bool, repeat);
    QFETCH(int, least);
    QFETCH(int, most);
    CircleButton button((QString()));
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    button.setLongPressDelayMS(delay);
    button.setLongPressIntervalMS(20);
    button.setLongPressRepeat(repeat);
    QSignalSpy reports(&button, &CircleButton::signal_longPressed);
    QSignalSpy clicks(&button, &CircleButton::clicked);

    Finger finger(button);
    finger.press({10, 10});
    QTest::qWait(hold);
    finger.release({10, 10});
    const int reported = reports.count();
    QVERIFY2(reported >= least && reported <= most, qPrintable(QString::number(reported)));
    QCOMPARE(clicks.count(), 1);
    QTest::qWait(200);
    QCOMPARE(reports.count(), reported);
}

void TestCircleButton::stopsReporting_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("when the finger slides off") << Change([](CircleButton &, Finger &finger) {
        finger.move({-9, -9});
    });
    QTest::newRow("when it is disabled")
        << Change([](CircleButton &button, Finger &) { button.setDisabled(true); });
    QTest::newRow("when it is hidden while down") << Change([](CircleButton &button, Finger &) {
        button.hide();
        button.setDown(true);
    });
}

void TestCircleButton::stopsReporting()
{
    QFETCH(Change, change);
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

void TestCircleButton::mayBeDeletedInItsSlots()
{
    QVERIFY(mayBeDeletedIn(&QAbstractButton::pressed, new CircleButton(QString())));
    QVERIFY(mayBeDeletedIn(&QAbstractButton::clicked, new CircleButton(QString())));

    QPointer<CircleButton> button = new CircleButton(QString());
    button->setLongPressRepeat(true);
    connect(button.data(), &CircleButton::signal_longPressed, this, [&] { delete button.data(); });
    QTest::mousePress(button.data(), Qt::LeftButton);
    QTRY_VERIFY(!button);
}

QTEST_MAIN(TestCircleButton)
#include "tst_circlebutton.moc"
