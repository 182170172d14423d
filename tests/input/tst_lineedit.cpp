#include "finger.h"
#include "picture.h"
#include "warnings.h"

#include <QClipboard>
#include <QStyle>
#include <QStyleFactory>
#include <ipvalidator.h>
#include <lineedit.h>

using ZIRVOUI::LineEdit;

namespace {

// The one colour of all that is seen, as far as it shines through; invalid if there are more.
QColor inkOf(QWidget &widget)
{
    const QImage picture = snapshot(widget).convertToFormat(QImage::Format_ARGB32);
    QSet<QRgb> opaque;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) > 250)
                opaque.insert(picture.pixel(x, y) | 0xff000000);
        }
    }
    return opaque.size() == 1 ? QColor(*opaque.cbegin()) : QColor();
}

struct Doubling : QValidator
{
    using QValidator::QValidator;
    State validate(QString &, int &) const override { return Intermediate; }
    void fixup(QString &text) const override { text += text; }
};

} // namespace

class TestLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void isSeenThrough()
    {
        for (const QString &style : QStyleFactory::keys()) {
            const QScopedPointer<QStyle> look(QStyleFactory::create(style));
            LineEdit edit;
            edit.setStyle(look.data());
            for (const QSize size : {QSize(120, 30), QSize(61, 41)})
                COMPARE_PICTURES(snapshot(edit, size), blankPicture(size));
            edit.setFontSize(40);
            edit.setFontSize(0);
            QCOMPARE(edit.font().pixelSize(), 40);
            edit.setText("HI");
            QCOMPARE(inkOf(edit), QColor(Qt::white));
            edit.setPalette(QPalette(Qt::red));
            edit.setFrame(true);
            edit.setupStyle();
            edit.setEnabled(false);
            QCOMPARE(inkOf(edit), QColor(120, 120, 120));
        }
    }

    void tellsWhoHasTheFocus()
    {
        QWidget form;
        form.resize(100, 120);
        QLineEdit stock, otherStock;
        LineEdit first, second;
        m_log.clear();
        for (QLineEdit *field : {&stock, static_cast<QLineEdit *>(&first),
                                 static_cast<QLineEdit *>(&second), &otherStock}) {
            const int row = form.children().size();
            field->setParent(&form);
            field->setGeometry(0, 30 * row, 100, 30);
            field->setObjectName(QString::number(row));
        }
        for (LineEdit *field : {&first, &second}) {
            connect(field, SIGNAL(signal_focusIn(QWidget *)), SLOT(noteIn(QWidget *)),
                    Qt::QueuedConnection);
            connect(field, &LineEdit::signal_focusOut, this, &TestLineEdit::noteOut,
                    Qt::QueuedConnection);
        }
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));

        stock.setFocus();
        QTest::keyClick(&stock, Qt::Key_Tab);
        QVERIFY(otherStock.hasFocus());
        QTest::keyClick(&otherStock, Qt::Key_Tab, Qt::ShiftModifier);
        QVERIFY(stock.hasFocus());
        Finger(first).tap(first.rect().center());
        Finger(first).tap(first.rect().center());
        Finger(second).tap(second.rect().center());
        stock.setFocus(Qt::PopupFocusReason);
        QCoreApplication::processEvents();
        QCOMPARE(m_log, QString("in 1, out 1, in 2, out 2, "));
    }

    void takesComposedAndPastedAddresses()
    {
        LineEdit edit;
        edit.setValidator(new IPValidator(&edit));
        const auto compose = [&](const QString &preedit, const QString &commit) {
            QInputMethodEvent event(preedit, {});
            event.setCommitString(commit);
            QCoreApplication::sendEvent(&edit, &event);
            return edit.text();
        };
        QCOMPARE(compose("19", QString()), QString());
        QCOMPARE(compose(QString(), "19"), QString("19"));
        QCOMPARE(compose(QString(), "2.x"), QString("19"));
        const auto pasted = [&](const QString &text) {
            QGuiApplication::clipboard()->setText(text);
            edit.paste();
            return edit.text();
        };
        QCOMPARE(pasted("2.168.1.1.1"), QString("19"));
        QCOMPARE(pasted("2.168.1.1"), QString("192.168.1.1"));
    }

    void fixesItsText()
    {
        LineEdit edit;
        QSignalSpy changes(&edit, &QLineEdit::textChanged);
        edit.setText("a");
        edit.setCursorPosition(0);
        edit.fixUp();
        QCOMPARE(edit.cursorPosition(), 1);
        QCOMPARE(changes.size(), 1);
        edit.setValidator(new Doubling(&edit));
        edit.fixUp();
        QCOMPARE(edit.text(), QString("aa"));
    }

public Q_SLOTS:
    void noteIn(QWidget *edit) { m_log += "in " + edit->objectName() + ", "; }
    void noteOut(QWidget *edit) { m_log += "out " + edit->objectName() + ", "; }

private:
    QString m_log;
};

QTEST_MAIN(TestLineEdit)
#include "tst_lineedit.moc"
