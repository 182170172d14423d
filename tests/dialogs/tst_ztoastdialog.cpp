#include "widgettest.h"

#include <QSvgRenderer>
#include <zclicklabel.h>
#include <zsvgwidget.h>
#include <ztoastdialog.h>

const QString Text = "Something went wrong and needs two lines";

class TestZToastDialog : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheIconOfItsType()
    {
        ZToastDialog toast(ToastType(4), Text);
        auto *icon = toast.findChild<ZSvgWidget *>();
        COMPARE_PICTURES(snapshot(*icon, {30, 25}), blankPicture({30, 25}));
        const QStringList names = {"ok", "info", "warning", "error"};
        for (int type = ToastConfirm; type <= ToastError; ++type) {
            QSvgRenderer svg(":/resource/common/tip_svg/tip_" + names[type] + ".svg");
            toast.setType(ToastType(type));
            toast.setType(ToastType(-1));
            comparePictures(*icon, {{30, 25}}, [&](auto &p, auto &all) { svg.render(&p, all); });
        }
        toast.loadImage("missing.svg");
        COMPARE_PICTURES(snapshot(*icon), blankPicture({30, 25}));
    }

    void showsItsTextBelowTheIcon()
    {
        ZToastDialog toast(ToastError, Text);
        auto *icon = toast.findChild<ZSvgWidget *>();
        auto *label = toast.findChild<ZClickLabel *>();
        QVERIFY(icon->sizeHint().isValid()); // that of its file
        toast.setIcoSize(-1, INT_MAX);
        QCOMPARE(icon->size(), QSize(0, QWIDGETSIZE_MAX));
        toast.setIcoSize(20, 20);
        toast.setFixedSize(200, 150);
        toast.show();
        QVERIFY(label->y() > icon->geometry().bottom() + 15); // a third of the room is between
        QVERIFY(qAbs(icon->y() - (toast.rect().bottom() - label->geometry().bottom())) <= 1);
        QVERIFY(label->wordWrap() && label->alignment() == Qt::AlignCenter);
        QVERIFY(qAbs(icon->geometry().center().x() - 108) <= 1);

        toast.setText({});
        toast.setText(Text);
        QVERIFY(label->isHidden());
        QVERIFY(!ZToastDialog(ToastError, {}).findChild<ZClickLabel *>()->isHidden());
    }

    void closesItself()
    {
        ZToastDialog toast(ToastConfirm, Text);
        for (const int delay : {0, 150}) {
            toast.setDelayMS(delay);
            const QDeadlineTimer earliest(delay);
            toast.show();
            toast.setDelayMS(60000);
            QTRY_VERIFY(!toast.isVisible());
            QVERIFY(earliest.hasExpired());
            toast.setDelayMS(delay);
            QCOMPARE(toast.exec(), int(QDialog::Rejected));
        }

        // Every show counts, and none ends the count of another.
        toast.show();
        toast.close();
        toast.setDelayMS(60000);
        toast.show();
        QTRY_VERIFY(!toast.isVisible());

        toast.setDelayMS(-1);
        toast.show();
        ZToastDialog bare(ToastConfirm, Text);
        bare.setDelayMS(0);
        static_cast<QWidget &>(bare).show();
        QTest::qWait(50);
        QVERIFY(toast.isVisible() && bare.isVisible());
    }

    void survivesWhatHappensInExec()
    {
        const QPointer<QWidget> window = new QWidget;
        const QPointer<ZToastDialog> toast = new ZToastDialog(ToastError, Text, window);
        window->show();
        QTimer::singleShot(0, toast.data(), [&] {
            QCOMPARE(toast->exec(), -1);
            toast->accept();
        });
        QCOMPARE(toast->exec(), int(QDialog::Accepted));
        QTimer::singleShot(0, toast.data(), [&] { delete window.data(); });
        QCOMPARE(toast->exec(), int(QDialog::Rejected));
    }
};

QTEST_MAIN(TestZToastDialog)
#include "tst_ztoastdialog.moc"
