#include "widgettest.h"

#include <circleprogess.h>

struct Look
{
    double max, value, startAngle, progressAngle;
    int border;
    int start, span; // in sixteenths of a degree, from 3 o'clock to the left
};
Q_DECLARE_METATYPE(Look)

class TestCircleProgess : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints_data()
    {
        QTest::addColumn<Look>("look");
        QTest::newRow("35 percent") << Look{100, 35, 0, 360, 10, -36 * 16, 126 * 16};
        QTest::newRow("open ring") << Look{100, 33.3, 30.5, 270, 15, -472, 89 * 16};
        QTest::newRow("below") << Look{100, -10, 0, 360, 10, 126 * 16, -36 * 16};
        QTest::newRow("above") << Look{100, 150, 0, 360, 10, -450 * 16, 540 * 16};
        QTest::newRow("empty range") << Look{0, 5, 0, 360, 10, 0, 0};
        QTest::newRow("no number") << Look{100, qQNaN(), 0, 360, 10, 0, 0};
        QTest::newRow("no hole") << Look{100, 50, 90, 360, 40, -180 * 16, 180 * 16};
        QTest::newRow("negative border") << Look{100, 50, 0, 360, -4, -90 * 16, 180 * 16};
    }

    void paints()
    {
        QFETCH(Look, look);
        CircleProgess ring;
        QVERIFY(repaints(ring, [&] { ring.setValue(look.value); }));
        COMPARE_PICTURES(snapshot(ring), blankPicture(ring.size()));
        QVERIFY(!repaints(ring, [&] {
            ring.setMin(0);
            ring.setMax(look.max);
            ring.setStartAngle(look.startAngle);
            ring.setProgressAngle(look.progressAngle);
            ring.setBorderWidth(look.border);
            ring.setBgColor(QColor(30, 30, 200, 150));
            ring.setCircleColor(QColor(120, 120, 120, 200));
            ring.setProgressColor(Qt::green);
        }));
        comparePictures(ring, {{61, 90}, {100, 60}}, [&](QPainter &painter, const QRect &all) {
            const int side = qMin(all.width(), all.height());
            const int hole = side - 2 * look.border;
            painter.setBrush(QColor(120, 120, 120, 200));
            painter.drawEllipse(0, 0, side, side);
            painter.setBrush(Qt::green);
            if (look.span != 0)
                painter.drawPie(0, 0, side, side, look.start, look.span);
            painter.setBrush(QColor(30, 30, 200, 150));
            if (hole > 0)
                painter.drawEllipse(look.border, look.border, hole, hole);
        });
    }
};

QTEST_MAIN(TestCircleProgess)
#include "tst_circleprogess.moc"
