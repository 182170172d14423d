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
    QImage frame = reference(size, [&](QPainter &painter) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(QRect(QPoint(), size), QColor(47, 47, 47));
        painter.drawPixmap(distance, distance, picture);
    });
    const auto blur = [&](auto &p) { qt_blurImage(&p, frame, radius, true, false, 0); };
    return QPixmap::fromImage(reference(size, blur))
        .copy(distance, distance, picture.width(), picture.height());
}

} // namespace

class TestMaskWidget : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints()
    {
        // The distance, the radius, and whether these blur.
        const std::tuple<int, double, bool> blurs[]
            = {{100, 60, true},       {0, 3, true},         {7, 0, true},
               {-19, 25.5, true},     {0, 0, false},        {100, -100, false},
               {100, qQNaN(), false}, {100, qInf(), false}, {0, -qInf(), false}};
        for (const auto &[distance, radius, isBlurred] : blurs) {
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
            const QPixmap picture
                = isBlurred ? blurred(somePicture(), distance, radius) : somePicture();
            for (const double opacity : {0.4, 7.0}) {
                mask.setOpacity(opacity);
                comparePictures(mask, {{90, 50}, {33, 61}}, [&](auto &painter, const QRect &all) {
                    painter.setOpacity(opacity);
                    painter.drawPixmap(all, picture);
                });
            }
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

    void isScaledAlikeUnderAClip()
    {
        QPixmap stripes(116, 29);
        stripes.fill(Qt::white);
        for (int x = 0; x < stripes.width(); x += 3)
            QPainter(&stripes).fillRect(x, 0, 1, stripes.height(), Qt::black);
        MaskWidget mask;
        mask.setDistance(0);
        mask.setBlurRadius(0);
        mask.setPixmap(stripes);
        mask.resize(41, 60);

        const auto cut = [&](auto draw) {
            QPainterPath outline;
            outline.addEllipse(mask.rect());
            return reference(mask.size(), [&](QPainter &painter) {
                painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
                painter.setClipPath(outline);
                draw(painter);
            });
        };
        COMPARE_PICTURES(cut([&](auto &p) { mask.render(&p, {}, {}, QWidget::DrawChildren); }),
                         cut([&](auto &p) { p.drawPixmap(mask.rect(), stripes); }));
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
