#include "buttontest.h"

#include <zradiobutton.h>

using ZIRVOUI::ZRadioButton;

class TestZRadioButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints()
    {
        ZRadioButton button(QStringLiteral("A && B"));
        button.setFont(QFont(QStringLiteral("DejaVu Sans"), 13));
        button.setExternalCircleFillColor(QColor(200, 60, 60, 90));
        button.setAutoExclusive(false); // so that it can be off again
        for (const int thickness : {2, 13}) { // at times too thick for a dot
            for (const bool checked : {false, true}) {
                button.setThickness(thickness);
                button.setChecked(checked);
                const auto draw = [&](QPainter &painter, const QRect &all) {
                    const int center = qMin(all.width(), all.height()) / 2;
                    const int radius = center - thickness;
                    const double dot = checked ? qMax(0.0, 0.8 * center - thickness) : 0.0;
                    painter.setOpacity(button.isEnabled() ? 1.0 : 0.4);
                    painter.setPen(QPen(QColor("#979797"), thickness));
                    painter.setBrush(QColor(200, 60, 60, 90));
                    painter.drawEllipse(QPoint(center, center), radius, radius);
                    painter.setPen(Qt::NoPen);
                    painter.setBrush(QColor("#979797"));
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

    void mayBeDeletedInItsSlots()
    {
        QVERIFY(mayBeDeletedIn(&QAbstractButton::toggled, new ZRadioButton));
        QVERIFY(mayBeDeletedIn(&QAbstractButton::clicked, new ZRadioButton));
    }

    void settersOnlyStore()
    {
        ZRadioButton button;
        QVERIFY(!repaints(button, [&] {
            button.setSpacing(Huge);
            button.setThickness(3);
            button.setExternalCircleLineColor(Qt::red);
            button.setExternalCircleFillColor(Qt::red);
            button.setInternalCircleFillColor(Qt::red);
            button.setTextColor(Qt::red);
        }));
        snapshot(button);
    }
};

QTEST_MAIN(TestZRadioButton)
#include "tst_zradiobutton.moc"
