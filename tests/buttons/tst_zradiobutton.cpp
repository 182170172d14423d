#include "finger.h"
#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <limits>
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
        for (const QSize size : {QSize(150, 40), QSize(150, 35), QSize(30, 60)})
            // Every combination: the bits of the look are its states.
            for (const int look : {0, 1, 2, 3, 4, 5, 6, 7}) {
                const int thickness = look & 4 ? 13 : 2; // at times too thick for a dot
                button.setThickness(thickness);
                button.setChecked(look & 2);
                button.setEnabled(look & 1);
                const int center = qMin(size.width(), size.height()) / 2;
                const double dot = look & 2 ? qMax(0.0, 0.8 * center - thickness) : 0.0;
                const QRect text = QRect(QPoint(), size).adjusted(size.height() + 30, 0, 0, 0);
                const auto draw = [&](QPainter &painter) {
                    painter.setRenderHint(QPainter::Antialiasing);
                    painter.setOpacity(look & 1 ? 1.0 : 0.4);
                    painter.setPen(QPen(QColor("#979797"), thickness));
                    painter.setBrush(QColor(200, 60, 60, 90));
                    painter.drawEllipse(QPoint(center, center), center - thickness,
                                        center - thickness);
                    painter.setPen(Qt::NoPen);
                    painter.setBrush(QColor("#979797"));
                    painter.drawEllipse(QPointF(center, center), dot, dot);
                    painter.setOpacity(1.0);
                    painter.setFont(button.font());
                    painter.setPen(Qt::white);
                    painter.drawText(text, Qt::AlignVCenter, button.text());
                };
                COMPARE_PICTURES(snapshot(button, size), reference(size, draw));
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
        const auto change = [&] {
            button.setSpacing(std::numeric_limits<int>::max());
            button.setThickness(3);
            button.setExternalCircleLineColor(Qt::red);
            button.setExternalCircleFillColor(Qt::red);
            button.setInternalCircleFillColor(Qt::red);
            button.setTextColor(Qt::red);
        };
        QVERIFY(!repaints(button, change));
        snapshot(button);
    }
};

QTEST_MAIN(TestZRadioButton)
#include "tst_zradiobutton.moc"
