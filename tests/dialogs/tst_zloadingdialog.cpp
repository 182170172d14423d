#include "widgettest.h"

#include <QLayout>
#include <loadingwidget.h>
#include <zclicklabel.h>
#include <zloadingdialog.h>

const QString Text = "Please wait";

class TestZLoadingDialog : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void placesItsContent()
    {
        ZLoadingDialog dialog(Text);
        dialog.show();
        auto *label = dialog.findChild<ZClickLabel *>();
        const QRect spinner = dialog.loadingWidget()->geometry();
        QCOMPARE(dialog.size(), QSize(960, 624));
        QCOMPARE(spinner, QRect((960 - 90) / 2, spinner.y(), 90, 90));
        QCOMPARE(label->y(), spinner.bottom() + 1 + 70);
        QCOMPARE(label->text(), Text);
        QVERIFY(label->wordWrap() && label->alignment() == Qt::AlignCenter);
        QCOMPARE(dialog.findChildren<QWidget *>().last(), label);

        dialog.setSpacing(100);
        dialog.setInfoText({});
        dialog.layout()->activate();
        QVERIFY(label->isVisible());
        QCOMPARE(label->y(), dialog.loadingWidget()->geometry().bottom() + 1 + 100);
    }

    void closesItselfUnlessTheTimeIsNegative()
    {
        for (const int time : {0, 120}) {
            ZLoadingDialog dialog(Text, time);
            const QDeadlineTimer earliest(time * 9 / 10); // Qt may be early
            dialog.show();
            dialog.setTimeNum(-7);
            QTRY_VERIFY(!dialog.isVisible());
            QVERIFY(earliest.hasExpired());
            dialog.show();
            QTest::qWait(60);
            QVERIFY(dialog.isVisible());
            dialog.setTimeNum(time);
            QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        }
    }

    void countsAnewAfterHiding()
    {
        QWidget window;
        ZLoadingDialog dialog(Text, 50, &window);
        for (const bool withItsWindow : {false, true}) {
            window.show();
            dialog.show();
            withItsWindow ? window.hide() : dialog.accept();
            window.show();
            static_cast<QWidget &>(dialog).show(); // which counts nothing
            QTest::qWait(100);
            QVERIFY(dialog.isVisible());
            dialog.show();
            QTRY_VERIFY(!dialog.isVisible());
        }
    }

    void survivesWhatHappensInExec()
    {
        QPointer<ZLoadingDialog> dialog = new ZLoadingDialog(Text);
        QTimer::singleShot(0, dialog.data(), [&] {
            QCOMPARE(dialog->exec(), -1);
            dialog->done(7);
        });
        QCOMPARE(dialog->exec(), 7);
        QTimer::singleShot(0, dialog.data(), [&] { delete dialog.data(); });
        QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    }
};

QTEST_MAIN(TestZLoadingDialog)
#include "tst_zloadingdialog.moc"
