#include "widgettest.h"

#include <QBitmap>
#include <QSvgRenderer>
#include <zclicklabel.h>

class TestZClickLabel : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints_data()
    {
        QTest::addColumn<QString>("look");
        for (const char *look :
             {"wrapped", "wrapped anywhere", "Hebrew", "Hebrew, left", "mirrored", "corner",
              "round, corner", "round, corner, picture, SVG",
              "round, corner, picture, SVG, disabled", "bitmap picture"})
            QTest::newRow(look) << look;
    }

    void paints()
    {
        QFETCH(QString, look);
        const auto has = [&](const char *part) { return look.contains(part); };
        const int radius = has("round") ? 9 : 0;
        const QColor ground = has("round") ? QColor(20, 40, 200, 150) : Qt::transparent;
        const QString text = has("Hebrew") ? "שלום <b>" : "two words <b>&amp;</b>";
        const auto side = has("left") ? Qt::AlignLeft : Qt::AlignRight;
        const SampleFile svg("Icon.SVG", sampleSvg("#4080c0"));
        const QPixmap spots = has("bitmap") ? QBitmap(spottedPixmap()) : spottedPixmap();

        ZClickLabel label(text);
        label.setAlignment(side | Qt::AlignTop);
        QGuiApplication::setLayoutDirection(has("mirrored") ? Qt::RightToLeft : Qt::LeftToRight);
        label.setFontColor(Qt::red);
        label.setTextSize(13);
        label.setWordWrap(has("wrapped"));
        if (has("anywhere"))
            label.setTextFlag(Qt::TextWrapAnywhere);
        label.setRadius(radius);
        label.setBgColor(ground);
        label.setRightCornerLabels(has("corner"));
        label.setDisabled(has("disabled"));
        label.setPicture(has("picture") ? spots : QPixmap());
        if (has("SVG"))
            label.setBgPicturePath(svg.path());

        comparePictures(label, {{91, 25}, {80, 44}}, [&](QPainter &painter, const QRect &all) {
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.setBrush(ground);
            painter.drawRoundedRect(all, radius, radius);
            painter.setOpacity(has("disabled") ? 0.3 : 1.0);
            painter.setPen(Qt::red);
            if (has("picture"))
                painter.drawPixmap(all, spots);
            if (has("SVG"))
                QSvgRenderer(svg.path()).render(&painter, all);

            const auto wrapping = has("anywhere") ? Qt::TextWrapAnywhere : Qt::TextWordWrap;
            painter.drawText(all, side | Qt::AlignTop | (has("wrapped") ? wrapping : 0), text);

            const int leg = all.height() == 25 ? 10 : 17;
            const QPointF end(all.width(), 0);
            QPainterPath triangle(end - QPointF(leg, 0));
            triangle.cubicTo(end - QPointF(radius, 0), end, end + QPointF(0, radius));
            triangle.lineTo(end + QPointF(0, leg));
            if (has("corner"))
                painter.fillPath(triangle, QColor(235, 194, 50));
        });
    }

    void showsARewrittenSvg()
    {
        const SampleFile svg("icon.svg", sampleSvg("red"));
        ZClickLabel label;
        label.setBgPicturePath(svg.path());
        label.resize(20, 10);
        QSignalSpy parses(label.findChild<QSvgRenderer *>(), &QSvgRenderer::repaintNeeded);
        for (int i = 0; i < 2; ++i)
            QCOMPARE(snapshot(label).pixelColor(1, 1), QColor(Qt::red));
        QCOMPARE(parses.count(), 1);

        svg.write(sampleSvg("blue"));
        QCOMPARE(snapshot(label).pixelColor(1, 1), QColor(Qt::blue));
        QFile::remove(svg.path());
        QCOMPARE(snapshot(label).pixelColor(1, 1), QColor(Qt::transparent));
    }

    void showsFilesThatAnSvgNames()
    {
        const SampleFile svg("icon.svg"), picture("dot.ppm", "P6 1 1 255 abc"),
            style("ground.css", "rect { fill: red }");
        const QDir folder = QFileInfo(svg.path()).dir();
        ZClickLabel label;
        label.setBgPicturePath(svg.path());
        const auto shown = [&] { return snapshot(label, {20, 10}).pixelColor(1, 1); };

        svg.write("<svg width='20' height='10'><image width='20' height='10' xlink:href='"
                  + folder.relativeFilePath(picture.path()).toUtf8() + "'/></svg>");
        QCOMPARE(shown(), QColor('a', 'b', 'c'));
        picture.write("P6 1 1 255 xyz");
        QCOMPARE(shown(), QColor('x', 'y', 'z'));

        svg.write("<?xml-stylesheet type=\"text/css\" href=\"" + style.path().toUtf8()
                  + "\"?>"
                    "<svg width='20' height='10'><rect width='20' height='10'/></svg>");
        QCOMPARE(shown(), QColor(Qt::red));
        style.write("rect { fill: blue }");
        QCOMPARE(shown(), QColor(Qt::blue));
    }

    void drawsNothingOfBrokenFiles()
    {
        const QByteArray zipped = QByteArray::fromBase64( // a black square
            "H4sIAAAAAAACA7MpLku3sylKTS5RKM9MKcmwVbdUV8hIzUzPKAEx9e1s9EEqABjCT0MnAAAA");
        for (const auto &[name, content] : {std::make_pair("bad.svg", QByteArray("no image")),
                                            {"cut.svg", "<svg><rect w"},
                                            {"zipped.svg", zipped},
                                            {"black.svgz", zipped},
                                            {"black.SVG.gz", zipped},
                                            {"bad.bmp", "-"},
                                            {"huge.png", hugePicture()}}) {
            const SampleFile file(name, content);
            ZClickLabel label;
            label.setBgPicturePath(file.path());
            const auto seen = file.path().contains("black") ? Qt::black : Qt::transparent;
            COMPARE_PICTURES(snapshot(label, {9, 9}),
                             reference({9, 9}, [&](auto &p) { p.fillRect(0, 0, 9, 9, seen); }));
        }
    }

    void survivesValuesThatFontsRefuse()
    {
        ZClickLabel label;
        label.setFontFamily("DejaVu Sans");
        label.setTextSize(21);
        label.setFontWeight(75);
        label.setItalic(false, 150);
        const QFont before = label.font();
        QVERIFY(before.italic() && before.bold() && before.pixelSize() == 21
                && before.family() == "DejaVu Sans");
        for (int value : {-1, 4001, INT_MIN}) {
            label.setTextSize(qMin(value, 0));
            label.setFontWeight(value);
            label.setItalic(false, value);
        }
        label.setFontWeight(100);
        QCOMPARE(label.font(), before);
    }

    void repaintsOnlyForNewValues()
    {
        ZClickLabel label("text");
        QVERIFY(!repaints(label, [&] { label.setRadius(0), label.setBgColor(Qt::transparent); }));
        QVERIFY(repaints(label, [&] { label.setRadius(1); }));
        QVERIFY(repaints(label, [&] { label.setBgColor(Qt::red); }));
        QVERIFY(repaints(label, [&] { label.setPicture({}); }));
        QVERIFY(repaints(label, [&] { label.setRightCornerLabels(false); }));
        QVERIFY(repaints(label, [&] { label.setTextFlag(label.textFlag()); }));
        QVERIFY(repaints(label, [&] { label.setLabelText(label.text()); }));
        QVERIFY(repaints(label, [&] { label.setBgPicturePath({}); }));

        label.setLabelText({});
        label.setLabelText("more");
        QVERIFY(label.isHidden() && label.text() == QLatin1String("more"));
    }

    void mayBeDeletedInItsSlots()
    {
        for (auto signal : {&ZClickLabel::signal_pressed, &ZClickLabel::signal_released,
                            &ZClickLabel::signal_clicked})
            QVERIFY(mayBeDeletedIn(signal, new ZClickLabel));
    }

    void leavesEventsToItsParent()
    {
        ZClickLabel label;
        int taps = 0;
        connect(&label, &ZClickLabel::signal_pressed, [&] { taps += 100; });
        connect(&label, &ZClickLabel::signal_released, [&] { taps += 10; });
        connect(&label, &ZClickLabel::signal_clicked, [&] { ++taps; });
        for (const auto button : {Qt::RightButton, Qt::LeftButton}) {
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, QPoint(), button, button, {});
                QCoreApplication::sendEvent(&label, &event);
                QVERIFY(!event.isAccepted());
            }
            QCOMPARE(taps, button == Qt::LeftButton ? 111 : 0);
        }
    }
};

QTEST_MAIN(TestZClickLabel)
#include "tst_zclicklabel.moc"
