#include "finger.h"
#include "picture.h"
#include "warnings.h"

#include <QButtonGroup>
#include <QPropertyAnimation>
#include <limits>
#include <switchbutton.h>

using ZIRVOUI::SwitchButton;

namespace {

constexpr int Travel = 51; // 119 - 68

/*! The way that the knob was last sent on, such as "0 > 51"; empty if it was not. */
QString takeWay(SwitchButton &button)
{
    const auto animations = button.findChildren<QPropertyAnimation *>();
    if (animations.isEmpty())
        return {};
    const QPropertyAnimation *last = animations.last();
    const QString way = last->startValue().toString() + " > " + last->endValue().toString();
    const int end = last->endValue().toInt();
    qDeleteAll(animations);
    button.setOffset(end);
    return way;
}

} // namespace

class TestSwitchButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void changesItsCheckState_data();
    void changesItsCheckState();
    void followsTheCheckedFlagWhileBlocked();
    void movesForAClick();
    void leavesMovingToTheApplication();
    void staysInStep();
    void staysInStepInAGroup();
    void mayBeDeletedInItsSlots();
};

void TestSwitchButton::paints_data()
{
    QTest::addColumn<Qt::CheckState>("state");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<double>("margin");
    QTest::newRow("off") << Qt::Unchecked << true << 8.0;
    QTest::newRow("on") << Qt::Checked << true << 8.0;
    QTest::newRow("partially checked") << Qt::PartiallyChecked << true << 3.25;
    QTest::newRow("disabled") << Qt::PartiallyChecked << false << 8.0;
    QTest::newRow("no margin") << Qt::PartiallyChecked << true << qQNaN();
    QTest::newRow("margin without end")
        << Qt::Checked << true << -std::numeric_limits<double>::max();
}

void TestSwitchButton::paints()
{
    QFETCH(Qt::CheckState, state);
    QFETCH(bool, enabled);
    QFETCH(double, margin);
    const bool off = state == Qt::Unchecked;

    SwitchButton button;
    QFont strange(QStringLiteral("DejaVu Sans"), 30, QFont::Bold, true);
    button.setFont(strange);
    button.setMargin(margin);
    button.setCheckState(state);
    button.setCheckText(QStringLiteral("On"));
    button.setNoCheckText(QStringLiteral("Off"));
    button.setEnabled(enabled);
    takeWay(button);

    const QHash<int, double> middleOfHeight = {{68, 34}, {45, 22}};
    for (const QSize size : {QSize(119, 68), QSize(90, 45)}) {
        button.setFixedSize(size);
        button.setOffset(off ? 0 : 30);
        const double middle = middleOfHeight.value(size.height());
        const double diameter = size.height() - 2 * margin;
        const double x = (off ? 0 : 30) + margin + diameter / 2;
        COMPARE_PICTURES(
            snapshot(button), reference(size, [&](QPainter &painter) {
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setOpacity(enabled ? 1.0 : 0.4);
                painter.setPen(Qt::NoPen);
                painter.setBrush(off ? QColor(121, 123, 129, 76) : QColor("#399EFB"));
                painter.drawRoundedRect(QRectF(QPointF(), size), middle, middle);
                if (qIsFinite(diameter)) {
                    painter.setBrush(Qt::white);
                    painter.drawEllipse(QPointF(x, middle), diameter / 2, diameter / 2);
                    painter.setPen({QColor("#1F81DD"), 2.0, Qt::SolidLine, Qt::SquareCap});
                    if (state == Qt::PartiallyChecked)
                        painter.drawLine(QPointF(x - 3.5, middle), QPointF(x + 3.5, middle));
                }
                painter.setPen(Qt::white);
                painter.setFont(QFont(QStringLiteral("Arial"), 10));
                painter.drawText(QRectF(4, 0, size.width() - 8, size.height()),
                                 Qt::AlignVCenter | (off ? Qt::AlignRight : Qt::AlignLeft),
                                 off ? QStringLiteral("Off") : QStringLiteral("On"));
            }));
    }
}

void TestSwitchButton::changesItsCheckState_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("way");
    QTest::newRow("off to on") << 0 << 2 << "0 > 51";
    QTest::newRow("off to partial") << 0 << 1 << "0 > 51";
    QTest::newRow("partial to on") << 1 << 2 << QString();
    QTest::newRow("on to partial") << 2 << 1 << QString();
    QTest::newRow("partial to off") << 1 << 0 << "20 > 0";
    QTest::newRow("on to off") << 2 << 0 << "20 > 0";
    QTest::newRow("on to on") << 2 << 2 << QString();
}

