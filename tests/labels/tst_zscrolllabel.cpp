#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QAbstractEventDispatcher>
#include <QtTest>
#include <climits>
#include <zscrolllabel.h>

using namespace ZIRVOUI;

namespace {

constexpr int Never = 19000; // ms, what comes later is no CoarseTimer any more

/*! A label whose only ticks are those of the test. */
struct Marquee : ZScrollLabel
{
    explicit Marquee(const QString &text = QString(), const QSize &size = {90, 30})
    {
        QFont bigFont = font();
        bigFont.setPixelSize(16);
        setFont(bigFont);
        setTimerMsc(Never);
        resize(size);
        show();
        setText(text);
    }

    QList<QAbstractEventDispatcher::TimerInfo> timers() const
    {
        return QAbstractEventDispatcher::instance()->registeredTimers(const_cast<Marquee *>(this));
    }

    void tick(int times = 1)
    {
        QTimerEvent event(timers().value(0, {-1, 0, Qt::CoarseTimer}).timerId);
        for (int i = 0; i < times; ++i)
            QCoreApplication::sendEvent(this, &event);
    }

    int textWidth() const { return fontMetrics().horizontalAdvance(text()); }
};

// The text with its left edge at each of x, and its middle at y.
QImage expected(const Marquee &label, std::initializer_list<int> places, double y)
{
    return reference(label.size(), [&](QPainter &painter) {
        painter.setFont(label.font());
        painter.setPen(Qt::white);
        for (const int x : places) {
            const QRectF rect(x, y - 100, label.textWidth() + 9, 200);
            painter.drawText(rect, Qt::AlignVCenter, label.text());
        }
    });
}

const QString LongText = QStringLiteral("A text that is longer than the label");

} // namespace

class TestZScrollLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void standsStillIfItFits()
    {
        for (const QString &text : {QString(), QString("Fi\tts"), QString("up\ndown\n"),
                                    QString::fromUtf8("ab\nשל"), QString("a") + QChar(0x9c)}) {
            for (const QSize size : {QSize(90, 30), QSize(71, 21)}) {
                Marquee label(text, size);
                QCOMPARE(label.timers().size(), 0);
                COMPARE_PICTURES(snapshot(label), expected(label, {0}, size.height() / 2.0));
            }
        }
        Marquee rightToLeft("right");
        rightToLeft.setLayoutDirection(Qt::RightToLeft);
        COMPARE_PICTURES(snapshot(rightToLeft),
                         expected(rightToLeft, {90 - rightToLeft.textWidth()}, 15));

        Marquee exact(LongText);
        exact.resize(exact.textWidth(), 30);
        QCOMPARE(exact.timers().size(), 0);
        exact.resize(exact.textWidth() - 1, 30);
        QCOMPARE(exact.timers().size(), 1);
    }

    void runsThroughItsSeam()
    {
        Marquee label(LongText);
        const int width = label.textWidth();
        COMPARE_PICTURES(snapshot(label), expected(label, {0, width + 72}, 15));
        label.tick(7);
        COMPARE_PICTURES(snapshot(label), expected(label, {-7, width + 65}, 15));
        label.setStep(width - 7 - 20);
        label.tick();
        COMPARE_PICTURES(snapshot(label), expected(label, {20 - width, 92}, 15));
        label.setSpacing(31);
        label.setStep(51);
        label.tick();
        COMPARE_PICTURES(snapshot(label), expected(label, {-31 - width, 0}, 15));
        label.setStep(1);
        label.tick();
        COMPARE_PICTURES(snapshot(label), expected(label, {0}, 15));
    }

    void runsUpwards()
    {
        Marquee label(LongText, {60, 41});
        label.setScrollDirection(ScrollVertical);
        label.setStep(10);
        label.tick(); // still decided horizontally, and moved upwards
        COMPARE_PICTURES(snapshot(label), expected(label, {0}, 15.5));

        label.upateLabelRollingState();
        const int lines = (label.textWidth() + 59) / 60;
        const int height = lines * label.fontMetrics().height();
        QVERIFY(height > 41);
        label.setSpacing(17);
        label.tick(2);
        COMPARE_PICTURES(snapshot(label), expected(label, {0}, 10.5));
        label.setStep(height - 20);
        label.tick();
        QCOMPARE(difference(snapshot(label), expected(label, {0}, 29)), QString());
        label.setStep(18);
        label.tick();
        COMPARE_PICTURES(snapshot(label), expected(label, {0}, 20.5));

        label.resize(60, height);
        QCOMPARE(label.timers().size(), 0);
    }

    void ticksOncePerInterval()
    {
        Marquee label(LongText);
        for (int i = 0; i < 5; ++i) {
            label.resize(50 + i, 30);
            label.setText(LongText);
        }
        QCOMPARE(label.timers().size(), 1);
        QCOMPARE(label.timers()[0].timerType, Qt::CoarseTimer);
        label.setTimerMsc(25);
        QCOMPARE(label.timers()[0].interval, Never);
        label.upateLabelRollingState();
        QCOMPARE(label.timers()[0].interval, 25);
        QVERIFY(repaints(label, [] { QTest::qWait(100); }));

        label.setNeedScroll(false);
        QCOMPARE(label.timers().size(), 1);
        label.setText(LongText);
        QCOMPARE(label.timers().size(), 0);
        QVERIFY(!repaints(label, [] { QTest::qWait(300); }));
        label.setNeedScroll(true);
        label.setTimerMsc(-1);
        label.upateLabelRollingState();
        QCOMPARE(label.timers().size(), 0);
        COMPARE_PICTURES(snapshot(label), expected(label, {0}, 15));
    }

    void keepsItsPlaceWhileHidden()
    {
        Marquee label(LongText);
        label.tick(9);
        label.hide();
        label.tick(9);
        COMPARE_PICTURES(snapshot(label), expected(label, {-9}, 15));
    }

    void repaintsForALook()
    {
        Marquee label(LongText);
        QVERIFY(repaints(label, [&] { label.setStep(1); }));
        QVERIFY(repaints(label, [&] { label.setSpacing(1); }));
        QVERIFY(repaints(label, [&] { label.setFontColor(Qt::red); }));
        QVERIFY(!repaints(label, [&] {
            label.setScrollDirection(ScrollVertical);
            label.setTimerMsc(Never);
            label.setNeedScroll(true);
        }));
        QVERIFY(snapshot(label) != expected(label, {0}, 15));
    }

    void survivesAnyNumber()
    {
        for (const int step : {INT_MIN, -1, INT_MAX}) {
            for (const int spacing : {INT_MIN, INT_MAX}) {
                for (const int direction : {0, 1, 7}) {
                    Marquee label(LongText, {90, 10});
                    label.setScrollDirection(ScrollDirection(direction));
                    label.setStep(step);
                    label.setSpacing(spacing);
                    label.tick(3);
                    snapshot(label);
                    snapshot(label, {1, 10});
                }
            }
        }
        Marquee backwards(LongText);
        backwards.setStep(-5);
        backwards.tick(2);
        COMPARE_PICTURES(snapshot(backwards), expected(backwards, {10}, 15));
    }
};

QTEST_MAIN(TestZScrollLabel)
#include "tst_zscrolllabel.moc"
