#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QtTest>
#include <climits>
#include <cmath>
#include <maskwidget.h>

using ZIRVOUI::MaskWidget;

void qt_blurImage(QPainter *painter, QImage &image, qreal radius, bool quality, bool alphaOnly,
                  int transposed);

namespace {

QPixmap somePicture()
{
    QPixmap picture(60, 41);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.fillRect(5, 5, 30, 30, Qt::red);
    painter.fillRect(20, 20, 40, 21, QColor(0, 200, 0, 128));
    return picture;
}

QPixmap blurred(const QPixmap &picture, int distance, double radius)
{
    const QSize size = picture.size() + QSize(2 * distance, 2 * distance);
    QImage frame = blankPicture(size), result = blankPicture(size);
    frame.fill(QColor(47, 47, 47));
    QPainter framing(&frame);
    framing.setCompositionMode(QPainter::CompositionMode_Source);
    framing.drawPixmap(distance, distance, picture);
    framing.end();
    QPainter painter(&result);
    qt_blurImage(&painter, frame, radius, true, false, 0);
    painter.end();
    return QPixmap::fromImage(result).copy(distance, distance, picture.width(), picture.height());
}

} // namespace

class TestMaskWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data()
    {
        QTest::addColumn<int>("distance");
        QTest::addColumn<double>("radius");
        QTest::newRow("defaults") << 100 << 60.0;
        QTest::newRow("no frame") << 0 << 3.0;
        QTest::newRow("no blur") << 7 << 0.0;
        QTest::newRow("cut off") << -9 << 12.5;
    }

    void paints()
    {
        QFETCH(int, distance);
        QFETCH(double, radius);
        MaskWidget mask;
        mask.setDistance(distance);
        mask.setBlurRadius(radius);
        mask.setPixmap(somePicture());
        mask.setDistance(-1000);
        mask.setBlurRadius(0);
        for (const double opacity : {0.4, 7.0}) {
            mask.setOpacity(opacity);
            for (const QSize size : {QSize(90, 50), QSize(33, 61)}) {
                const QImage expected = reference(size, [&](QPainter &painter) {
                    painter.setOpacity(opacity);
                    painter.drawPixmap(QRect(QPoint(), size),
                                       blurred(somePicture(), distance, radius));
                });
                COMPARE_PICTURES(snapshot(mask, size), expected);
            }
        }
    }

    void showsWhatIsNotToBeBlurred()
    {
        for (const double radius : {0.0, double(qQNaN()), double(qInf()), -300.0, -qInf()}) {
            MaskWidget mask;
            if (std::isfinite(radius))
                mask.setDistance(0);
            mask.setBlurRadius(radius);
            mask.setPixmap(somePicture());
            const auto draw = [](QPainter &painter) { painter.drawPixmap(0, 0, somePicture()); };
            COMPARE_PICTURES(snapshot(mask, {60, 41}), reference({60, 41}, draw));
        }
    }

    void showsNothingOfNoPicture()
    {
        for (const int distance : {30000, INT_MAX, -30, INT_MIN + 100}) {
            MaskWidget mask;
            mask.setPixmap(somePicture());
            mask.setDistance(distance);
            mask.setBlurRadius(1e300);
            mask.setPixmap(somePicture());
            COMPARE_PICTURES(snapshot(mask, {60, 41}), blankPicture({60, 41}));
            QCOMPARE(mask.pixmap().size(), QSize(60, 41));
        }
        MaskWidget mask;
        QCOMPARE(mask.sizeHint(), QWidget().sizeHint());
        mask.setPixmap(somePicture());
        QCOMPARE(mask.sizeHint(), QSize(60, 41));
        mask.setPixmap(QPixmap());
        COMPARE_PICTURES(snapshot(mask, {60, 41}), blankPicture({60, 41}));
        QCOMPARE(mask.sizeHint(), QWidget().sizeHint());
    }

    void repaintsForABlur()
    {
        MaskWidget mask;
        QVERIFY(repaints(mask, [&] { mask.setPixmap(somePicture()); }));
        QVERIFY(!repaints(mask, [&] {
            mask.setPixmap(QPixmap());
            mask.setOpacity(0.5);
            mask.setDistance(0);
            mask.setBlurRadius(0);
            mask.setPixmap(somePicture());
            QTest::qWait(100);
        }));
        QCOMPARE(qMakePair(mask.distance(), mask.blurRadius()), qMakePair(0, 0.0));
        QCOMPARE(mask.opacity(), 0.5);
    }
};

QTEST_MAIN(TestMaskWidget)
#include "tst_maskwidget.moc"
