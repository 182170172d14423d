#include "widgettest.h"

#include <QSvgRenderer>
#include <zclicklabel.h>
#include <zsvgwidget.h>
#include <ztoastdialog.h>

using ZIRVOUI::ZClickLabel;
using ZIRVOUI::ZSvgWidget;
using ZIRVOUI::ZToastDialog;

const QString Text = QStringLiteral("Something went wrong and needs two lines");

class TestZToastDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void showsTheIconOfItsType()
    {
        const QSize size(30, 25);
        ZToastDialog toast(ToastType(4), Text);
        auto *icon = toast.findChild<ZSvgWidget *>();
        COMPARE_PICTURES(snapshot(*icon, size), blankPicture(size));
        const QStringList names = {"ok", "info", "warning", "error"};
        for (int type = ToastConfirm; type <= ToastError; ++type) {
            QSvgRenderer svg(":/resource/common/tip_svg/tip_" + names[type] + ".svg");
            const auto draw = [&](QPainter &painter) { svg.render(&painter); };
            toast.setType(ToastType(type));
            toast.setType(ToastType(-1));
            COMPARE_PICTURES(snapshot(*icon), reference(size, draw));
        }
        toast.loadImage(QStringLiteral("missing.svg"));
        COMPARE_PICTURES(snapshot(*icon), blankPicture(size));
    }

    void showsItsTextBelowTheIcon()
    {
        ZToastDialog toast(ToastError, Text);
        auto *icon = toast.findChild<ZSvgWidget *>();
        auto *label = toast.findChild<ZClickLabel *>();
        QVERIFY(icon->sizeHint().isValid()); // that of its file
        toast.setIcoSize(-1, std::numeric_limits<int>::max());
        QCOMPARE(icon->size(), QSize(0, QWIDGETSIZE_MAX));
        toast.setIcoSize(20, 20);
        toast.setFixedSize(200, 150);
        toast.show();
        QVERIFY(label->geometry().top() > icon->geometry().bottom());
        QVERIFY(label->wordWrap());
        QCOMPARE(label->alignment(), Qt::AlignCenter);
        QVERIFY(qAbs(icon->geometry().center().x() - 108) <= 1);

        toast.setText({});
        toast.setText(Text);
        QVERIFY(label->isHidden());
        QVERIFY(!ZToastDialog(ToastError, {}).findChild<ZClickLabel *>()->isHidden());
    }

    void closesItself()
    {
        ZToastDialog toast(ToastConfirm, Text);
        QElapsedTimer timer;
        for (const int delay : {0, 150}) {
            toast.setDelayMS(delay);
            timer.start();
            toast.show();
            toast.setDelayMS(60000);
            QTRY_VERIFY(!toast.isVisible());
            QVERIFY(timer.elapsed() >= delay);
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
