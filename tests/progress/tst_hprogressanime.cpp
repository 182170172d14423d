#include "widgettest.h"

#include <QVariantAnimation>
#include <hprogressanime.h>

class TestHProgressAnime : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints()
    {
        // After milliseconds, the left edge of the bar and its width.
        const int bars[][3] = {{0, 0, 0},       {120, 0, 187},     {240, 0, 375},
                               {960, 900, 375}, {1199, 1198, 375}, {1320, 0, 187}};
        HProgressAnime strip;
        QVERIFY(paintsOnlyWhenShown(strip));
        for (const auto &[time, left, width] : bars) {
            for (auto *animation : strip.findChildren<QVariantAnimation *>())
                animation->setCurrentTime(time);
            comparePictures(strip, {{1300, 9}, {201, 9}}, [&](auto &painter, const QRect &all) {
                painter.setRenderHint(QPainter::Antialiasing, false);
                painter.fillRect(all, QColor("#3A3A3A"));
                painter.fillRect(left, 0, width, 9, Qt::white);
            });
        }
    }
};

QTEST_MAIN(TestHProgressAnime)
#include "tst_hprogressanime.moc"
