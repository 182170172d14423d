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

    void paints()
    {
        SampleFile svg(QStringLiteral("icon.svg"));
        svg.writeSvg("purple");
        QPixmap pixmap(7, 5);
        pixmap.fill(Qt::darkCyan);
        QPainter(&pixmap).fillRect(1, 1, 4, 2, Qt::yellow);
        SampleFile bitmap(QStringLiteral("ground.png"));
        pixmap.save(bitmap.path());

        ZImageButton button(QStringLiteral("A && B"), svg.path(), QString());
        button.setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
        button.setFontColor(Qt::blue);
        button.setBgColor(QColor(90, 200, 30, 150));
        button.setBorderColor(Qt::black);
        button.setRadius(9);
        button.setTextRect({5, 20, 60, 15});
        button.setIcoRect({40, 3, 31, 17});
        // Every combination: the bits of the look are its states.
        for (const int look : {0, 1, 2, 3, 4, 5, 6, 7}) {
            const int border = look & 1 ? 5 : 0;
            const QSize size = look & 1 ? QSize(77, 51) : QSize(100, 40);
            const int inset = border / 2;
            const QRectF ground = QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset);
            button.setBorderWidth(border);
            button.setBgPicture(look & 4 ? bitmap.path() : QString());
            button.setEnabled(look & 2);
            button.setDown(look > 4);
            const auto icon = [&](QPainter &p) { QSvgRenderer(svg.path()).render(&p); };
            const auto draw = [&](QPainter &painter) {
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setOpacity(button.isDown() ? 0.6 : button.isEnabled() ? 1.0 : 0.3);
                painter.setPen(border > 0 ? QPen(Qt::black, border) : Qt::NoPen);
                painter.setBrush(QColor(90, 200, 30, 150));
                painter.drawRoundedRect(ground, 9, 9);
                if (look & 4)
                    painter.drawPixmap(ground, pixmap, QRectF());
                painter.setRenderHint(QPainter::Antialiasing, false);
                painter.drawImage(QRectF(40, 3, 31, 17), reference(size, icon));
                painter.setFont(button.font());
                painter.setPen(Qt::blue);
                painter.drawText(QRect(5, 20, 60, 15), Qt::AlignCenter, button.text());
            };
            COMPARE_PICTURES(snapshot(button, size), reference(size, draw));
        }
    }

    void showsARewrittenBackground()
    {
        SampleFile file(QStringLiteral("ground.ppm"));
        ZImageButton button;
        button.setBgPicture(file.path());
        const auto shown = [&] { return snapshot(button, QSize(4, 4)).pixelColor(1, 1); };
        QCOMPARE(shown(), QColor(Qt::white));
        file.write("P6 1 1 255 abc");
        QCOMPARE(shown(), QColor('a', 'b', 'c'));
        file.write("P6 1 1 255 xyz");
        QCOMPARE(shown(), QColor('x', 'y', 'z'));
    }

    void drawsItsIconSharp()
    {
        SampleFile svg(QStringLiteral("icon.svg"));
        svg.writeSvg("green");
        ZImageButton button;
        button.resize(20, 10);
        button.setIcoRect(button.rect());
        button.setBgColor(Qt::transparent);
        QVERIFY(button.loadIcoImage(svg.path()));
        const QRectF all(button.rect());
        const auto icon = [&](QPainter &p) { QSvgRenderer(svg.path()).render(&p, all); };
        for (int ratio : {1, 2, 1})
            COMPARE_PICTURES(snapshot(button, ratio), reference({20, 10}, icon, ratio));

        QVERIFY(!button.loadIcoImage(QStringLiteral("missing.svg")));
        COMPARE_PICTURES(snapshot(button), blankPicture({20, 10}));
    }

    void showsItsSignWhileChecked()
    {
        SampleFile svg(QStringLiteral("sign.svg"));
        svg.writeSvg("green");
        ZImageButton button({}, {}, svg.path());
        auto *sign = button.findChild<ZSvgWidget *>();
        snapshot(button, QSize(100, 60));
        QCOMPARE(sign->geometry(), QRect(80, 0, 20, 10));

        for (const bool shown : {true, false, true}) {
            button.click();
            QCOMPARE(sign->isVisibleTo(&button), shown);
        }
        button.setSingSize(-1, std::numeric_limits<int>::max());
        QCOMPARE(sign->maximumSize(), QSize(0, QWIDGETSIZE_MAX));
    }

    void mayBeDeletedInItsSlots()
    {
        QVERIFY(mayBeDeletedIn(&QAbstractButton::toggled, new ZImageButton));
        QVERIFY(mayBeDeletedIn(&QAbstractButton::clicked, new ZImageButton));
    }

    void paintsNoBackgroundOutsideAPaint()
    {
        struct Tile : ZImageButton
        {
            using ZImageButton::paintBackground;
        } tile;
        tile.show();
        tile.paintBackground();
    }

    void repaintsForSomeSetters()
    {
        ZImageButton button;
        QVERIFY(!repaints(button, [&] { button.setBgColor(Qt::red); }));
        QVERIFY(!repaints(button, [&] { button.setBorderWidth(2), button.setRadius(2); }));
        QVERIFY(!repaints(button, [&] { button.setTextRect({}), button.setIcoRect({}); }));
        QVERIFY(repaints(button, [&] { button.setBorderColor({}); }));
        QVERIFY(repaints(button, [&] { button.setBgPicture({}); }));
        QVERIFY(repaints(button, [&] { button.setFontColor({}); }));
    }
};

QTEST_MAIN(TestZImageButton)
#include "tst_zimagebutton.moc"
