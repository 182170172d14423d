#include "picture.h"
#include "warnings.h"

#include <QSvgRenderer>
#include <QtTest>
#include <limits>
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
        QWidget window;
        window.show();
        ZToastDialog toast(ToastConfirm, Text, &window);
        QElapsedTimer timer;
        for (int delay : {0, 150}) {
            toast.setDelayMS(delay);
            timer.start();
            toast.show();
            toast.setDelayMS(60000);
            QVERIFY(toast.isVisible());
            QTRY_VERIFY(!toast.isVisible());
            QVERIFY(timer.elapsed() >= delay);

            toast.setDelayMS(delay);
            timer.start();
            QCOMPARE(toast.exec(), int(QDialog::Rejected));
            QVERIFY(timer.elapsed() >= delay);
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
        using Pointer = QPointer<ZToastDialog>;
        const auto runAgain = [](const Pointer &toast) {
            QCOMPARE(toast->exec(), -1);
            QVERIFY(toast->isVisible());
            toast->show();
            toast->accept();
        };
        const QPair<std::function<void(const Pointer &)>, int> events[]
            = {{runAgain, 1},
               {[](const Pointer &toast) { toast->hide(); }, 0},
               {[](const Pointer &toast) { delete toast.data(); }, 0},
               {[](const Pointer &toast) { delete toast->parent(); }, 0}};
        for (const auto &event : events) {
            const QPointer<QWidget> window = new QWidget;
            window->show();
            const Pointer toast = new ZToastDialog(ToastError, Text, window);
            QTimer::singleShot(0, toast.data(), [&] { event.first(toast); });
            QCOMPARE(toast->exec(), event.second);
            if (toast) {
                QTimer::singleShot(0, toast.data(), [&] { toast->accept(); });
                QCOMPARE(toast->exec(), 1);
            }
            delete window.data();
        }
    }
};

QTEST_MAIN(TestZToastDialog)
#include "tst_ztoastdialog.moc"
