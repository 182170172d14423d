#include "widgettest.h"

#include <QHBoxLayout>
#include <QParallelAnimationGroup>
#include <circulardelegate.h>
#include <circularloadingwidget.h>

struct Look
{
    int time; // ms
    double length, offset;
    int angle;
    double lineWidth, penWidth;
    int inset;
};
Q_DECLARE_METATYPE(Look)

class TestCircularLoadingWidget : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints_data()
    {
        const double half = 0.35 / 0.45;
        // Eased: 1 - 2 * 0.2², and half of 1 - cos(0.8 pi).
        const double end = -6 - 24 * (0.9045084971874737 - 0.7) / 0.3;
        QTest::addColumn<Look>("look");
        QTest::newRow("start") << Look{0, 1, 0, 0, 24, 24, 12};
        QTest::newRow("a fifth") << Look{410, 1 + 9 * 0.08 / 0.15, 0, 143, 25, 25, 12};
        QTest::newRow("half way") << Look{1025, 10 + 10 * half, -6 * half, 359, 7.5, 7.5, 3};
        QTest::newRow("four fifths") << Look{1640, 20 + 5 * 0.22 / 0.3, end, 575, -3, 1, -1};
        QTest::newRow("over the seam") << Look{3075, 10 + 10 * half, -6 * half, 359, 24, 24, 12};
    }

    void paints()
    {
        QFETCH(Look, look);
        CircularLoadingWidget spinner;
        QVERIFY(paintsOnlyWhenShown(spinner));
        auto *group = spinner.findChild<QParallelAnimationGroup *>();
        group->setCurrentTime(look.time);
        spinner.setLineWidth(look.lineWidth);
        spinner.setCirqueColor(QColor(90, 90, 200, 120));
        comparePictures(spinner, {{120, 100}, {91, 61}}, [&](QPainter &painter, const QRect &all) {
            const int radius = all.height() / 2;
            const int left = look.inset - radius;
            QPen pen(QColor(90, 90, 200, 120), look.penWidth, Qt::SolidLine, Qt::SquareCap);
            painter.translate(all.width() / 2, radius);
            painter.rotate(look.angle);
            painter.setPen(pen);
            painter.drawEllipse(left, left, -2 * left, -2 * left);
            pen.setColor("#D2D442");
            pen.setDashPattern({look.length, 10.0 * radius});
            pen.setDashOffset(look.offset);
            painter.setPen(pen);
            painter.drawEllipse(left, left, -2 * left, -2 * left);
        });
    }

    void returnsForEveryValue()
    {
        CircularLoadingWidget spinner;
        spinner.findChild<QParallelAnimationGroup *>()->pause();
        spinner.resize(80, 80);
        auto *arc = spinner.findChild<CircularDelegate *>();
        const auto draw = [&](double lineWidth, double length, double offset) {
            spinner.setLineWidth(lineWidth);
            arc->setDashLength(length);
            arc->setDashOffset(offset);
            return snapshot(spinner);
        };
        const QDeadlineTimer deadline(3000);
        for (double value :
             {qQNaN(), qInf(), -qInf(), DBL_MAX, -DBL_MAX, 1e12, -1e12, 40000.0, 0.0}) {
            draw(value, 3, 3);
            draw(5, 3, value);
            draw(5, value, 3);
            draw(value, value, value);
        }
        QVERIFY(!deadline.hasExpired());
        COMPARE_PICTURES(draw(qQNaN(), 5, 0), blankPicture(spinner.size()));
        COMPARE_PICTURES(draw(5, qInf(), 0), blankPicture(spinner.size()));

        // The dash and its gap take 406 line widths.
        for (double offset : {401.0, -5 - 406.0 * 1048576, -5 + 406.0 * 1099511627776})
            COMPARE_PICTURES(draw(24, 6, offset), draw(24, 6, -5));
    }

    void repaintsForEachPartOfItsLook()
    {
        QWidget window;
        QHBoxLayout layout(&window);
        CircularLoadingWidget spinner;
        spinner.findChild<QParallelAnimationGroup *>()->stop();
        auto *arc = spinner.findChild<CircularDelegate *>();
        layout.addWidget(&spinner);
        window.show();
        QVERIFY(!repaints(spinner, [&] { spinner.setCirqueColor(Qt::red); }));
        QVERIFY(!layout.activate());
        spinner.setLineWidth(5);
        QVERIFY(layout.activate()); // as it has to be looked at again
        QVERIFY(repaints(spinner, [&] { spinner.setProperty("lineWidth", 3); }));
        QVERIFY(repaints(spinner, [&] { spinner.setProperty("color", QColor(Qt::red)); }));
        for (const char *property : {"dashOffset", "dashLength", "angle"})
            QVERIFY(repaints(spinner, [&] { arc->setProperty(property, 1); }));
    }
};

QTEST_MAIN(TestCircularLoadingWidget)
#include "tst_circularloadingwidget.moc"
