#include "buttontest.h"

#include <zradiobutton.h>

class TestZRadioButton : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints()
    {
        const QColor fill(200, 60, 60, 90), gray("#979797");
        ZRadioButton button("A && B");
        button.setFont(QFont("DejaVu Sans", 13));
        button.setAutoExclusive(false); // so that it can be off again
        for (const int thickness : {2, 13}) { // at times too thick for a dot
            for (const bool checked : {false, true}) {
                button.setChecked(checked);
                QVERIFY(!repaints(button, [&] {
                    button.setExternalCircleFillColor(fill);
                    button.setThickness(thickness);
                }));
                const auto draw = [&](QPainter &painter, const QRect &all) {
                    const int center = qMin(all.width(), all.height()) / 2;
                    const int radius = center - thickness;
                    const double dot = checked ? qMax(0.0, 0.8 * center - thickness) : 0.0;
                    painter.setOpacity(button.isEnabled() ? 1.0 : 0.4);
                    painter.setPen(QPen(gray, thickness));
                    painter.setBrush(fill);
                    painter.drawEllipse(QPoint(center, center), radius, radius);
                    painter.setPen(Qt::NoPen);
                    painter.setBrush(gray);
                    painter.drawEllipse(QPointF(center, center), dot, dot);
                    painter.setOpacity(1.0);
                    painter.setPen(Qt::white);
                    painter.drawText(all.adjusted(all.height() + 30, 0, 0, 0), Qt::AlignVCenter,
                                     button.text());
                };
                compareStates(button, {{150, 40}, {150, 35}, {30, 60}}, draw);
            }
        }
    }

    void showsNothingIfItsColorsAreNone()
    {
        ZRadioButton button("text");
        button.setChecked(true);
        QVERIFY(!repaints(button, [&] {
            button.setExternalCircleLineColor(Qt::transparent);
            button.setInternalCircleFillColor(Qt::transparent);
            button.setTextColor(Qt::transparent);
        }));
        COMPARE_PICTURES(snapshot(button), blankPicture(button.size()));
        button.setTextColor(Qt::red);
        button.setSpacing(INT_MAX);
        COMPARE_PICTURES(snapshot(button), blankPicture(button.size()));
    }

    void isCheckedAsSafelyAsAStockOne()
    {
        ZRadioButton button;
        QVERIFY(staysCheckedInItsGroup(button));
        QVERIFY(mayBeDeletedInSlots([] { return new ZRadioButton; }));
    }
};

QTEST_MAIN(TestZRadioButton)
#include "tst_zradiobutton.moc"
