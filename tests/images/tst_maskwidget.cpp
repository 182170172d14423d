#include "widgettest.h"

#include <maskwidget.h>

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

class TestMaskWidget : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints()
    {
        const QPair<int, double> blurs[] = {{100, 60}, {0, 3}, {7, 0}, {-19, 25.5}};
        for (const auto &[distance, radius] : blurs) {
            MaskWidget mask;
            if (radius != 60) {
                mask.setDistance(distance);
                mask.setBlurRadius(radius);
            }
            QPixmap dense = somePicture(); // of which all is shown at any ratio
            dense.setDevicePixelRatio(1 + (radius == 3));
            mask.setPixmap(dense);
            mask.setDistance(-1000); // for the next picture
            mask.setBlurRadius(0);
            const QPixmap picture = blurred(somePicture(), distance, radius);
            for (const double opacity : {0.4, 7.0}) {
                mask.setOpacity(opacity);
                comparePictures(mask, {{90, 50}, {33, 61}}, [&](auto &painter, const QRect &all) {
                    painter.setOpacity(opacity);
                    painter.drawPixmap(all, picture);
                });
            }
        }
    }

    void showsWhatIsNotToBeBlurred()
    {
        const QPair<int, double> blurs[]
            = {{0, 0.0}, {100, -100.0}, {100, qQNaN()}, {100, qInf()}, {0, -qInf()}};
        for (const auto &[distance, radius] : blurs) {
            MaskWidget mask;
            mask.setDistance(distance);
            mask.setBlurRadius(radius);
            mask.setPixmap(somePicture());
            COMPARE_PICTURES(snapshot(mask, {60, 41}), somePicture().toImage());
        }
    }

    void isDrawnTurnedAndMagnified()
    {
        MaskWidget mask;
        mask.setDistance(0);
        mask.setBlurRadius(0);
        mask.setPixmap(somePicture());
        mask.resize(33, 31);
        for (const QTransform &way : {QTransform::fromScale(2, 1), QTransform::fromScale(1, 2),
                                      QTransform(0, 1, 1, 0, 0, 0)}) {
            const auto turned = [&](auto draw) {
                return reference({90, 90}, [&](auto &p) { p.setTransform(way), draw(p); });
            };
            COMPARE_PICTURES(
                turned([&](auto &p) { mask.render(&p, {}, {}, QWidget::DrawChildren); }),
                turned([&](auto &p) { p.drawPixmap(mask.rect(), somePicture()); }));
        }
    }

    void showsNothingOfNoPicture()
    {
        MaskWidget mask;
        for (const int distance : {100, 30000, INT_MAX, -30, -21, INT_MIN + 100}) {
            mask.setPixmap(somePicture());
            mask.setBlurRadius(INT_MAX);
            mask.setDistance(distance);
            mask.setPixmap(distance == 100 ? QPixmap() : somePicture());
            COMPARE_PICTURES(snapshot(mask, {60, 41}), blankPicture({60, 41}));
            QCOMPARE(mask.sizeHint(),
                     mask.pixmap().isNull() ? QWidget().sizeHint() : QSize(60, 41));
            mask.setDistance(0);
        }
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
    }
};

QTEST_MAIN(TestMaskWidget)
#include "tst_maskwidget.moc"
