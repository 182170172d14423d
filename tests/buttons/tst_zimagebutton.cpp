#include "finger.h"
#include "paintcounter.h"
#include "picture.h"
#include "samplefile.h"
#include "warnings.h"

#include <QSvgRenderer>
#include <limits>
#include <zimagebutton.h>
#include <zsvgwidget.h>

using ZIRVOUI::ZImageButton;
using ZIRVOUI::ZSvgWidget;

class TestZImageButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void showsARewrittenBackground();
    void drawsItsIconSharp();
    void showsItsSignWhileChecked();
    void mayBeDeletedInItsSlots();
    void paintsNoBackgroundOutsideAPaint();
    void repaintsForSomeSetters();
};

void TestZImageButton::paints_data()
{
    QTest::addColumn<int>("border");
    QTest::addColumn<bool>("picture");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("down");
    QTest::addColumn<double>("opacity");
    QTest::newRow("plain") << 0 << false << true << false << 1.0;
    QTest::newRow("disabled") << 5 << false << false << false << 0.3;
    QTest::newRow("down, with a picture") << 5 << true << true << true << 0.6;
    QTest::newRow("disabled while down") << 2 << true << false << true << 0.6;
}

void TestZImageButton::paints()
{
    QFETCH(int, border);
    QFETCH(bool, picture);
    QFETCH(bool, enabled);
    QFETCH(bool, down);
    QFETCH(double, opacity);
    SampleFile svg(QStringLiteral("icon.svg"));
    svg.writeSvg("purple");
    QPixmap pixmap(7, 5);
    pixmap.fill(Qt::darkCyan);
    QPainter(&pixmap).fillRect(1, 1, 4, 2, Qt::yellow);
    SampleFile bitmap(QStringLiteral("ground.png"));
    pixmap.save(bitmap.path());

    ZImageButton button(QStringLiteral("A && B"), svg.path(), QString());
    QFont font;
    font.setPixelSize(13);
    button.setFont(font);
    button.setFontColor(Qt::blue);
    button.setBgColor(QColor(90, 200, 30, 150));
    button.setBorderColor(Qt::black);
    button.setBorderWidth(border);
    button.setRadius(9);
    button.setTextRect({5, 20, 60, 15});
    button.setIcoRect({40, 3, 31, 17});
    button.setEnabled(enabled);
    button.setDown(down);
    if (picture)
        button.setBgPicture(bitmap.path());

    const QHash<int, int> insetOfBorder = {{0, 0}, {2, 1}, {5, 2}};
    const int inset = insetOfBorder.value(border);
    for (const QSize size : {QSize(100, 40), QSize(77, 51)}) {
        button.resize(size);
        const QRectF ground = QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset);
        QPixmap icon(size);
        icon.fill(Qt::transparent);
        {
            QPainter painter(&icon);
            QSvgRenderer(svg.path()).render(&painter);
        }
        COMPARE_PICTURES(snapshot(button), reference(size, [&](QPainter &painter) {
                             painter.setRenderHint(QPainter::Antialiasing);
                             painter.setOpacity(opacity);
                             painter.setPen(border > 0 ? QPen(Qt::black, border) : Qt::NoPen);
                             painter.setBrush(QColor(90, 200, 30, 150));
                             painter.drawRoundedRect(ground, 9, 9);
                             if (picture)
                                 painter.drawPixmap(ground, pixmap, QRectF());
                             painter.setRenderHint(QPainter::Antialiasing, false);
                             painter.drawPixmap(QRectF(40, 3, 31, 17), icon, QRectF());
                             painter.setFont(font);
                             painter.setPen(Qt::blue);
                             painter.drawText(QRect(5, 20, 60, 15), Qt::AlignCenter,
                                              QStringLiteral("A && B"));
                         }));
    }
}

void TestZImageButton::showsARewrittenBackground()
{
    SampleFile file(QStringLiteral("ground.ppm"));
    ZImageButton button;
    button.resize(4, 4);
    button.setBgPicture(file.path());
    QCOMPARE(snapshot(button).pixelColor(1, 1), QColor(Qt::white));
    file.write("P6 1 1 255 abc");
    QCOMPARE(snapshot(button).pixelColor(1, 1), QColor('a', 'b', 'c'));
    file.write("P6 1 1 255 xyz");
    QCOMPARE(snapshot(button).pixelColor(1, 1), QColor('x', 'y', 'z'));
}

void TestZImageButton::drawsItsIconSharp()
{
    SampleFile svg(QStringLiteral("icon.svg"));
    svg.writeSvg("green");
    ZImageButton button;
    button.resize(20, 10);
    button.setIcoRect(button.rect());
    button.setBgColor(Qt::transparent);
    QVERIFY(button.loadIcoImage(svg.path()));
    const auto icon = [&](QPainter &painter) {
        QSvgRenderer(svg.path()).render(&painter, QRectF(0, 0, 20, 10));
    };
    for (int ratio : {1, 2, 1})
        COMPARE_PICTURES(snapshot(button, ratio), reference({20, 10}, icon, ratio));

    QVERIFY(!button.loadIcoImage(QStringLiteral("missing.svg")));
    COMPARE_PICTURES(snapshot(button), blankPicture({20, 10}));
}

void TestZImageButton::showsItsSignWhileChecked()
{
    SampleFile svg(QStringLiteral("sign.svg"));
    svg.writeSvg("green");
    QWidget window;
    ZImageButton button({}, {}, svg.path(), &window);
    QCOMPARE(button.loadIcoImage({}), false);
    auto *sign = button.findChild<ZSvgWidget *>();
    button.resize(100, 60);
    snapshot(button);
    QCOMPARE(sign->geometry(), QRect(80, 0, 20, 10));

    for (const bool shown : {true, false, true}) {
        button.click();
        QCOMPARE(sign->isVisibleTo(&button), shown);
    }
    button.setSingSize(-1, std::numeric_limits<int>::max());
    QCOMPARE(sign->maximumSize(), QSize(0, QWIDGETSIZE_MAX));
}

void TestZImageButton::mayBeDeletedInItsSlots()
{
    QVERIFY(mayBeDeletedIn(&QAbstractButton::toggled, new ZImageButton));
    QVERIFY(mayBeDeletedIn(&QAbstractButton::clicked, new ZImageButton));
}

void TestZImageButton::paintsNoBackgroundOutsideAPaint()
{
    struct Tile : ZImageButton
    {
        using ZImageButton::paintBackground;
    } tile;
    tile.show();
    tile.paintBackground();
}

void TestZImageButton::repaintsForSomeSetters()
{
    ZImageButton button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    PaintCounter paints(button);
    button.setBgColor(Qt::red);
    button.setBorderWidth(2);
    button.setRadius(2);
    button.setTextRect({});
    button.setIcoRect({});
    QCOMPARE(paints.take(), 0);
    button.setBorderColor({});
    QCOMPARE(paints.take(), 1);
    button.setBgPicture({});
    QCOMPARE(paints.take(), 1);
    button.setFontColor({});
    QCOMPARE(paints.take(), 1);
}

QTEST_MAIN(TestZImageButton)
#include "tst_zimagebutton.moc"
