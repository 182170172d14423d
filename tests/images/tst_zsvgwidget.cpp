#include "widgettest.h"

#include <QIcon>
#include <QSvgRenderer>
#include <zsvgwidget.h>

using ZIRVOUI::ZSvgWidget;

class TestZSvgWidget : public QObject
{
    Q_OBJECT

    static QPixmap checkers(const QSize &size)
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::yellow);
        QPainter(&pixmap).fillRect(pixmap.rect(), QBrush(Qt::blue, Qt::Dense4Pattern));
        return pixmap;
    }

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<double>("opacity");
        QTest::addColumn<double>("angle");
        QTest::newRow("plain") << true << 1.0 << 0.0;
        QTest::newRow("faded and turned") << true << 0.5 << 30.0;
        QTest::newRow("disabled in a blink") << false << 0.0 << 90.0;
        QTest::newRow("an angle that is none") << true << 1.0 << qInf();
    }

    void paints()
    {
        QFETCH(bool, enabled);
        QFETCH(double, opacity);
        QFETCH(double, angle);
        const SampleFile file(QStringLiteral("icon.svg"));
        file.writeSvg("green");
        for (const bool svg : {true, false}) {
            QPixmap bitmap = checkers({20, 12});
            ZSvgWidget widget(svg ? file.path() : QString());
            widget.setmPixmap(bitmap); // which does not replace an SVG
            widget.setEnabled(enabled);
            widget.setOpacity(opacity);
            widget.setRotateAngle(angle);

            for (const QSize size : {QSize(60, 40), QSize(33, 25)}) {
                const QRect all(QPoint(), size);
                const QPoint center(size.width() / 2, size.height() / 2);
                // The widget scales its bitmap in place: the small one is made from the large one.
                bitmap = bitmap.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
                const auto draw = [&](QPainter &painter) {
                    painter.translate(center);
                    painter.rotate(qIsInf(angle) ? 0 : angle);
                    painter.translate(-center);
                    painter.setOpacity(enabled ? opacity : 0.3);
                    const auto mode = enabled ? QIcon::Normal : QIcon::Disabled;
                    if (svg)
                        QSvgRenderer(file.path()).render(&painter, all);
                    else
                        QIcon(bitmap).paint(&painter, all, Qt::AlignCenter, mode);
                };
                COMPARE_PICTURES(snapshot(widget, size), reference(size, draw));
            }
        }
    }

    void keepsTheSmallestBitmap()
    {
        const QPixmap pixmap = checkers({40, 20});
        ZSvgWidget widget;
        widget.setmPixmap(pixmap);
        widget.resize(20, 10);
        QImage sharp = snapshot(widget, 2);
        sharp.setDevicePixelRatio(1);
        const auto draw = [&](auto &painter) { painter.drawPixmap(0, 0, pixmap); };
        COMPARE_PICTURES(sharp, reference({40, 20}, draw));
        QCOMPARE(widget.sizeHint(), QSize(20, 10));

        snapshot(widget, {2, 1});
        QCOMPARE(widget.sizeHint(), QSize(2, 1));
        const QImage blurred = snapshot(widget, {40, 20});
        QCOMPARE(blurred.pixel(1, 1), blurred.pixel(2, 2));
    }

    void showsTheIconLoadedLast()
    {
        const SampleFile svg(QStringLiteral("ICON.SVG"));
        svg.writeSvg("red");
        const SampleFile bitmap(QStringLiteral("icon.ppm"));
        bitmap.write("P6 1 1 255 abc");

        ZSvgWidget widget(svg.path());
        widget.resize(20, 10);
        widget.loadSvgImage(bitmap.path());
        QCOMPARE(snapshot(widget).pixelColor(1, 1), QColor('a', 'b', 'c'));
        widget.loadSvgImage(QStringLiteral("missing.png"));
        COMPARE_PICTURES(snapshot(widget), blankPicture(widget.size()));
        QCOMPARE(widget.sizeHint(), QWidget().sizeHint());

        widget.loadSvgImage(svg.path());
        QCOMPARE(widget.sizeHint(), QSize(20, 10));
        QCOMPARE(widget.getSvgSize(svg.path()), QSize(20, 10));
        QVERIFY(!widget.getSvgSize({}).isValid());
        widget.loadSvgImage(QStringLiteral("missing.svg"));
        QVERIFY(!widget.sizeHint().isValid());
    }

    void showsTheFirstFrameOfAnAnimation()
    {
        const SampleFile svg(QStringLiteral("icon.svg"));
        svg.write("<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
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
        for (const bool visible : {false, true, false, true})
            QTRY_COMPARE(widget.opacity() > 0.5, visible);
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
