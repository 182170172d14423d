#include "labeltest.h"

#include <QTextDocument>
#include <zresizablelabel.h>

namespace {

// Tries all boxes, one after the other.
QSize expectedHint(const ZResizableLabel &label, const QSize &min, const QSize &max)
{
    const int growths = (max.height() - min.height()) / 50;
    double width = min.width();
    for (int height = min.height(); height <= max.height(); height += 50) {
        const QRect box(0, 0, int(width), height);
        const QRect text = label.fontMetrics().boundingRect(box, Qt::TextWordWrap, label.text());
        if (box.contains(text))
            return QRectF(0, 0, min.width(), min.height()).contains(text) ? min : text.size();
        width += double(max.width() - min.width()) / growths;
    }
    return max;
}

void drawRichText(QPainter &painter, const QRect &all, const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    document.setDocumentMargin(0);
    document.setTextWidth(all.width());
    document.drawContents(&painter, all);
}

void compareRichText(ZResizableLabel &label)
{
    comparePictures(label, {{120, 90}}, [&](QPainter &painter, const QRect &all) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        drawRichText(painter, all, label.text());
    });
}

} // namespace

class TestZResizableLabel : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void prefersTheFirstBoxThatHoldsIt()
    {
        const QSize limits[][2]
            = {{{70, 30}, {1190, 768}}, {{70, 30}, {70, 9000}}, {{200, 0}, {60, 3000}},
               {{33, 17}, {90, 66}},    {{0, 0}, {4000, 9999}}, {{-5, -3}, {700, 200}}};
        for (const auto &limit : limits) {
            ZResizableLabel label;
            label.setMinSize(limit[0]);
            label.setMaxSize(limit[1]);
            for (const QString &text : textsOfAllKinds()) {
                label.setText(text);
                for (const int size : {13, 40}) {
                    QFont font = label.font();
                    font.setPixelSize(size);
                    label.setFont(font);
                    QCOMPARE(label.sizeHint(), expectedHint(label, limit[0], limit[1]));
                }
            }
        }
    }

    void prefersWhatItsLimitsSay()
    {
        ZResizableLabel label;
        QCOMPARE(label.minimumSize(), QSize(70, 30));
        QCOMPARE(label.maximumSize(), QSize(1190, 768));
        QVERIFY(label.wordWrap());
        label.setText("a");
        QCOMPARE(label.sizeHint(), QSize(70, 30));
        label.setMinSize({80, 40});
        QCOMPARE(label.sizeHint(), QSize(80, 40));
        label.setText(QString(30, 'W'));
        QVERIFY(label.sizeHint().width() > 80);
        label.setMaxSize({INT_MAX, 39});
        label.resize(101, 40);
        QCOMPARE(label.sizeHint(), QSize(101, 40));
    }

    void staysResponsive()
    {
        for (const QString &text : {QString(3000, 'x'), QString("word ").repeated(20000)}) {
            for (const int width : {70, QWIDGETSIZE_MAX}) {
                ZResizableLabel label(text);
                label.setMaxSize({width, QWIDGETSIZE_MAX});
                // Of 335,000 boxes, 1000 times.
                QVERIFY(layoutsTaken(label, [&] { label.sizeHint(); }) < 1000);
            }
        }
    }

    void paints()
    {
        const QString html = "<h3>Title</h3><p>Some <b>words</b> of HTML &amp; <i>more</i></p>";
        const QColor ground(20, 40, 200, 150);
        ZResizableLabel label;
        QVERIFY(!repaints(label, [&] {
            label.setBackgroundColor(ground);
            label.setFontColor(Qt::red);
            QTest::qWait(100);
        }));
        label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
        for (const auto format : {Qt::AutoText, Qt::RichText, Qt::PlainText}) {
            for (const QString &text : {html, html.left(30)}) {
                label.setTextFormat(format);
                label.setText(text);
                comparePictures(
                    label, {{120, 90}, {61, 141}}, [&](auto &painter, const QRect &all) {
                        painter.setRenderHint(QPainter::Antialiasing, false);
                        painter.fillRect(all, ground);
                        if (format == Qt::RichText)
                            return drawRichText(painter, all, text);
                        painter.setPen(Qt::red);
                        painter.drawText(all, int(label.alignment()) | Qt::TextWordWrap, text);
                    });
            }
        }
        label.paintNormalText(); // outside a paint
        label.paintRichText();
    }

    void drawsRichTextAnewWhenWhatItNamesChanged()
    {
        const QByteArray upright = "P6 2 9 255 " + QByteArray(54, 'a'),
                         flat = "P6 9 2 255 " + QByteArray(54, 'z');
        const std::pair<QString, QByteArrayList> rows[]
            = {{"<img src='%1'>text", {upright, flat, " "}},
               {"<p style='background-image: url(%1)'>text", {upright, flat, " "}},
               {"<style>@import url(%1);</style><p>text", {" ", "p { color: red }", " "}}};
        for (const auto &[html, contents] : rows) {
            const SampleFile file("named");
            ZResizableLabel label(html.arg(file.path()));
            label.setTextFormat(Qt::RichText);
            for (const QByteArray &content : contents) {
                file.write(content);
                compareRichText(label);
            }
        }
    }

    void drawsRichTextInTheApplicationsColors()
    {
        const QPalette before = QGuiApplication::palette();
        ZResizableLabel label("<a href='a'>link</a><p style='color: palette(highlight)'>text");
        label.setTextFormat(Qt::RichText);
        for (const QColor color : {Qt::red, Qt::green}) {
            QPalette palette = before;
            palette.setColor(QPalette::Link, color);
            palette.setColor(QPalette::Highlight, color);
            QApplication::setPalette(palette);
            compareRichText(label);
        }
        QApplication::setPalette(before);
    }
};

QTEST_MAIN(TestZResizableLabel)
#include "tst_zresizablelabel.moc"
