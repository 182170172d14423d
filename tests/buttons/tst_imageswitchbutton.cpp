#include "buttontest.h"

#include <imageswitchbutton.h>

using ZIRVOUI::ImageSwitchButton;

class TestImageSwitchButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void showsTheIconOfItsState()
    {
        SampleFile open(QStringLiteral("open.svg"));
        open.writeSvg("lime");
        SampleFile closed(QStringLiteral("closed.svg"));
        closed.writeSvg("red");
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
        QCOMPARE(clicks.count(), 0);
        button.click();
        QCOMPARE(clicks.takeFirst(), QVariantList{false});
    }
};

QTEST_MAIN(TestImageSwitchButton)
#include "tst_imageswitchbutton.moc"
