#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QTextDocument>
#include <QtTest>
#include <climits>
#include <zresizablelabel.h>

using ZIRVOUI::ZResizableLabel;

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

QImage drawnText(const ZResizableLabel &label)
{
    return reference(label.size(), [&](QPainter &painter) {
        painter.fillRect(label.rect(), QColor(20, 40, 200, 150));
        painter.setFont(label.font());
        painter.setPen(Qt::red);
        painter.drawText(label.rect(), int(label.alignment()) | Qt::TextWordWrap, label.text());
    });
}

QImage drawnDocument(const ZResizableLabel &label)
{
    return reference(label.size(), [&](QPainter &painter) {
        painter.fillRect(label.rect(), QColor(20, 40, 200, 150));
        QTextDocument document;
        document.setHtml(label.text());
        document.setDocumentMargin(0);
        document.setTextWidth(label.width());
        document.drawContents(&painter, label.rect());
    });
}

const char Html[] = "<h3>Title</h3><p>Some <b>words</b> of HTML &amp; <i>more</i></p>";

} // namespace

class TestZResizableLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void prefersTheFirstBoxThatHoldsIt_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("blank") << QStringLiteral("   ");
        QTest::newRow("short") << QStringLiteral("Yes");
        QTest::newRow("some words") << QStringLiteral("The door is not closed");
        QTest::newRow("many words") << QStringLiteral("The door is open. ").repeated(60);
        QTest::newRow("a long word") << QString(300, 'W');
        QTest::newRow("a long word among short ones")
            << QString(90, 'm') + QStringLiteral(" and a few words").repeated(30);
        QTest::newRow("scripts")
            << QString::fromUtf8("שלום עולם مرحبا 漢字かな 😀 e\u0301 ").repeated(12);
        QTest::newRow("paragraphs") << QStringLiteral("a\nb\n\n").repeated(25);
    }

    void prefersTheFirstBoxThatHoldsIt()
    {
        QFETCH(QString, text);
        const QSize limits[][2]
            = {{{70, 30}, {1190, 768}}, {{70, 30}, {70, 9000}}, {{200, 0}, {60, 3000}},
               {{33, 17}, {90, 66}},    {{0, 0}, {4000, 9999}}, {{-5, -3}, {700, 200}}};
        for (const auto &limit : limits) {
            ZResizableLabel label(text);
            label.setMinSize(limit[0]);
            label.setMaxSize(limit[1]);
            for (const int size : {13, 40}) {
                QFont font = label.font();
                font.setPixelSize(size);
                label.setFont(font);
                QCOMPARE(label.sizeHint(), expectedHint(label, limit[0], limit[1]));
            }
        }
    }

    void prefersWhatItsLimitsSay()
    {
        ZResizableLabel label;
        QCOMPARE(label.minimumSize(), QSize(70, 30));
        QCOMPARE(label.maximumSize(), QSize(1190, 768));
        QVERIFY(label.wordWrap());
        label.setMinSize({80, 40});
        label.setText(QStringLiteral("a"));
        QCOMPARE(label.sizeHint(), QSize(80, 40));
        label.setMaxSize({INT_MAX, 39});
        label.resize(101, 40);
        QCOMPARE(label.sizeHint(), QSize(101, 40));
        QCOMPARE(label.maximumSize(), QSize(QWIDGETSIZE_MAX, 39));
    }

    void answersAtOnce()
    {
        for (const QString &text : {QString(3000, 'x'), QString("word ").repeated(20000)}) {
            ZResizableLabel label(text);
            for (const QSize max : {QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX),
                                    QSize(70, QWIDGETSIZE_MAX), QSize(INT_MAX, INT_MAX)}) {
                label.setMaxSize(max);
                QElapsedTimer timer;
                timer.start();
                label.sizeHint();
                QVERIFY2(timer.elapsed() < 5000, "under sanitizers and emulators as well");
                timer.start();
                for (int i = 0; i < 1000; ++i)
                    label.sizeHint();
                QVERIFY2(timer.elapsed() < 1000, "nothing is to be measured again");
            }
        }
    }

    void paints()
    {
        ZResizableLabel label(Html);
        QVERIFY(!repaints(label, [&] {
            label.setBackgroundColor(QColor(20, 40, 200, 150));
            label.setFontColor(Qt::red);
            QTest::qWait(100);
        }));
        label.setMinSize({20, 20});
        for (const QSize size : {QSize(120, 90), QSize(61, 141)}) {
            for (const auto format : {Qt::AutoText, Qt::PlainText, Qt::RichText, Qt::AutoText}) {
                label.setTextFormat(format);
                label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
                const QImage picture = snapshot(label, size);
                const bool isRich = format == Qt::RichText;
                COMPARE_PICTURES(picture, isRich ? drawnDocument(label) : drawnText(label));
            }
        }
        label.setTextFormat(Qt::RichText);
        label.setText("<u>new</u>");
        COMPARE_PICTURES(snapshot(label), drawnDocument(label));
        label.paintNormalText(); // outside a paint
        label.paintRichText();
    }
};

QTEST_MAIN(TestZResizableLabel)
#include "tst_zresizablelabel.moc"
