#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QTextOption>
#include <QtTest>
#include <climits>
#include <zadjustfontlabel.h>

using ZIRVOUI::ZAdjustFontLabel;
using ZIRVOUI::ZClickLabel;

namespace {

// Tries all sizes from the largest to the smallest.
int largestFitting(const ZAdjustFontLabel &label, int min, int max)
{
    const QRectF rect = label.rect();
    QTextOption option(Qt::AlignCenter);
    option.setWrapMode(QTextOption::WrapAnywhere);
    QFont font = label.font();
    QImage picture = blankPicture({1, 1});
    QPainter painter(&picture);
    for (int size = max; size >= min; --size) {
        font.setPixelSize(size);
        painter.setFont(font);
        if (rect.contains(painter.boundingRect(rect, label.text(), option)))
            return size;
    }
    return min;
}

} // namespace

class TestZAdjustFontLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void takesTheLargestThatFits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("blank") << QString(9, ' ');
        QTest::newRow("of no width") << QString(9, QChar(0x200b));
        QTest::newRow("a letter") << QStringLiteral("W");
        QTest::newRow("a long word") << QStringLiteral("Donaudampfschifffahrtsgesellschaft");
        QTest::newRow("paragraphs") << QStringLiteral("Warning\n\nThe door is open\n");
        QTest::newRow("scripts") << QString::fromUtf8("ab שלום עולם مرحبا 漢字 😀 \t e\u0301");
        QTest::newRow("two variants") << QString("A long variant") + QChar(0x9c) + "short";
        QTest::newRow("long") << QStringLiteral("many words ").repeated(30);
    }

    void takesTheLargestThatFits()
    {
        QFETCH(QString, text);
        ZAdjustFontLabel label(text);
        for (const QSize size : {QSize(1, 1), QSize(7, 160), QSize(121, 33), QSize(300, 150)}) {
            label.resize(size);
            for (const bool bold : {false, true}) {
                QFont font = label.font();
                font.setBold(bold);
                label.setFont(font);
                for (const auto range : {qMakePair(1, 160), qMakePair(14, 15), qMakePair(9, 5)}) {
                    const int expected = largestFitting(label, range.first, range.second);
                    label.setFontSizeRange(range.first, range.second);
                    label.calcFontSize();
                    QCOMPARE(label.font().pixelSize(), expected);
                }
            }
        }
    }

    void takesNoSizeThatIsNone()
    {
        ZAdjustFontLabel label(QStringLiteral("text"));
        label.resize(200, 100);
        const QFont before = label.font();
        label.calcFontSize();
        QVERIFY(before.isCopyOf(label.font()));

        label.setTextSize(30);
        label.setFontSizeRange(INT_MIN, 0);
        label.calcFontSize();
        QCOMPARE(label.font().pixelSize(), 30);
        label.setFontSizeRange(INT_MIN, INT_MAX);
        label.calcFontSize();
        QCOMPARE(label.font().pixelSize(), largestFitting(label, 1, 200));
    }

    void paintsAsAClickLabel()
    {
        ZAdjustFontLabel label(QStringLiteral("Brightness"));
        label.setFontSizeRange(5, 60);
        label.setRightCornerLabels(true);
        ZClickLabel plain(label.text());
        plain.setRightCornerLabels(true);
        for (const QSize size : {QSize(90, 40), QSize(131, 35)}) {
            const QImage picture = snapshot(label, size);
            plain.setTextSize(largestFitting(label, 5, 60));
            COMPARE_PICTURES(picture, snapshot(plain, size));
        }
    }

    void comesToRest()
    {
        ZAdjustFontLabel label(QStringLiteral("Rest"));
        label.setFontSizeRange(5, 60);
        label.resize(200, 100);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        PaintCounter paints(label);
        paints.take();
        QTest::qWait(300);
        QCOMPARE(paints.take(), 0);
        QVERIFY(repaints(label, [&] { label.setTextSize(9); }));
        QVERIFY(label.font().pixelSize() > 9);
    }

    void staysResponsive()
    {
        for (const QString &text : {QString(100000, 'x'), QString(100000, QChar(0x200b)),
                                    QString(100000, '\n'), QString("word ").repeated(20000)}) {
            ZAdjustFontLabel label(text);
            label.setFontSizeRange(1, INT_MAX);
            label.resize(800, 600);
            QElapsedTimer timer;
            timer.start();
            label.calcFontSize();
            QVERIFY2(timer.elapsed() < 5000, "under sanitizers and emulators as well");
            timer.start();
            for (int i = 0; i < 1000; ++i)
                label.calcFontSize();
            QVERIFY2(timer.elapsed() < 1000, "nothing is to be measured again");
        }
    }
};

QTEST_MAIN(TestZAdjustFontLabel)
#include "tst_zadjustfontlabel.moc"
