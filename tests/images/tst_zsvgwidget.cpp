#include "paintcounter.h"
#include "picture.h"
#include "samplefile.h"
#include "warnings.h"

#include <QIcon>
#include <QSvgRenderer>
#include <QtTest>
#include <limits>
#include <zsvgwidget.h>

using ZIRVOUI::ZSvgWidget;

namespace {

QPixmap checkers(const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::yellow);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), QBrush(Qt::blue, Qt::Dense4Pattern));
    return pixmap;
}

} // namespace

class TestZSvgWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void staysSharp();
    void keepsTheSmallestBitmap();
    void showsTheIconLoadedLast();
    void showsTheFirstFrameOfAnAnimation();
    void tellsTheSizeOfItsIcon();
    void blinks();
    void repaintsOnlyForNewOpacity();
};

void TestZSvgWidget::paints_data()
{
    QTest::addColumn<bool>("svg");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<double>("opacity");
    QTest::addColumn<double>("angle");
    for (const bool svg : {true, false}) {
        const QByteArray kind = svg ? "SVG" : "bitmap";
        QTest::newRow(kind + ", plain") << svg << true << 1.0 << 0.0;
        QTest::newRow(kind + ", faded and turned") << svg << true << 0.5 << 30.0;
        QTest::newRow(kind + ", disabled in a blink") << svg << false << 0.0 << 90.0;
    }
    QTest::newRow("an angle that is none") << true << true << 1.0 << qInf();
}

void TestZSvgWidget::paints()
{
    QFETCH(bool, svg);
    QFETCH(bool, enabled);
    QFETCH(double, opacity);
    QFETCH(double, angle);
    SampleFile file(QStringLiteral("icon.svg"));
    file.writeSvg("green");

    ZSvgWidget widget;
    if (svg)
        widget.loadSvgImage(file.path());
    else
        widget.setmPixmap(checkers({20, 12}));
    widget.setEnabled(enabled);
    widget.setOpacity(opacity);
    widget.setRotateAngle(angle);

    const QHash<int, QPoint> centerOfWidth = {{60, {30, 20}}, {33, {16, 12}}};
    for (const QSize size : {QSize(60, 40), QSize(33, 25)}) {
        widget.resize(size);
        const QPoint center = centerOfWidth.value(size.width());
        const QRect all(QPoint(0, 0), size);
        // The widget scales its bitmap in place: the small picture is made from the large one.
        const QPixmap scaled = checkers({20, 12})
                                   .scaled(60, 40, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                   .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        COMPARE_PICTURES(snapshot(widget), reference(size, [&](QPainter &painter) {
                             painter.translate(center);
                             if (!qIsInf(angle))
                                 painter.rotate(angle);
                             painter.translate(-center);
                             painter.setOpacity(enabled ? opacity : 0.3);
                             if (svg)
                                 QSvgRenderer(file.path()).render(&painter, all);
                             else
                                 QIcon(scaled).paint(&painter, all, Qt::AlignCenter,
                                                     enabled ? QIcon::Normal : QIcon::Disabled);
                         }));
    }
}

void TestZSvgWidget::staysSharp()
{
    const QPixmap pixmap = checkers({40, 20});
    ZSvgWidget widget;
    widget.setmPixmap(pixmap);
    widget.resize(20, 10);
    QImage expected = blankPicture({20, 10}, 2);
    expected.setDevicePixelRatio(1);
    QPainter(&expected).drawPixmap(0, 0, pixmap);

    COMPARE_PICTURES(snapshot(widget, 2), expected);
    QCOMPARE(widget.sizeHint(), QSize(20, 10));
}

void TestZSvgWidget::keepsTheSmallestBitmap()
{
    ZSvgWidget widget;
    widget.setmPixmap(checkers({40, 20}));
    QCOMPARE(widget.sizeHint(), QSize(40, 20));
    for (const QSize size : {QSize(2, 1), QSize(40, 20)}) {
        widget.resize(size);
        snapshot(widget);
        QCOMPARE(widget.sizeHint(), size);
    }
    QCOMPARE(snapshot(widget).pixel(1, 1), snapshot(widget).pixel(2, 2));
}

void TestZSvgWidget::showsTheIconLoadedLast()
{
    SampleFile svg(QStringLiteral("ICON.SVG"));
    svg.writeSvg("red");
    SampleFile bitmap(QStringLiteral("icon.png"));
    QPixmap blue(20, 10);
    blue.fill(Qt::blue);
    QVERIFY(blue.save(bitmap.path()));

    ZSvgWidget widget(svg.path());
    widget.resize(20, 10);
    widget.setmPixmap(blue);
    QCOMPARE(snapshot(widget).pixelColor(1, 1), QColor(Qt::red));
    widget.loadSvgImage(bitmap.path());
    QCOMPARE(snapshot(widget).pixelColor(1, 1), QColor(Qt::blue));
    widget.loadSvgImage(QStringLiteral("missing.png"));
    COMPARE_PICTURES(snapshot(widget), blankPicture(widget.size()));
}

void TestZSvgWidget::showsTheFirstFrameOfAnAnimation()
{
    SampleFile svg(QStringLiteral("icon.svg"));
    svg.write("<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
              "<rect width='8' height='8' fill='red'><animateColor attributeName='fill' dur='1s' "
              "values='#f00;#00f' repeatCount='indefinite'/></rect></svg>");
    ZSvgWidget widget(svg.path());
    widget.resize(8, 8);
    widget.show();
    snapshot(widget);
    QTest::qWait(500);
    QVERIFY(snapshot(widget).pixelColor(0, 0).red() > 200);
    QVERIFY(widget.findChildren<QTimer *>().isEmpty());
}

void TestZSvgWidget::tellsTheSizeOfItsIcon()
{
    SampleFile svg(QStringLiteral("icon.svg"));
    svg.writeSvg("red");
    ZSvgWidget widget;
    QCOMPARE(widget.sizeHint(), QWidget().sizeHint());
    QVERIFY(!widget.getSvgSize({}).isValid());
    QVERIFY(!widget.getSvgSize(QStringLiteral("missing.svg")).isValid());
    QCOMPARE(widget.getSvgSize(svg.path()), QSize(20, 10));

    widget.loadSvgImage(svg.path());
    QCOMPARE(widget.sizeHint(), QSize(20, 10));
    widget.loadSvgImage(QStringLiteral("missing.svg"));
    QVERIFY(!widget.sizeHint().isValid());
}

void TestZSvgWidget::blinks()
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
    widget.setOpacity(0.5);
    QTest::qWait(50);
    QCOMPARE(widget.opacity(), 0.5);
    widget.startBlinking(); // and is destroyed while it blinks
}

void TestZSvgWidget::repaintsOnlyForNewOpacity()
{
    ZSvgWidget widget;
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    PaintCounter paints(widget);

    widget.setOpacity(1.0);
    QCOMPARE(paints.take(), 0);
    widget.setOpacity(0.5);
    QCOMPARE(paints.take(), 1);
    widget.stopBlinking();
    QCOMPARE(paints.take(), 0);
    widget.setRotateAngle(0.0);
    QCOMPARE(paints.take(), 1);
}

QTEST_MAIN(TestZSvgWidget)
#include "tst_zsvgwidget.moc"
