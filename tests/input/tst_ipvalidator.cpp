#include "widgettest.h"

#include <algorithm>
#include <ipvalidator.h>

namespace {

QValidator::State judged(QString text)
{
    const QString before = text;
    int pos = -7;
    const auto state = IPValidator(nullptr).validate(text, pos);
    if (text != before || pos != -7)
        qFatal("The validator has changed %s", qPrintable(before));
    return state;
}

// By way of numbers, where the validator goes by patterns; for ASCII text.
QValidator::State expected(const QString &text)
{
    const QStringList parts = text.split('.');
    const auto numbers = std::count_if(parts.cbegin(), parts.cend(), [](const QString &part) {
        const uint value = part.toUInt();
        return value < 256 && part == QString::number(value);
    });
    if (parts.size() > 4 || numbers + parts.count(QString()) < parts.size())
        return QValidator::Invalid;
    return numbers == 4 ? QValidator::Acceptable : QValidator::Intermediate;
}

} // namespace

class TestIPValidator : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void judgesEveryNumberInEveryPlace()
    {
        for (int value = 0; value < 1000; ++value)
            for (int width = 1; width <= 4; ++width) {
                const QString part = QString::number(value).rightJustified(width, '0');
                for (const char *address : {"%1", "%1.", "%1.7.7.7", "7.7.%1.7", "7.7.7.%1"}) {
                    const QString text = QString(address).arg(part);
                    QVERIFY2(judged(text) == expected(text), qPrintable(text));
                }
            }
    }

    void judgesRandomText()
    {
        QRandomGenerator random(1);
        const QString characters = "....00112255679a -+";
        for (int i = 0; i < 50000; ++i) {
            QString text;
            for (int length = random.bounded(16); length > 0; --length)
                text += characters[random.bounded(characters.size())];
            QVERIFY2(judged(text) == expected(text), qPrintable(text));
        }
        QCOMPARE(judged(QString(100000, '1')), QValidator::Invalid);
    }

    void judgesDigitsOfOtherScripts()
    {
        const QString one(QChar(0x0661)), zero(QChar(0x0660)); // Arabic-Indic
        QCOMPARE(judged(zero + one + ".1" + one + one + ".2." + one), QValidator::Acceptable);
        QCOMPARE(judged("20" + one + ".24" + one), QValidator::Intermediate);
        QCOMPARE(judged("2" + one + "1"), QValidator::Invalid);
        QCOMPARE(judged(one + one + one), QValidator::Invalid);
        QCOMPARE(judged("0" + one), QValidator::Invalid);
        QCOMPARE(judged(QString::fromUcs4(U"\U0001D7CF")), QValidator::Invalid); // of two units
    }
};

QTEST_MAIN(TestIPValidator)
#include "tst_ipvalidator.moc"
