#include "buttontest.h"

#include <QSvgRenderer>
#include <zimagebutton.h>
#include <zsvgwidget.h>

class TestZImageButton : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints()
    {
        const SampleFile svg("icon.svg", sampleSvg("purple")), bitmap("ground.png");
        const QPixmap pixmap = spottedPixmap();
        pixmap.save(bitmap.path());

        ZImageButton button("A && B", svg.path(), QString());
        QVERIFY(staysCheckedInItsGroup(button));
        button.setFont(QFont("DejaVu Sans", 10));
        QVERIFY(repaints(button, [&] { button.setFontColor(Qt::blue); }));
        QVERIFY(repaints(button, [&] { button.setBorderColor(Qt::black); }));
        QVERIFY(repaints(button, [&] { button.setBgPicture({}); }));
        QVERIFY(!repaints(button, [&] {
            button.setBgColor(QColor(90, 200, 30, 150));
            button.setBorderWidth(2);
            button.setRadius(9);
            button.setTextRect({5, 20, 30, 15}); // as the text is longer
            button.setIcoRect({40, 3, 31, 17});
        }));
        for (const int border : {0, 5, 60}) { // the last leaves no ground
            const int inset = border / 2;
            for (const QString &path : {QString(), bitmap.path()}) {
                button.setBorderWidth(border);
                button.setBgPicture(path);
                compareStates(button, {{100, 40}, {77, 51}}, [&](auto &painter, auto &all) {
                    const QRectF ground = all.adjusted(inset, inset, -inset, -inset);
                    const auto icon
                        = [&](QPainter &p) { QSvgRenderer(svg.path()).render(&p, all); };
                    painter.setOpacity(button.isDown() ? 0.6 : button.isEnabled() ? 1.0 : 0.3);
                    painter.setPen(border > 0 ? QPen(Qt::black, border) : Qt::NoPen);
                    painter.setBrush(QColor(90, 200, 30, 150));
                    painter.drawRoundedRect(ground, 9, 9);
                    if (!path.isEmpty())
                        painter.drawPixmap(ground, pixmap, QRectF());
                    painter.setRenderHint(QPainter::Antialiasing, false);
                    painter.drawImage(
                        QRectF(40, 3, 31, 17),
                        reference(all.size(), icon, painter.device()->devicePixelRatioF()));
                    painter.setPen(Qt::blue);
                    painter.drawText(QRect(5, 20, 30, 15), Qt::AlignCenter, button.text());
                });
            }
        }
    }

    void showsARewrittenBackground()
    {
        struct Tile : ZImageButton
        {
            using ZImageButton::paintBackground;
        } button;
        SampleFile file("ground.ppm");
        button.setBgPicture(file.path());
        button.paintBackground(); // not in a paint: nothing
        const auto shown = [&] { return snapshot(button, QSize(4, 4)).pixelColor(1, 1); };
        QCOMPARE(shown(), QColor(Qt::white));
        file.write("P6 1 1 255 abc");
        QCOMPARE(shown(), QColor('a', 'b', 'c'));
        file.write("P6 1 1 255 xyz");
        QCOMPARE(shown(), QColor('x', 'y', 'z'));
        button.setBgPicture(file.path().chopped(4)); // Qt finds the suffix
        QCOMPARE(shown(), QColor('x', 'y', 'z'));

        button.setBgPicture(file.path());
        file.write(hugePicture());
        QCOMPARE(shown(), QColor(Qt::white));

        const SampleFile pipe("pipe.ppm");
        pipe.makePipe();
        button.setBgPicture(pipe.path());
        QCOMPARE(shown(), QColor(Qt::white));
    }

    void drawsItsIconSharp()
    {
        const SampleFile svg("icon.svg", sampleSvg("green"));
        ZImageButton button;
        button.resize(20, 10);
        button.setIcoRect(button.rect());
        button.setBgColor(Qt::transparent);
        QVERIFY(button.loadIcoImage(svg.path()));
        const QRectF all(button.rect());
        const auto icon = [&](QPainter &p) { QSvgRenderer(svg.path()).render(&p, all); };
        for (double ratio : {1.0, 2.0, 1.0})
            COMPARE_PICTURES(snapshot(button, ratio), reference({20, 10}, icon, ratio));

        QImage part = blankPicture({20, 10});
        button.resize(9000, 9000); // too many pixels for an icon
        button.render(&part, {}, {}, QWidget::DrawChildren);
        COMPARE_PICTURES(part, blankPicture({20, 10}));
        button.resize(20, 10);

        QVERIFY(!button.loadIcoImage("missing.svg"));
        COMPARE_PICTURES(snapshot(button), blankPicture({20, 10}));
    }

    void movesAnAnimatedIcon()
    {
        const SampleFile svg(
            "icon.svg",
            "<svg width='20' height='10'><rect width='9' height='9'>"
            "<animateTransform attributeName='transform' type='translate' "
            "from='0 0' to='9 0' dur='1s' repeatCount='indefinite'/></rect></svg>");
        ZImageButton button({}, svg.path(), {});
        const QImage before = snapshot(button, QSize(20, 10));
        QTRY_VERIFY(snapshot(button) != before);
    }

    void showsItsSignWhileChecked()
    {
        const SampleFile svg("sign.svg", sampleSvg("green"));
        ZImageButton button({}, {}, svg.path());
        auto *sign = button.findChild<ZSvgWidget *>();
        snapshot(button, QSize(100, 60));
        QCOMPARE(sign->geometry(), QRect(80, 0, 20, 10));
        snapshot(button, QSize(15, 7));
        QCOMPARE(sign->geometry(), QRect(0, 0, 15, 7));

        for (const bool shown : {true, false, true}) {
            button.click();
            QCOMPARE(sign->isVisibleTo(&button), shown);
        }
        button.setSingSize(-1, INT_MAX);
        QCOMPARE(sign->maximumSize(), QSize(0, QWIDGETSIZE_MAX));
    }

    void mayBeDeletedInItsSlots()
    {
        QVERIFY(mayBeDeletedInSlots([] { return new ZImageButton; }));
    }
};

QTEST_MAIN(TestZImageButton)
#include "tst_zimagebutton.moc"
