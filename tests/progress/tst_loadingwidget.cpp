#include "widgettest.h"

#include <QScreen>
#include <QWindow>
#include <loadingwidget.h>

class TestLoadingWidget : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints()
    {
        QConicalGradient gradient(0, 0, 0);
        gradient.setStops({{0.0, "#316AFF"}, {1.0, Qt::white}});
        LoadingWidget spinner;
        spinner.stop();
        int turned = 0;
        for (const auto &[steps, width] : {std::make_pair(20, 7), {30, 45}, {179, 10}, {181, 10}}) {
            for (; turned < steps; ++turned)
                spinner.updateRotate();
            spinner.setWidth(width);
            const double line = width;
            const int half = width / 2;
            comparePictures(
                spinner, {{90, 90}, {201, 101}}, [&](QPainter &painter, const QRect &all) {
                    const int radius = all.height() / 2;
                    const int diameter = 2 * (radius - half);
                    painter.translate(all.width() / 2, radius);
                    painter.rotate(2 * turned % 360);
                    painter.setPen({gradient, line, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin});
                    painter.drawArc(half - radius, half - radius, diameter, diameter, 0, 5760);
                    QPainterPath head(QPointF(radius - line, 0));
                    head.arcTo(radius - line, -half, line, line, 0, 360);
                    painter.fillPath(head, QColor("#316AFF"));
                });
        }
    }

    void takesEveryValue()
    {
        LoadingWidget spinner;
        spinner.stop();
        QVERIFY(spinner.children().isEmpty());
        const auto greenAt = [&](int x, int y) {
            return snapshot(spinner, QSize(90, 90)).pixelColor(x, y).green();
        };
        spinner.addGradientColor({});
        spinner.addGradientColor({{0.5, QColor(Qt::red)}, {qQNaN(), Qt::green}});
        QCOMPARE(greenAt(85, 45), 0); // the head
        QVERIFY(greenAt(5, 45) < 5); // half way round
        QVERIFY(qAbs(greenAt(45, 85) - 127) < 5); // three quarters, on the way to white
        spinner.addGradientColor({{0.5, QColor(Qt::cyan)}});
        QVERIFY(greenAt(5, 45) > 250);

        const QDeadlineTimer deadline(1000);
        for (int width : {0, -1, 100, 40000, INT_MAX, INT_MIN}) {
            spinner.setWidth(width);
            snapshot(spinner, QSize(90, 90));
        }
        QVERIFY(!deadline.hasExpired());
    }

    void turnsUntilStopped()
    {
        LoadingWidget spinner;
        const auto turns = [&] {
            const QImage before = snapshot(spinner, QSize(90, 90));
            QTest::qWait(60);
            return snapshot(spinner) != before;
        };
        QVERIFY(turns());
        spinner.stop();
        QVERIFY(!turns());
        QVERIFY(!repaints(spinner, [&] { spinner.setWidth(10); }));
        QVERIFY(!repaints(spinner, [&] { spinner.addGradientColor({{0.5, QColor(Qt::red)}}); }));
        QVERIFY(repaints(spinner, [&] { spinner.setWidth(12); }));
        spinner.start();
        QVERIFY(paintsOnlyWhenShown(spinner));
        QVERIFY(turns());

        // It is seen where it was stopped, though it ticks more often than it is painted.
        spinner.show();
        QScreen *screen = spinner.windowHandle()->screen();
        for (int i = 0; i < 20; ++i) {
            spinner.start();
            QEventLoop loop; // QTest::qWait() looks at events every 10 ms only
            QTimer::singleShot(20 + i % 7, &loop, &QEventLoop::quit);
            loop.exec();
            spinner.stop();
            QCoreApplication::processEvents();
            const QImage seen = screen->grabWindow(spinner.winId()).toImage();
            QVERIFY(!seen.isNull());
            COMPARE_PICTURES(seen, spinner.grab().toImage());
        }
    }

    void sharesTheFramesOfItsWindow()
    {
        QWidget window;
        for (int i = 0; i < 5; ++i) {
            auto *spinner = new LoadingWidget(&window);
            spinner->move(100 * i, 0);
            QTest::qWait(i); // for its timer to have a phase of its own
        }
        // In the time of 30 frames, and of 80 ticks of each spinner.
        const int frames = repaints(window, [] { QTest::qWait(480); });
        QVERIFY2(frames > 2 && frames < 45, qPrintable(QString::number(frames)));
    }
};

QTEST_MAIN(TestLoadingWidget)
#include "tst_loadingwidget.moc"
