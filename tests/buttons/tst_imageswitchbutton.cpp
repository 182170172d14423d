#include "buttontest.h"

#include <imageswitchbutton.h>

class TestImageSwitchButton : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheIconOfItsState()
    {
        const SampleFile open("open.svg", sampleSvg("lime"));
        const SampleFile closed("closed.svg", sampleSvg("red"));
        ImageSwitchButton button(open.path(), closed.path());
        QSignalSpy clicks(&button, &ImageSwitchButton::signal_clicked);
        const auto shown = [&] { return snapshot(button, QSize(20, 10)).pixelColor(1, 1); };

        QCOMPARE(shown(), QColor("red"));
        button.click();
        QCOMPARE(shown(), QColor("lime"));
        QCOMPARE(clicks.takeFirst(), QVariantList{true});
        button.setOpenState(false);
        QCOMPARE(shown(), QColor("red"));
        button.setOpenState(true);
        QVERIFY(button.openState());
        QCOMPARE(clicks.count(), 0);
        button.click();
        QCOMPARE(clicks.takeFirst(), QVariantList{false});
    }
};

QTEST_MAIN(TestImageSwitchButton)
#include "tst_imageswitchbutton.moc"
