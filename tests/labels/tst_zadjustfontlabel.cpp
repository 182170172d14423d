#include "labeltest.h"

#include <QTextOption>
#include <zadjustfontlabel.h>

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

bool takesTheLargest(ZAdjustFontLabel &label, int min, int max)
{
    const int expected = largestFitting(label, min, max);
    label.setFontSizeRange(min, max);
    label.calcFontSize();
    return label.font().pixelSize() == expected;
}

} // namespace

class TestZAdjustFontLabel : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheLargestSizeThatFits()
    {
        for (const QString &text : textsOfAllKinds()) {
            ZAdjustFontLabel label(text);
            for (const QSize size : {QSize(1, 1), QSize(7, 60), QSize(121, 33), QSize(160, 70)}) {
                label.resize(size);
                for (const auto &[min, max] : {std::make_pair(1, 70), {14, 15}, {9, 5}})
                    QVERIFY2(takesTheLargest(label, min, max), qPrintable(text));
            }
        }
    }

    void measuresAgainForEachInput()
    {
        ZAdjustFontLabel label("A text");
        label.resize(120, 33);
        QVERIFY(takesTheLargest(label, 1, 60));
        label.setText("A longer text");
        QVERIFY(takesTheLargest(label, 1, 60));
        label.setFontWeight(QFont::Black);
        QVERIFY(takesTheLargest(label, 1, 60));
        label.resize(90, 33);
        for (const auto &[min, max] : {std::make_pair(1, 60), {40, 60}, {40, 41}, {1, 7}})
            QVERIFY(takesTheLargest(label, min, max));
    }

    void takesNoSizeThatIsNone()
    {
        ZAdjustFontLabel label("text");
        label.resize(200, 100);
        const QFont before = label.font();
        label.calcFontSize();
        QVERIFY(before.isCopyOf(label.font()));
        label.setTextSize(30);
        label.setFontSizeRange(INT_MIN, 0);
        label.calcFontSize();
        QCOMPARE(label.font().pixelSize(), 30);
    }

    void paintsAndComesToRest()
    {
        ZAdjustFontLabel label("Brightness");
        label.setFontSizeRange(5, 60);
        label.setRightCornerLabels(true);
        ZClickLabel plain(label.text());
        plain.setRightCornerLabels(true);
        for (const QSize size : {QSize(90, 40), QSize(131, 35)}) {
            const QImage picture = snapshot(label, size);
            plain.setTextSize(largestFitting(label, 5, 60));
            COMPARE_PICTURES(picture, snapshot(plain, size));
        }
        QVERIFY(!repaints(label, [] { QTest::qWait(300); }));
        QVERIFY(repaints(label, [&] { label.setTextSize(9); }));
        QVERIFY(label.font().pixelSize() > 9);
    }

    void staysResponsive()
    {
        for (const QString &text : {QString(20000, 'x'), QString(20000, QChar(0x200b)),
                                    QString(20000, '\n'), QString("word ").repeated(4000)}) {
            ZAdjustFontLabel label(text);
            label.setFontSizeRange(INT_MIN, INT_MAX);
            label.resize(800, 600);
            // Of at least 500 sizes, 1000 times.
            QVERIFY(layoutsTaken(label, [&] { label.calcFontSize(); }) < 150);
        }
    }
};

QTEST_MAIN(TestZAdjustFontLabel)
#include "tst_zadjustfontlabel.moc"
