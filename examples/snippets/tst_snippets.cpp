#include "snippets.h"
#include "warnings.h"

#include <QDir>
#include <QtTest>
#include <SwitchButton>

using Snippet = void (*)(QBoxLayout *);
Q_DECLARE_METATYPE(Snippet)

namespace {

struct Screen
{
    Screen()
        : page(new QVBoxLayout(&widget))
    {
        widget.resize(480, 480);
        widget.setPalette(QPalette(Qt::white, QColor("#14161a")));
        widget.setAutoFillBackground(true);
        widget.show();
    }

    QWidget widget;
    QVBoxLayout *page;
};

constexpr int Moment = 60; // ms, in which animations go on and the short work is done

QStringList linesOf(const QString &path)
{
    QFile file(QDir(SOURCE_DIR).filePath(path));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("Cannot read %s", qPrintable(file.fileName()));
    return QString::fromUtf8(file.readAll()).split('\n');
}

QString withoutIndent(const QStringList &lines)
{
    int indent = INT_MAX;
    for (const QString &line : lines) {
        if (!line.isEmpty())
            indent = qMin(indent, int(line.size() - QString(line).remove(QRegExp("^ *")).size()));
    }
    QString text;
    for (const QString &line : lines)
        text += line.mid(indent) + '\n';
    return text;
}

/*! The pieces between each line that matches \a begin and the next that matches \a end. */
QStringList pieces(const QString &path, const QRegExp &begin, const QRegExp &end)
{
    QStringList found;
    QStringList piece;
    bool isInside = false;
    for (const QString &line : linesOf(path)) {
        if (isInside && end.exactMatch(line)) {
            found << withoutIndent(piece);
            isInside = false;
        } else if (!isInside && begin.exactMatch(line)) {
            piece.clear();
            isInside = true;
        } else {
            piece << line;
        }
    }
    return found;
}

QStringList allSnippets()
{
    const QString directory = "examples/snippets";
    const QRegExp mark(" *//! \\[.*\\]");
    QStringList found;
    for (const QString &file : QDir(SOURCE_DIR + ('/' + directory)).entryList({"*.cpp"}))
        found << pieces(directory + '/' + file, mark, mark);
    return found;
}

} // namespace

class TestSnippets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void shows_data()
    {
        QTest::addColumn<Snippet>("snippet");
#define ADD_SNIPPET(function) QTest::newRow(#function) << Snippet(function)
        ADD_SNIPPET(zClickLabel);
        ADD_SNIPPET(zAdjustFontLabel);
        ADD_SNIPPET(zScrollLabel);
        ADD_SNIPPET(zResizableLabel);
        ADD_SNIPPET(commonLabelWidget);
        ADD_SNIPPET(zTextWidget);
        ADD_SNIPPET(zSvgWidget);
        ADD_SNIPPET(zGifWidget);
        ADD_SNIPPET(maskWidget);
        ADD_SNIPPET(zBaseDialog);
        ADD_SNIPPET(zLoadingDialog);
        ADD_SNIPPET(zToastDialog);
        ADD_SNIPPET(zButton);
        ADD_SNIPPET(roundedButton);
        ADD_SNIPPET(circleButton);
        ADD_SNIPPET(imageSwitchButton);
        ADD_SNIPPET(namedSwitch);
        ADD_SNIPPET(zImageButton);
        ADD_SNIPPET(zRadioButton);
        ADD_SNIPPET(switchButton);
        ADD_SNIPPET(confirmedSwitch);
        ADD_SNIPPET(progressBar);
        ADD_SNIPPET(circleProgess);
        ADD_SNIPPET(hProgressAnime);
        ADD_SNIPPET(rotateProgress);
        ADD_SNIPPET(circularLoadingWidget);
        ADD_SNIPPET(circularDelegate);
        ADD_SNIPPET(loadingWidget);
        ADD_SNIPPET(styleSheet);
        ADD_SNIPPET(zSlider);
        ADD_SNIPPET(zScrollBar);
        ADD_SNIPPET(lineEdit);
        ADD_SNIPPET(ipValidator);
#undef ADD_SNIPPET
    }

    void shows()
    {
        QFETCH(Snippet, snippet);
        Screen screen;
        const QImage before = screen.widget.grab().toImage();
        snippet(screen.page);
        QCoreApplication::processEvents();
        const QImage after = screen.widget.grab().toImage();
        QVERIFY(after != before);
        QTest::qWait(Moment);
    }

    void aSwitchWaitsForItsDevice_data()
    {
        QTest::addColumn<bool>("agrees");
        QTest::newRow("that agrees") << true;
        QTest::newRow("that refuses") << false;
    }

    void aSwitchWaitsForItsDevice()
    {
        QFETCH(bool, agrees);
        deviceAgrees = agrees;
        timesToldDevice = 0;
        Screen screen;
        confirmedSwitch(screen.page);
        auto *pump = screen.widget.findChild<ZIRVOUI::SwitchButton *>();
        QTest::mouseClick(pump, Qt::LeftButton);
        QVERIFY(!pump->isEnabled());
        QTRY_VERIFY(pump->isEnabled());
        QCOMPARE(pump->checkState(), agrees ? Qt::Checked : Qt::Unchecked);
        QCOMPARE(pump->isChecked(), agrees);
        QCOMPARE(timesToldDevice, 1);
    }

    void isQuotedAsItStands_data()
    {
        QTest::addColumn<QString>("quote");
        for (const char *page : {"README.md", "docs/guide.md"}) {
            int number = 0;
            for (const QString &quote : pieces(page, QRegExp("```cpp"), QRegExp("```")))
                QTest::addRow("%s, %d", page, ++number) << quote;
        }
    }

    void isQuotedAsItStands()
    {
        QFETCH(QString, quote);
        QVERIFY2(allSnippets().contains(quote), qPrintable(quote));
    }
};

QTEST_MAIN(TestSnippets)
#include "tst_snippets.moc"
