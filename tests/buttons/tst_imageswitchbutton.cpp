#include "picture.h"
#include "samplefile.h"
#include "warnings.h"

#include <QtTest>
#include <imageswitchbutton.h>

using ZIRVOUI::ImageSwitchButton;

class TestImageSwitchButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void showsTheIconOfItsState();
};

void TestImageSwitchButton::showsTheIconOfItsState()
{
    SampleFile open(QStringLiteral("open.svg"));
    open.writeSvg("lime");
    SampleFile closed(QStringLiteral("closed.svg"));
    closed.writeSvg("red");
    ImageSwitchButton button(open.path(), closed.path());
    button.resize(20, 10);
    QSignalSpy clicks(&button, &ImageSwitchButton::signal_clicked);
    const auto shown = [&] { return snapshot(button).pixelColor(1, 1); };

    QVERIFY(!button.openState());
    QCOMPARE(shown(), QColor("red"));
    button.click();
    QCOMPARE(shown(), QColor("lime"));
    button.click();
    QCOMPARE(shown(), QColor("red"));
    QCOMPARE(clicks.takeFirst(), QVariantList{true});
    QCOMPARE(clicks.takeFirst(), QVariantList{false});

    button.setOpenState(true);
    QCOMPARE(shown(), QColor("lime"));
    QCOMPARE(clicks.count(), 0);
    button.click();
    QCOMPARE(clicks.takeFirst(), QVariantList{false});
}

QTEST_MAIN(TestImageSwitchButton)
#include "tst_imageswitchbutton.moc"