void TestSwitchButton::changesItsCheckState()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, way);
    SwitchButton button;
    button.setCheckState(Qt::CheckState(from));
    takeWay(button);
    button.setOffset(20);
    QSignalSpy states(&button, &SwitchButton::stateChanged);
    QSignalSpy toggles(&button, &SwitchButton::toggled);

    button.setCheckState(Qt::CheckState(to));
    QCOMPARE(takeWay(button), way);
    QCOMPARE(button.isChecked(), to != 0);
    QCOMPARE(toggles.count(), 0);
    QCOMPARE(states.count(), from == to ? 0 : 1);
    if (from != to)
        QCOMPARE(states.first().first().toInt(), to);
}

void TestSwitchButton::followsTheCheckedFlagWhileBlocked()
{
    SwitchButton button;
    const auto setBlocked = [&](bool checked) {
        const QSignalBlocker blocker(button);
        button.setChecked(checked);
        return takeWay(button);
    };
    QCOMPARE(setBlocked(true), QStringLiteral("0 > 51"));
    QCOMPARE(button.checkState(), Qt::Checked);
    QCOMPARE(setBlocked(true), QString());
    QCOMPARE(setBlocked(false), QStringLiteral("51 > 0"));
    QCOMPARE(button.checkState(), Qt::Unchecked);

    button.setCheckState(Qt::PartiallyChecked);
    takeWay(button);
    QCOMPARE(setBlocked(false), QString());
    QCOMPARE(button.checkState(), Qt::PartiallyChecked);
}

void TestSwitchButton::movesForAClick()
{
    SwitchButton button;
    QStringList seen;
    connect(&button, &SwitchButton::toggled,
            [&](bool on) { seen << QString("toggled %1").arg(on); });
    connect(&button, &SwitchButton::stateChanged,
            [&](int s) { seen << QString("state %1").arg(s); });

    button.click();
    QCOMPARE(seen, QStringList({"state 2", "toggled 1"}));
    QTest::qWait(40);
    button.click(); // before the knob is there
    QTRY_COMPARE(button.offset(), 0);
    button.click();
    QTRY_COMPARE(button.property("offset").toInt(), Travel);
    QVERIFY(button.isChecked());
    QCOMPARE(button.checkState(), Qt::Checked);
}

void TestSwitchButton::leavesMovingToTheApplication()
{
    SwitchButton button(nullptr, false);
    button.click();
    QVERIFY(button.isChecked());
    QCOMPARE(button.checkState(), Qt::Unchecked);
    QCOMPARE(takeWay(button), QString());
    button.setCheckState(Qt::PartiallyChecked);
    button.setCheckState(Qt::Unchecked);
    QVERIFY(!button.isChecked());
}

void TestSwitchButton::staysInStep()
{
    SwitchButton button;
    connect(&button, &SwitchButton::stateChanged, [&](int state) {
        if (state == Qt::Checked)
            button.setCheckState(Qt::Unchecked);
    });
    button.click();
    QCOMPARE(button.checkState(), Qt::Unchecked);
    QVERIFY(!button.isChecked());
    QTRY_VERIFY(button.findChildren<QPropertyAnimation *>().isEmpty());
    QCOMPARE(button.offset(), 0);
}

void TestSwitchButton::staysInStepInAGroup()
{
    SwitchButton first;
    SwitchButton second;
    QButtonGroup group;
    group.addButton(&first);
    group.addButton(&second);
    first.click();
    QSignalSpy states(&first, &SwitchButton::stateChanged);
    second.click();
    QCOMPARE(states.count(), 1);
    QCOMPARE(first.checkState(), Qt::Unchecked);
    QCOMPARE(second.checkState(), Qt::Checked);
    second.click();
    QVERIFY(second.isChecked());
}

void TestSwitchButton::mayBeDeletedInItsSlots()
{
    QVERIFY(mayBeDeletedIn(&SwitchButton::stateChanged, new SwitchButton));
    QVERIFY(mayBeDeletedIn(&SwitchButton::toggled, new SwitchButton));
    QVERIFY(mayBeDeletedIn(&SwitchButton::clicked, new SwitchButton));
}

QTEST_MAIN(TestSwitchButton)
#include "tst_switchbutton.moc"
