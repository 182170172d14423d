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

using Event = std::function<void(QPointer<ZToastDialog>)>;

Q_DECLARE_METATYPE(Event)
Q_DECLARE_METATYPE(ToastType)

class TestZToastDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void showsTheIconOfItsType_data();
    void showsTheIconOfItsType();
    void keepsItsIconForAnUnknownType();
    void showsItsTextBelowTheIcon();
    void closesItself_data();
    void closesItself();
    void countsEveryShow();
    void staysOpenWithoutATimer();
    void survivesWhatHappensInExec_data();
    void survivesWhatHappensInExec();
};

void TestZToastDialog::showsTheIconOfItsType_data()
{
    QTest::addColumn<ToastType>("type");
    QTest::addColumn<QString>("file");
    const QString folder = QStringLiteral(":/resource/common/tip_svg/");
    QTest::newRow("confirm") << ToastConfirm << folder + "tip_ok.svg";
    QTest::newRow("prompt") << ToastPrompt << folder + "tip_info.svg";
    QTest::newRow("warning") << ToastWarning << folder + "tip_warning.svg";
    QTest::newRow("error") << ToastError << folder + "tip_error.svg";
}

void TestZToastDialog::showsTheIconOfItsType()
{
    QFETCH(ToastType, type);
    QFETCH(QString, file);
    ZToastDialog toast(type == ToastError ? ToastPrompt : ToastError, {});
    toast.setType(type);
    auto *icon = toast.findChild<ZSvgWidget *>();
    toast.setIcoSize(30, 25);
    COMPARE_PICTURES(snapshot(*icon), reference(QSize(30, 25), [&](QPainter &painter) {
                         QSvgRenderer(file).render(&painter, QRectF(0, 0, 30, 25));
                     }));
}

void TestZToastDialog::keepsItsIconForAnUnknownType()
{
    ZToastDialog empty(ToastType(4), QStringLiteral("text"));
    auto *icon = empty.findChild<ZSvgWidget *>();
    empty.setIcoSize(-1, std::numeric_limits<int>::max());
    QCOMPARE(icon->size(), QSize(0, QWIDGETSIZE_MAX));
    empty.setIcoSize(20, 20);
    COMPARE_PICTURES(snapshot(*icon), blankPicture({20, 20}));

    empty.setType(ToastWarning);
    const QImage warning = snapshot(*icon);
    empty.setType(ToastType(-1));
    COMPARE_PICTURES(snapshot(*icon), warning);
    empty.loadImage(QStringLiteral("missing.svg"));
    COMPARE_PICTURES(snapshot(*icon), blankPicture({20, 20}));
}

void TestZToastDialog::showsItsTextBelowTheIcon()
{
    ZToastDialog toast(ToastError, QStringLiteral("Something went wrong and needs two lines"));
    auto *icon = toast.findChild<ZSvgWidget *>();
    auto *label = toast.findChild<ZClickLabel *>();
    toast.setFixedSize(200, 150);
    toast.show();
    QVERIFY(label->geometry().top() > icon->geometry().bottom());
    QVERIFY(label->wordWrap());
    QCOMPARE(label->alignment(), Qt::AlignCenter);
    QVERIFY(qAbs(icon->geometry().center().x() - 108) <= 1);

    toast.setText({});
    toast.setText(QStringLiteral("hidden"));
    QVERIFY(label->isHidden());
    QVERIFY(!ZToastDialog(ToastError, {}).findChild<ZClickLabel *>()->isHidden());
}

void TestZToastDialog::closesItself_data()
{
    QTest::addColumn<int>("delay");
    QTest::newRow("at once") << 0;
    QTest::newRow("after a while") << 150;
}

void TestZToastDialog::closesItself()
{
    QFETCH(int, delay);
    QWidget window;
    window.show();
    ZToastDialog toast(ToastConfirm, QStringLiteral("text"), &window);
    QElapsedTimer timer;

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

void TestZToastDialog::countsEveryShow()
{
    ZToastDialog toast(ToastConfirm, QStringLiteral("text"));
    toast.setDelayMS(100);
    toast.show();
    toast.close();
    toast.setDelayMS(60000);
    toast.show();
    QTRY_VERIFY(!toast.isVisible());
}

void TestZToastDialog::staysOpenWithoutATimer()
{
    ZToastDialog toast(ToastConfirm, QStringLiteral("text"));
    toast.setDelayMS(-1);
    toast.show();
    ZToastDialog bare(ToastConfirm, QStringLiteral("text"));
    bare.setDelayMS(0);
    static_cast<QWidget &>(bare).show();
    QTest::qWait(50);
    QVERIFY(toast.isVisible() && bare.isVisible());
}

void TestZToastDialog::survivesWhatHappensInExec_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<int>("result");
    QTest::newRow("accepted") << Event([](auto toast) { toast->accept(); }) << 1;
    QTest::newRow("hidden") << Event([](auto toast) { toast->hide(); }) << 0;
    QTest::newRow("deleted") << Event([](auto toast) { delete toast.data(); }) << 0;
    QTest::newRow("parent deleted") << Event([](auto toast) { delete toast->parent(); }) << 0;
    QTest::newRow("shown again, then accepted") << Event([](auto toast) {
        toast->show();
        toast->accept();
    }) << 1;
    QTest::newRow("run again, then accepted") << Event([](auto toast) {
        QCOMPARE(toast->exec(), -1);
        QVERIFY(toast->isVisible());
        toast->accept();
    }) << 1;
}

void TestZToastDialog::survivesWhatHappensInExec()
{
    QFETCH(Event, event);
    QFETCH(int, result);
    QPointer<QWidget> window = new QWidget;
    window->show();
    QPointer<ZToastDialog> toast = new ZToastDialog(ToastError, QStringLiteral("text"), window);
    QTimer::singleShot(0, toast.data(), [&] { event(toast); });
    QCOMPARE(toast->exec(), result);
    if (toast) {
        QTimer::singleShot(0, toast.data(), [&] { toast->accept(); });
        QCOMPARE(toast->exec(), 1);
    }
    delete window;
}

QTEST_MAIN(TestZToastDialog)
#include "tst_ztoastdialog.moc"
