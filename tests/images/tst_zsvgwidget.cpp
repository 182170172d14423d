#include "paintcounter.h"
#include "picture.h"
#include "samplefile.h"
#include "warnings.h"

#include <QIcon>
#include <QSvgRenderer>
#include <QtTest>
#include <zsvgwidget.h>

using ZIRVOUI::ZSvgWidget;

struct Look
{
    bool svg, enabled;
    double opacity, angle;
};
Q_DECLARE_METATYPE(Look)

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
        QTest::addColumn<Look>("look");
        for (const bool svg : {true, false}) {
            const QByteArray kind = svg ? "SVG" : "bitmap";
            QTest::newRow(kind + ", plain") << Look{svg, true, 1, 0};
            QTest::newRow(kind + ", faded and turned") << Look{svg, true, 0.5, 30};
            QTest::newRow(kind + ", disabled in a blink") << Look{svg, false, 0, 90};
        }
        QTest::newRow("an angle that is none") << Look{true, true, 1, qInf()};
    }

    void paints()
    {
        QFETCH(Look, look);
        const SampleFile file(QStringLiteral("icon.svg"));
        file.writeSvg("green");
        QPixmap bitmap = checkers({20, 12});
        ZSvgWidget widget;
        if (look.svg)
            widget.loadSvgImage(file.path());
        widget.setmPixmap(bitmap); // which does not replace an SVG
        widget.setEnabled(look.enabled);
        widget.setOpacity(look.opacity);
        widget.setRotateAngle(look.angle);

        for (const QSize size : {QSize(60, 40), QSize(33, 25)}) {
            const QPoint center = size.width() == 60 ? QPoint(30, 20) : QPoint(16, 12);
            // The widget scales its bitmap in place: the small picture is made from the large one.
            bitmap = bitmap.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            const auto draw = [&](QPainter &painter) {
                const QRect all(QPoint(), size);
                painter.translate(center);
                painter.rotate(qIsInf(look.angle) ? 0 : look.angle);
                painter.translate(-center);
                painter.setOpacity(look.enabled ? look.opacity : 0.3);
                const auto mode = look.enabled ? QIcon::Normal : QIcon::Disabled;
                if (look.svg)
                    QSvgRenderer(file.path()).render(&painter, all);
                else
                    QIcon(bitmap).paint(&painter, all, Qt::AlignCenter, mode);
            };
            COMPARE_PICTURES(snapshot(widget, size), reference(size, draw));
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
        const SampleFile bitmap(QStringLiteral("icon.png"));
        QVERIFY(checkers({20, 10}).save(bitmap.path()));

        ZSvgWidget widget(svg.path());
        widget.resize(20, 10);
        widget.loadSvgImage(bitmap.path());
        const auto draw = [](auto &painter) { painter.drawPixmap(0, 0, checkers({20, 10})); };
        COMPARE_PICTURES(snapshot(widget), reference(widget.size(), draw));
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
        for (int blink = 0; blink < 2; ++blink) {
            QTRY_VERIFY(widget.property("opacity").toDouble() < 0.2);
            QTRY_VERIFY(widget.property("opacity").toDouble() > 0.8);
        }
        widget.stopBlinking();
        QCOMPARE(widget.opacity(), 1.0);
        QVERIFY(!repaints(widget, [&] { widget.setOpacity(1.0); }));
        QVERIFY(repaints(widget, [&] { widget.setOpacity(0.5); }));
        QVERIFY(!repaints(widget, [&] { widget.stopBlinking(); }));
        QVERIFY(repaints(widget, [&] { widget.setRotateAngle(0.0); }));
        widget.setOpacity(0.5);
        QTest::qWait(50);
        QCOMPARE(widget.opacity(), 0.5);
        widget.startBlinking(); // and is destroyed while it blinks
    }
};

QTEST_MAIN(TestZSvgWidget)
#include "tst_zsvgwidget.moc"
