#include "widgettest.h"

#include <QIcon>
#include <QSvgRenderer>
#include <zsvgwidget.h>

class TestZSvgWidget : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints_data()
    {
        QTest::addColumn<double>("opacity"); // when it is enabled
        QTest::addColumn<double>("angle");
        QTest::newRow("plain") << 1.0 << 0.0;
        QTest::newRow("faded and turned") << 0.5 << 30.0;
        QTest::newRow("disabled in a blink") << 0.0 << 90.0;
        QTest::newRow("an angle that is none") << 1.0 << qInf();
    }

    void paints()
    {
        QFETCH(double, opacity);
        QFETCH(double, angle);
        const SampleFile file("icon.svg", sampleSvg("green"));
        for (const bool svg : {true, false}) {
            QPixmap bitmap = spottedPixmap({20, 12});
            ZSvgWidget widget(svg ? file.path() : QString());
            widget.setmPixmap(bitmap); // which does not replace an SVG
            widget.setDisabled(opacity == 0.0);
            widget.setOpacity(opacity);
            widget.setRotateAngle(angle);
            const auto mode = opacity == 0.0 ? QIcon::Disabled : QIcon::Normal;
            comparePictures(widget, {{60, 40}, {33, 25}}, [&](QPainter &painter, const QRect &all) {
                const QPoint center(all.width() / 2, all.height() / 2);
                // The widget scales its bitmap in place: the small one is made from the large one.
                const double ratio = painter.device()->devicePixelRatioF();
                bitmap = bitmap.scaled(all.size() * ratio, {}, Qt::SmoothTransformation);
                bitmap.setDevicePixelRatio(ratio);
                painter.setRenderHint(QPainter::Antialiasing, false);
                painter.translate(center);
                painter.rotate(qIsInf(angle) ? 0 : angle);
                painter.translate(-center);
                painter.setOpacity(opacity == 0.0 ? 0.3 : opacity);
                if (svg)
                    QSvgRenderer(file.path()).render(&painter, all);
                else
                    painter.drawPixmap(all, QIcon(bitmap).pixmap(bitmap.size(), mode));
            });
        }
    }

    void keepsTheSmallestBitmap()
    {
        const QPixmap pixmap = spottedPixmap({40, 20});
        ZSvgWidget widget;
        widget.setmPixmap(pixmap);
        widget.resize(20, 10);
        QImage sharp = snapshot(widget, 2);
        sharp.setDevicePixelRatio(1);
        COMPARE_PICTURES(sharp, pixmap.toImage());
        QCOMPARE(widget.sizeHint(), QSize(20, 10));

        snapshot(widget, {2, 1});
        QCOMPARE(widget.sizeHint(), QSize(2, 1));
        const QImage blurred = snapshot(widget, {40, 20});
        QCOMPARE(blurred.pixel(1, 0), blurred.pixel(1, 1));

        QImage part = blankPicture({9, 9}, 2);
        widget.setFixedSize(8000, 5000); // has too many pixels at that ratio
        widget.render(&part);
        QCOMPARE(widget.sizeHint(), QSize(40, 20));
    }

    void prefersTheBitmapsOwnPixels()
    {
        QPixmap pixmap = spottedPixmap({40, 20});
        const SampleFile file("icon@2x.png");
        QVERIFY(pixmap.save(file.path()));
        ZSvgWidget widget(file.path());
        QCOMPARE(widget.sizeHint(), pixmap.size());
        COMPARE_PICTURES(snapshot(widget, {40, 20}), pixmap.toImage());

        pixmap.setDevicePixelRatio(2);
        widget.setmPixmap(pixmap);
        QCOMPARE(widget.sizeHint(), pixmap.size());
    }

    void showsTheIconLoadedLast()
    {
        const SampleFile svg("ICON.SVG", sampleSvg("red")), bitmap("icon.ppm", "P6 1 1 255 abc");
        ZSvgWidget widget(svg.path());
        widget.resize(20, 10);
        widget.loadSvgImage(bitmap.path());
        QCOMPARE(snapshot(widget).pixelColor(1, 1), QColor('a', 'b', 'c'));
        widget.loadSvgImage("missing.png");
        COMPARE_PICTURES(snapshot(widget), blankPicture(widget.size()));
        QCOMPARE(widget.sizeHint(), QWidget().sizeHint());

        widget.loadSvgImage(svg.path());
        QCOMPARE(widget.sizeHint(), QSize(20, 10));
        QCOMPARE(widget.getSvgSize(svg.path()), QSize(20, 10));
        QVERIFY(!widget.getSvgSize({}).isValid());
        widget.loadSvgImage("missing.svg");
        QVERIFY(!widget.sizeHint().isValid());
    }

    void showsNothingOfAPipe()
    {
        for (const char *name : {"pipe.svg", "pipe.png"}) {
            const SampleFile pipe(name);
            pipe.makePipe();
            ZSvgWidget widget(pipe.path());
            COMPARE_PICTURES(snapshot(widget, {9, 9}), blankPicture({9, 9}));
        }
    }

    void showsTheFirstFrameOfAnAnimation()
    {
        const SampleFile svg(
            "icon.svg",
            "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
            "<rect width='8' height='8' fill='red'><animateColor attributeName='fill' "
            "dur='1s' values='#f00;#00f' repeatCount='indefinite'/></rect></svg>");
        ZSvgWidget widget(svg.path());
        snapshot(widget, {8, 8});
        QTest::qWait(500);
        QVERIFY(snapshot(widget).pixelColor(0, 0).red() > 200);
        QVERIFY(widget.findChildren<QTimer *>().isEmpty());
    }

    void blinksAndFades()
    {
        ZSvgWidget widget;
        widget.startBlinking();
        widget.startBlinking();
        const QDeadlineTimer earliest(1200); // of 1750 ms
        for (const bool visible : {false, true, false, true})
            QTRY_COMPARE(widget.opacity() > 0.5, visible);
        QVERIFY(earliest.hasExpired());
        widget.stopBlinking();
        QVERIFY(!repaints(widget, [&] { widget.setOpacity(1.0); }));
        QVERIFY(repaints(widget, [&] { widget.setOpacity(0.5); }));
        QVERIFY(!repaints(widget, [&] { widget.stopBlinking(); }));
        QVERIFY(repaints(widget, [&] { widget.setRotateAngle(0.0); }));
        QVERIFY(repaints(widget, [&] { widget.setmPixmap({}); }));
        QVERIFY(repaints(widget, [&] { widget.loadSvgImage({}); }));
        QVERIFY(!repaints(widget, [] { QTest::qWait(50); }));
        widget.startBlinking(); // and is destroyed while it blinks
    }
};

QTEST_MAIN(TestZSvgWidget)
#include "tst_zsvgwidget.moc"
