#include "progresstest.h"

#include <QVariantAnimation>
#include <hprogressanime.h>

using ZIRVOUI::HProgressAnime;

class TestHProgressAnime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints()
    {
        // After milliseconds, the left edge of the bar and its width.
        const QMap<int, QPair<int, int>> bars
            = {{0, {0, 0}},       {120, {0, 187}},     {240, {0, 375}},
               {960, {900, 375}}, {1199, {1198, 375}}, {1320, {0, 187}}};
        HProgressAnime strip;
        QVERIFY(paintsOnlyWhenShown(strip));
        for (auto bar = bars.begin(); bar != bars.end(); ++bar) {
            for (auto *animation : strip.findChildren<QVariantAnimation *>()) {
                QCOMPARE(animation->loopCount(), -1);
                animation->setCurrentTime(bar.key());
            }
            comparePictures(strip, {{1300, 9}, {201, 9}}, [&](auto &painter, const QSize &size) {
                painter.fillRect(QRect(QPoint(), size), QColor("#3A3A3A"));
                painter.fillRect(bar->first, 0, bar->second, 9, Qt::white);
            });
        }
    }
};

QTEST_MAIN(TestHProgressAnime)
#include "tst_hprogressanime.moc"
