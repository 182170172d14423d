#include "buttontest.h"

#include <QPropertyAnimation>
#include <switchbutton.h>
#include <tuple>

/*! The way that the knob was last sent on, such as "0 > 51"; empty if it was not. */
static QString takeWay(SwitchButton &button)
{
    const auto animations = button.findChildren<QPropertyAnimation *>();
    if (animations.isEmpty())
        return {};
    const QVariant end = animations.last()->endValue();
    const QString way = animations.last()->startValue().toString() + " > " + end.toString();
    qDeleteAll(animations);
    button.setOffset(end.toInt());
    return way;
}

class TestSwitchButton : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints()
    {
        SwitchButton button;
        button.setFont(QFont("DejaVu Sans", 30, QFont::Bold, true)); // not drawn in
        button.setCheckText("On");
        button.setNoCheckText("Off");
        for (const auto state : {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked}) {
            for (const double margin : {8.0, 3.25, qQNaN(), -DBL_MAX}) {
                const bool off = state == Qt::Unchecked;
                button.setCheckState(state);
                takeWay(button);
                button.setOffset(off ? 0 : 30);
                button.setMargin(margin);
                compareStates(button, {{119, 68}, {90, 45}}, [&](auto &painter, const QRectF &all) {
                    const int middle = int(all.height()) / 2;
                    const double radius = all.height() / 2 - margin;
                    const QPointF center(button.offset() + margin + radius, middle);
                    painter.setOpacity(button.isEnabled() ? 1.0 : 0.4);
                    painter.setBrush(off ? QColor(121, 123, 129, 76) : QColor("#399EFB"));
                    painter.drawRoundedRect(all, middle, middle);
                    if (qIsFinite(2 * radius)) {
                        painter.setBrush(Qt::white);
                        painter.drawEllipse(center, radius, radius);
                        painter.setPen(QPen(QColor("#1F81DD"), 2));
                        if (state == Qt::PartiallyChecked)
                            painter.drawLine(center - QPointF(3.5, 0), center + QPointF(3.5, 0));
                    }
                    painter.setPen(Qt::white);
                    painter.setFont(QFont("Arial", 10));
                    painter.drawText(all.adjusted(4, 0, -4, 0),
                                     Qt::AlignVCenter | (off ? Qt::AlignRight : Qt::AlignLeft),
                                     off ? "Off" : "On");
                });
            }
        }
    }

    void keepsItsKnobInside()
    {
        SwitchButton button;
        button.setOffset(button.width() - 20);
        for (int i = 0; i < 3; ++i) { // the second time on it is drawn from kept pixels
            QImage picture(2 * button.size(), QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            painter.setClipRect(picture.rect());
            button.render(&painter, {}, {}, QWidget::DrawChildren);
            QCOMPARE(picture.pixel(button.width(), button.height() / 2), 0U);
        }
    }

    void changesItsCheckState()
    {
        // From a state to another, and the way of the knob.
        const std::tuple<int, int, QString> changes[]
            = {{0, 2, "0 > 51"}, {0, 1, "0 > 51"}, {1, 2, ""}, {2, 1, ""},
               {1, 0, "20 > 0"}, {2, 0, "20 > 0"}, {2, 2, ""}};
        for (const auto &[from, to, way] : changes) {
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
            QCOMPARE(states, from == to ? QList<QVariantList>() : QList<QVariantList>{{to}});
        }
    }

    void followsTheCheckedFlagWhileBlocked()
    {
        SwitchButton button;
        const auto setBlocked = [&](bool checked) {
            const QSignalBlocker blocker(button);
            button.setChecked(checked);
            return QString("%1, %2").arg(takeWay(button)).arg(button.checkState());
        };
        QCOMPARE(setBlocked(true), QString("0 > 51, 2"));
        QCOMPARE(setBlocked(true), QString(", 2"));
        QCOMPARE(setBlocked(false), QString("51 > 0, 0"));
        button.setCheckState(Qt::PartiallyChecked);
        takeWay(button);
        QCOMPARE(setBlocked(false), QString(", 1"));
    }

    void leavesMovingToTheApplication()
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

    void staysInStepWithItsSlots()
    {
        SwitchButton button;
        connect(&button, &SwitchButton::stateChanged, [&](int state) {
            if (state == Qt::Checked)
                button.setCheckState(Qt::Unchecked);
        });
        button.click();
        QCOMPARE(button.checkState(), Qt::Unchecked);
        QVERIFY(!button.isChecked());
        QTRY_VERIFY(button.findChildren<QPropertyAnimation *>().isEmpty() && button.offset() == 0);
    }

    void staysInStepInAGroup()
    {
        SwitchButton first, second;
        QButtonGroup group;
        group.addButton(&first);
        group.addButton(&second);
        connect(&group, QOverload<QAbstractButton *, bool>::of(&QButtonGroup::buttonToggled),
                [](QAbstractButton *button, bool checked) {
                    const int state = static_cast<SwitchButton *>(button)->checkState();
                    QCOMPARE(state, int(checked ? Qt::Checked : Qt::Unchecked));
                });
        first.click();
        QSignalSpy states(&first, &SwitchButton::stateChanged);
        second.click();
        QCOMPARE(states.count(), 1);
        QCOMPARE(first.checkState(), Qt::Unchecked);
        QCOMPARE(second.checkState(), Qt::Checked);
        second.click();
        QVERIFY(second.isChecked());

        second.blockSignals(true);
        first.click();
        QCOMPARE(second.checkState(), Qt::Unchecked);
    }

    void repaintsForItsLook()
    {
        SwitchButton button;
        QVERIFY(!repaints(button, [&] { button.setCheckText("I"), button.setNoCheckText("O"); }));
        QVERIFY(repaints(button, [&] { button.setMargin(1); }));
        for (const auto &[type, shape] : {std::make_pair(QEvent::Enter, Qt::PointingHandCursor),
                                          {QEvent::Leave, Qt::ArrowCursor}}) {
            QEvent event(type);
            QVERIFY(repaints(button, [&] { QCoreApplication::sendEvent(&button, &event); }));
            QCOMPARE(button.cursor().shape(), shape);
        }
        QVERIFY(repaints(button, [&] { button.setOffset(1); }));
        QVERIFY(repaints(button, [&] { button.setCheckedBackground(Qt::red); }));
        QVERIFY(repaints(button, [&] { button.setNocheckedBackground(Qt::red); }));
        QCOMPARE(snapshot(button).pixelColor(100, 34), QColor(Qt::red));
        button.setCheckState(Qt::Checked);
        QCOMPARE(snapshot(button).pixelColor(100, 34), QColor(Qt::red));
    }

    void mayBeDeletedInItsSlots()
    {
        QVERIFY(mayBeDeletedIn(&SwitchButton::stateChanged, new SwitchButton));
        QVERIFY(mayBeDeletedInSlots([] { return new SwitchButton; }));
    }
};

QTEST_MAIN(TestSwitchButton)
#include "tst_switchbutton.moc"
