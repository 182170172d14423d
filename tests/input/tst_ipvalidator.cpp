#include "warnings.h"

#include <QLineEdit>
#include <QtTest>
#include <ipvalidator.h>

namespace {

constexpr int Invalid = QValidator::Invalid;
constexpr int Intermediate = QValidator::Intermediate;
constexpr int Acceptable = QValidator::Acceptable;

// Less than all of them when the validator has changed the text or the cursor.
int judged(QString text)
{
    const QString before = text;
    int pos = -7;
    const int state = IPValidator(nullptr).validate(text, pos);
    return text == before && pos == -7 ? state : -1;
}

// By way of numbers, where the validator goes by patterns; for ASCII text.
int expected(const QString &text)
{
    int dots = 0, numbers = 0;
    QString number;
    for (const QChar c : text + '\0') {
        if (c != '.' && c != '\0') {
            number += c;
            continue;
        }
        dots += c == '.';
        if (number.isEmpty())
            continue;
        const uint value = number.toUInt();
        if (value > 255 || number != QString::number(value))
            return Invalid;
        ++numbers;
        number.clear();
    }
    if (dots > 3)
        return Invalid;
    return numbers == 4 ? Acceptable : Intermediate;
}

} // namespace

class TestIPValidator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void judgesEveryNumberInEveryPlace()
    {
        for (int value = 0; value < 1000; ++value) {
            for (int width = 1; width <= 4; ++width) {
                const QString part = QString::number(value).rightJustified(width, '0');
                for (const char *address : {"%1", "%1.", "%1.7.7.7", "7.7.%1.7", "7.7.7.%1"}) {
                    const QString text = QString(address).arg(part);
                    QVERIFY2(judged(text) == expected(text), qPrintable(text));
                }
            }
        }
    }

    void judgesRandomText()
    {
        QRandomGenerator random(1);
        const QString characters = QStringLiteral("....00112255679a -+");
        int seen[3] = {};
        for (int i = 0; i < 200000; ++i) {
            QString text;
            for (int length = random.bounded(16); length > 0; --length)
                text += characters[random.bounded(characters.size())];
            QVERIFY2(judged(text) == expected(text), qPrintable(text));
            ++seen[judged(text)];
        }
        QVERIFY(seen[Invalid] && seen[Intermediate] && seen[Acceptable]);
    }

    void judgesDigitsOfOtherScripts()
    {
        const QString one(QChar(0x0661)), zero(QChar(0x0660)); // Arabic-Indic
        QCOMPARE(judged(one + ".2.3.4"), Acceptable);
        QCOMPARE(judged(zero + one + ".1" + one + one + ".2.3"), Acceptable);
        QCOMPARE(judged("20" + one + ".24" + one), Intermediate);
        QCOMPARE(judged("2" + one + "1"), Invalid);
        QCOMPARE(judged(one + one + one), Invalid);
        QCOMPARE(judged("0" + one), Invalid);
        QCOMPARE(judged(QString::fromUcs4(U"\U0001D7CF")), Invalid); // of two units
    }

    void guardsALineEdit()
    {
        QLineEdit edit;
        edit.setValidator(new IPValidator(&edit));
        QSignalSpy accepted(&edit, &QLineEdit::returnPressed);
        const auto typed = [&](const char *keys) {
            QTest::keyClicks(&edit, keys);
            QTest::keyClick(&edit, Qt::Key_Return);
            return QString("%1 %2").arg(edit.text()).arg(accepted.size());
        };
        QCOMPARE(typed("x01 92.3001.68"), QString("0.30.68 0"));
        edit.clear();
        QCOMPARE(typed("192.168.1.256.7"), QString("192.168.1.25 1"));
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(typed("4"), QString("192.168.1.24 2"));

        edit.clear();
        edit.insert("1.2.3.400");
        QCOMPARE(edit.text(), QString());
        edit.insert(QString(100000, '1'));
        QCOMPARE(edit.text(), QString());
    }
};

QTEST_MAIN(TestIPValidator)
#include "tst_ipvalidator.moc"
