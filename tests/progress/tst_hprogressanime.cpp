#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QVariantAnimation>
#include <QtTest>
#include <hprogressanime.h>

using ZIRVOUI::HProgressAnime;

class TestHProgressAnime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void paintsOnlyWhileShown();
};

void TestHProgressAnime::paints_data()
{
    QTest::addColumn<int>("time"); // ms
    QTest::addColumn<QRect>("bar");
    QTest::newRow("start") << 0 << QRect();
    QTest::newRow("growing") << 120 << QRect(0, 0, 187, 9);
    QTest::newRow("grown") << 240 << QRect(0, 0, 375, 9);
    QTest::newRow("far on its way") << 960 << QRect(900, 0, 375, 9);
    QTest::newRow("at the seam") << 1199 << QRect(1198, 0, 375, 9);
    QTest::newRow("second round") << 1320 << QRect(0, 0, 187, 9);
}

void TestHProgressAnime::paints()
{
    QFETCH(int, time);
    QFETCH(QRect, bar);
    HProgressAnime strip;
    const auto animations = strip.findChildren<QVariantAnimation *>();
    QCOMPARE(animations.size(), 2);
    for (auto *animation : animations) {
        QCOMPARE(animation->state(), QAbstractAnimation::Running);
        QCOMPARE(animation->loopCount(), -1);
        animation->pause();
        animation->setCurrentTime(time);
    }
    for (const QSize size : {QSize(1300, 9), QSize(201, 9)}) {
        strip.resize(size);
        COMPARE_PICTURES(snapshot(strip), reference(size, [&](QPainter &painter) {
                             painter.fillRect(QRect(QPoint(), size), QColor("#3A3A3A"));
                             painter.fillRect(bar, Qt::white);
                         }));
    }
}

void TestHProgressAnime::paintsOnlyWhileShown()
{
    HProgressAnime strip;
    strip.show();
    QVERIFY(QTest::qWaitForWindowExposed(&strip));
    PaintCounter paints(strip);
    QTest::qWait(100);
    QVERIFY(paints.take() > 0);
    strip.hide();
    paints.take();
    QTest::qWait(60);
    QCOMPARE(paints.take(), 0);
}

QTEST_MAIN(TestHProgressAnime)
#include "tst_hprogressanime.moc"
