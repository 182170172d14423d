#include "widgettest.h"

#include <QClipboard>
#include <QStyle>
#include <QStyleFactory>
#include <ipvalidator.h>
#include <lineedit.h>

namespace {

// The same picture, were all that is seen in it of one colour.
QImage colored(const QImage &picture, const QColor &color)
{
    return reference(picture.size(), [&](QPainter &painter) {
        painter.drawImage(0, 0, picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), color);
    });
}

} // namespace

class TestLineEdit : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
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
            COMPARE_PICTURES(snapshot(edit), colored(snapshot(edit), Qt::white));
            edit.setPalette(QPalette(Qt::red));
            edit.setFrame(true);
            edit.setupStyle();
            edit.setEnabled(false);
            COMPARE_PICTURES(snapshot(edit), colored(snapshot(edit), QColor(120, 120, 120)));
            QVERIFY(snapshot(edit) != blankPicture(edit.size()));
        }
    }

    void tellsWhoHasTheFocus()
    {
        QString log;
        QWidget form;
        QLineEdit stock(&form);
        LineEdit first(&form), second(&form);
        first.move(0, 40);
        second.move(0, 80);
        for (LineEdit *field : {&first, &second}) {
            field->setObjectName(field == &first ? "1" : "2");
            const auto note = [&](auto signal, const char *what) {
                const auto slot = [&log, what](QWidget *who) { log += what + who->objectName(); };
                connect(field, signal, &form, slot, Qt::QueuedConnection);
            };
            note(&LineEdit::signal_focusIn, " in ");
            note(&LineEdit::signal_focusOut, " out ");
        }
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));

        stock.setFocus();
        QTest::keyClick(&stock, Qt::Key_Tab);
        QVERIFY(stock.hasFocus());
        Finger(first).tap(first.rect().center());
        Finger(first).tap(first.rect().center());
        Finger(second).tap(second.rect().center());
        const QInputMethod &method = *QGuiApplication::inputMethod();
        QCOMPARE(method.inputItemTransform().map(QPoint()), second.pos());
        QCOMPARE(method.inputItemRectangle(), QRectF(second.rect()));
        stock.setFocus(Qt::PopupFocusReason);
        QCoreApplication::processEvents();
        QCOMPARE(log, QString(" in 1 out 1 in 2 out 2"));
    }

    void mayBeDeletedInItsSlots()
    {
        for (const auto signal : {&LineEdit::signal_focusIn, &LineEdit::signal_focusOut}) {
            const QPointer<LineEdit> edit(new LineEdit);
            connect(edit, signal, [&] { delete edit; });
            for (const auto change : {QEvent::FocusIn, QEvent::FocusOut}) {
                QFocusEvent event(change);
                if (edit)
                    QCoreApplication::sendEvent(edit, &event);
            }
            QVERIFY(!edit);
        }
    }

    void takesComposedAndPastedAddresses()
    {
        LineEdit edit;
        edit.setValidator(new IPValidator(&edit));
        const auto compose = [&](const QString &commit, const QString &preedit = QString()) {
            QInputMethodEvent event(preedit, {});
            event.setCommitString(commit);
            QCoreApplication::sendEvent(&edit, &event);
            return edit.text();
        };
        QCOMPARE(compose(QString(), "19"), QString());
        QCOMPARE(compose("19"), QString("19"));
        QCOMPARE(compose("2.x"), QString("19"));
        QGuiApplication::clipboard()->setText("2.168.1.1.1");
        edit.paste();
        QCOMPARE(edit.text(), QString("19"));
        QGuiApplication::clipboard()->setText("2.168.1.1");
        edit.paste();
        QCOMPARE(edit.text(), QString("192.168.1.1"));
    }

    void fixesItsText()
    {
        LineEdit edit;
        QSignalSpy changes(&edit, &QLineEdit::textChanged);
        edit.setText("007");
        edit.setCursorPosition(0);
        edit.fixUp();
        QCOMPARE(edit.cursorPosition(), 3);
        QCOMPARE(changes.size(), 1);
        edit.setValidator(new QIntValidator(&edit));
        edit.fixUp();
        QCOMPARE(edit.text(), QString("7"));
    }
};

QTEST_MAIN(TestLineEdit)
#include "tst_lineedit.moc"
