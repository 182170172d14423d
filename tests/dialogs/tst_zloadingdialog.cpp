#include "warnings.h"

#include <QLayout>
#include <QtTest>
#include <loadingwidget.h>
#include <zclicklabel.h>
#include <zloadingdialog.h>

using ZIRVOUI::LoadingWidget;
using ZIRVOUI::ZClickLabel;
using ZIRVOUI::ZLoadingDialog;

namespace {

using Way = std::function<void(ZLoadingDialog &)>;

const QString Text = QStringLiteral("Please wait");

} // namespace

Q_DECLARE_METATYPE(Way)

class TestZLoadingDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void placesItsContent();
    void closesItself_data();
    void closesItself();
    void staysOpen_data();
    void staysOpen();
    void countsAnewAfterHiding_data();
    void countsAnewAfterHiding();
    void survivesWhatHappensInExec();
};

void TestZLoadingDialog::placesItsContent()
{
    ZLoadingDialog dialog(Text);
    dialog.show();
    auto *label = dialog.findChild<ZClickLabel *>();
    const QRect spinner = dialog.loadingWidget()->geometry();
    QCOMPARE(dialog.size(), QSize(960, 624));
    QCOMPARE(spinner.size(), QSize(90, 90));
    QCOMPARE(spinner.left(), (960 - 90) / 2);
    QCOMPARE(label->y(), spinner.bottom() + 1 + 70);
    QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::white));
    QVERIFY(label->wordWrap());

    dialog.setSpacing(100);
    dialog.setInfoText({});
    dialog.layout()->activate();
    QVERIFY(label->isVisible());
    QCOMPARE(label->y(), dialog.loadingWidget()->geometry().bottom() + 1 + 100);
}

void TestZLoadingDialog::closesItself_data()
{
    QTest::addColumn<int>("constructed");
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("least");
    QTest::newRow("at once") << 0 << 0 << 0;
    QTest::newRow("after a while") << 120 << 120 << 120;
    QTest::newRow("after another while") << -1 << 80 << 80;
    QTest::newRow("sooner than constructed") << 60000 << 30 << 30;
}

void TestZLoadingDialog::closesItself()
{
    QFETCH(int, constructed);
    QFETCH(int, set);
    QFETCH(int, least);
    ZLoadingDialog dialog(Text, constructed);
    if (set != constructed)
        dialog.setTimeNum(set);
    QElapsedTimer timer;
    timer.start();
    dialog.show();
    dialog.setTimeNum(-1);
    QVERIFY(dialog.isVisible());
    QTRY_VERIFY(!dialog.isVisible());
    QVERIFY(timer.elapsed() >= least - 1 && timer.elapsed() < 30000);

    dialog.setTimeNum(set);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void TestZLoadingDialog::staysOpen_data()
{
    QTest::addColumn<int>("time");
    QTest::newRow("minus one") << -1;
    QTest::newRow("another negative time") << -7;
}

void TestZLoadingDialog::staysOpen()
{
    QFETCH(int, time);
    ZLoadingDialog constructed(Text, time);
    constructed.show();
    ZLoadingDialog set(Text, 5);
    set.setTimeNum(time);
    set.show();
    ZLoadingDialog bare(Text, 5);
    static_cast<QWidget &>(bare).show();
    QTest::qWait(60);
    QVERIFY(constructed.isVisible() && set.isVisible() && bare.isVisible());
}

void TestZLoadingDialog::countsAnewAfterHiding_data()
{
    QTest::addColumn<Way>("hide");
    QTest::newRow("hide") << Way([](ZLoadingDialog &dialog) { dialog.hide(); });
    QTest::newRow("close") << Way([](ZLoadingDialog &dialog) { dialog.close(); });
    QTest::newRow("accept") << Way([](ZLoadingDialog &dialog) { dialog.accept(); });
    QTest::newRow("reject") << Way([](ZLoadingDialog &dialog) { dialog.reject(); });
    QTest::newRow("parent") << Way([](ZLoadingDialog &dialog) { dialog.window()->hide(); });
}

void TestZLoadingDialog::countsAnewAfterHiding()
{
    QFETCH(Way, hide);
    QWidget window;
    window.show();
    ZLoadingDialog dialog(Text, 150, &window);
    dialog.show();
    QTest::qWait(50);
    hide(dialog);
    QVERIFY(!dialog.isVisible());

    window.show();
    static_cast<QWidget &>(dialog).show(); // which counts nothing
    QTest::qWait(200);
    QVERIFY(dialog.isVisible());
    QElapsedTimer timer;
    timer.start();
    dialog.show();
    QTRY_VERIFY(!dialog.isVisible());
    QVERIFY(timer.elapsed() >= 149);
}

void TestZLoadingDialog::survivesWhatHappensInExec()
{
    QPointer<ZLoadingDialog> dialog = new ZLoadingDialog(Text);
    QTimer::singleShot(0, dialog.data(), [&] { dialog->done(7); });
    QCOMPARE(dialog->exec(), 7);
    QTimer::singleShot(0, dialog.data(), [&] {
        QCOMPARE(dialog->exec(), -1);
        delete dialog.data();
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(!dialog);

    QPointer<QWidget> window = new QWidget;
    window->show();
    dialog = new ZLoadingDialog(Text, 5000, window);
    QTimer::singleShot(0, dialog.data(), [&] { delete window.data(); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
}

QTEST_MAIN(TestZLoadingDialog)
#include "tst_zloadingdialog.moc"
