#include "widgettest.h"

#include <QAbstractEventDispatcher>
#include <zscrolllabel.h>

namespace {

constexpr int Never = 19000; // ms, what comes later is no CoarseTimer any more

const QString LongText = "A text that is longer than the label";

/*! A label of 16 pixel letters whose only ticks are those of the test. */
struct Marquee : ZScrollLabel
{
    explicit Marquee(const QString &text = LongText, const QSize &size = {90, 30})
        : ZScrollLabel(text)
    {
        QFont bigFont = font();
        bigFont.setPixelSize(16);
        setFont(bigFont);
        setTimerMsc(Never);
        resize(size);
        show();
    }

    QList<QAbstractEventDispatcher::TimerInfo> timers()
    {
        return QAbstractEventDispatcher::instance()->registeredTimers(this);
    }

    /*! Ticks some \a times in steps of so many pixels. */
    void run(int step, int times = 1)
    {
        setStep(step);
        QTimerEvent event(timers().value(0, {-1, 0, Qt::CoarseTimer}).timerId);
        for (int i = 0; i < times; ++i)
            QCoreApplication::sendEvent(this, &event);
    }

    int textWidth() const { return fontMetrics().horizontalAdvance(text()); }

    /*! Empty if it shows its text with the left edge at each of \a places and the middle at y. */
    QString shows(std::initializer_list<int> places, double y)
    {
        const auto draw = [&](QPainter &painter) {
            painter.setFont(font());
            painter.setPen(Qt::white);
            for (const int x : places)
                painter.drawText(QRectF(x, y - height() / 2.0, 500, height()), Qt::AlignVCenter,
                                 text());
        };
        return difference(snapshot(*this), reference(size(), draw));
    }
};

} // namespace

class TestZScrollLabel : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void standsStillIfItFits()
    {
        for (const QString &text : {QString(), QString("Fi\tts"), QString("a\nb\n"),
                                    QString::fromUtf8("ab\nשל"), QString("a") + QChar(0x9c)}) {
            for (const QSize size : {QSize(130, 30), QSize(111, 21)}) {
                Marquee label(text, size);
                QCOMPARE(label.timers().size(), 0);
                QCOMPARE(label.shows({0}, size.height() / 2.0), QString());
            }
        }
        Marquee label("right");
        label.resize(label.textWidth(), 30);
        QCOMPARE(label.timers().size(), 0);
        label.resize(label.textWidth() - 1, 30);
        QCOMPARE(label.timers().size(), 1);
        label.setScrollDirection(ScrollVertical);
        label.resize(90, 0);
        QCOMPARE(label.timers().size(), 1);
        label.setText({});
        QCOMPARE(label.timers().size(), 0);
    }

    void runsThroughItsSeam()
    {
        Marquee label;
        const int width = label.textWidth();
        QCOMPARE(label.shows({0, width + 72}, 15), QString());
        label.run(1, 7);
        QCOMPARE(label.shows({-7, width + 65}, 15), QString());
        label.run(width - 27);
        QCOMPARE(label.shows({20 - width, 92}, 15), QString());
        label.setSpacing(31);
        // The step, and where the text then starts.
        for (const auto &[step, x] : {std::make_pair(51, -31 - width), {1, 0}, {-10, 10}}) {
            label.run(step);
            QCOMPARE(label.shows({x, x + width + 31}, 15), QString());
        }
    }

    void runsUpwards()
    {
        Marquee label(LongText, {60, 41});
        label.setScrollDirection(ScrollVertical);
        label.run(10); // still decided horizontally, and moved upwards
        QCOMPARE(label.shows({0}, 15.5), QString());

        label.upateLabelRollingState();
        const int lines = (label.textWidth() + 59) / 60;
        const int height = lines * label.fontMetrics().height();
        label.setSpacing(17);
        label.run(10, 2);
        QCOMPARE(label.shows({0}, 10.5), QString());
        label.run(height - 20); // the text has left, and the copy has come half of the way
        QCOMPARE(label.shows({0}, 29), QString());
        label.run(18);
        QCOMPARE(label.shows({0}, 20.5), QString());
        label.resize(60, height);
        QCOMPARE(label.timers().size(), 0);
    }

    void ticksOncePerInterval()
    {
        Marquee label;
        for (int i = 0; i < 5; ++i)
            label.resize(50 + i, 30);
        label.setTimerMsc(25);
        QCOMPARE(label.timers().size(), 1);
        QCOMPARE(label.timers()[0].interval, Never);
        label.upateLabelRollingState();
        QCOMPARE(label.timers()[0].interval, 25);
        QCOMPARE(label.timers()[0].timerType, Qt::CoarseTimer);
        QVERIFY(repaints(label, [] { QTest::qWait(100); }));

        label.setNeedScroll(false);
        QCOMPARE(label.timers().size(), 1);
        label.setText(LongText);
        QVERIFY(!repaints(label, [] { QTest::qWait(300); }));
        label.setNeedScroll(true);
        label.setTimerMsc(-1);
        label.upateLabelRollingState();
        QCOMPARE(label.timers().size(), 0);
        QCOMPARE(label.shows({0}, 15), QString());
    }

    void keepsItsPlaceWhileHidden()
    {
        Marquee label;
        label.run(1, 9);
        QTimerEvent another(-1);
        QCoreApplication::sendEvent(&label, &another);
        label.hide();
        label.run(1, 9);
        QCOMPARE(label.shows({-9}, 15), QString());
    }

    void repaintsForALook()
    {
        Marquee label;
        QVERIFY(repaints(label, [&] { label.setStep(1); }));
        QVERIFY(repaints(label, [&] { label.setSpacing(1); }));
        QVERIFY(repaints(label, [&] { label.setFontColor(Qt::red); }));
        QVERIFY(label.shows({0}, 15) != QString());
        QVERIFY(!repaints(label, [&] {
            label.setScrollDirection(ScrollVertical);
            label.setTimerMsc(Never);
            label.setNeedScroll(true);
        }));
    }

    void survivesAnyNumber()
    {
        for (const int direction : {0, 1, 7}) {
            Marquee label(LongText, {90, 10});
            label.setScrollDirection(ScrollDirection(direction));
            label.setSpacing(INT_MAX);
            label.run(INT_MIN, 3);
            label.run(INT_MAX, 3);
            label.resize(0, 10);
            snapshot(label, {1, 10});
        }
    }
};

QTEST_MAIN(TestZScrollLabel)
#include "tst_zscrolllabel.moc"
