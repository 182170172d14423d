#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QtTest>
#include <limits>
#include <zbasedialog.h>

using ZIRVOUI::ZBaseDialog;

namespace {

// The corners that each type rounds: top left, top right, bottom right, bottom left.
const char *const RoundCorners[]
    = {"----", "r---", "-r--", "---r", "--r-", "rr--", "--rr", "r--r", "-rr-", "rrrr"};

QPainterPath outline(const QRectF &body, const char *corners, double radius)
{
    const auto reach = [&](int corner) { return corners[corner] == 'r' ? radius : 0.0; };
    QPainterPath path(body.topLeft() + QPointF(0, reach(0)));
    path.quadTo(body.topLeft(), body.topLeft() + QPointF(reach(0), 0));
    path.lineTo(body.topRight() - QPointF(reach(1), 0));
    path.quadTo(body.topRight(), body.topRight() + QPointF(0, reach(1)));
    path.lineTo(body.bottomRight() - QPointF(0, reach(2)));
    path.quadTo(body.bottomRight(), body.bottomRight() - QPointF(reach(2), 0));
    path.lineTo(body.bottomLeft() + QPointF(reach(3), 0));
    path.quadTo(body.bottomLeft(), body.bottomLeft() - QPointF(0, reach(3)));
    path.lineTo(body.topLeft() + QPointF(0, reach(0)));
    return path;
}

struct Look
{
    const char *corners;
    int radius;
    int shadow;
    QColor shadowColor;
};

void drawDialog(QPainter &painter, const QSize &size, const Look &look)
{
    const auto at = [&](int inset) {
        const QRectF body(inset, inset, size.width() - 2 * inset, size.height() - 2 * inset);
        return outline(body, look.corners, look.radius);
    };
    const int step = look.shadow > 0 ? look.shadowColor.alpha() / look.shadow : 0;
    int alpha = look.shadowColor.alpha();
    painter.setRenderHint(QPainter::Antialiasing);
    for (int outer = 0; outer <= look.shadow; ++outer, alpha -= step) {
        QColor color = look.shadowColor;
        color.setAlpha(alpha);
        painter.setPen(color);
        painter.drawPath(at(look.shadow - outer));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillPath(at(look.shadow), QColor(60, 60, 68, 120));
}

} // namespace

class TestZBaseDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void paintsInParts_data();
    void paintsInParts();
    void neverFreezesInAPaint();
    void keepsItsContentOutOfTheShadow();
    void keepsItsFirstLayout();
    void addsTheShadowToFixedSizes();
    void waitsToBeShown();
    void settersOnlyStore();
};

void TestZBaseDialog::paints_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("shadow");
    QTest::addColumn<QColor>("color");
    const QColor black(0, 0, 0, 120);

    for (int type = 0; type <= 9; ++type)
        QTest::addRow("radius type %d", type) << type << 20 << 8 << black;
    QTest::newRow("radius type out of range") << 42 << 20 << 8 << black;
    QTest::newRow("no shadow") << 9 << 5 << 0 << black;
    QTest::newRow("a shadow of two outlines") << 9 << 5 << 1 << black;
    QTest::newRow("a shadow that does not fade out") << 9 << 5 << 7 << QColor(200, 0, 0, 255);
    QTest::newRow("negative shadow") << 9 << 20 << -3 << black;
    QTest::newRow("overlapping corners") << 9 << 90 << 8 << black;
    QTest::newRow("negative radius") << 9 << -6 << 8 << black;
    QTest::newRow("shadow wider than the dialog") << 9 << 20 << 400 << black;
    QTest::newRow("the same, arcs coming back") << 7 << -700 << 400 << black;
}

void TestZBaseDialog::paints()
{
    QFETCH(int, type);
    QFETCH(int, radius);
    QFETCH(int, shadow);
    QFETCH(QColor, color);
    const char *corners = RoundCorners[type > 9 ? 0 : type];

    ZBaseDialog dialog;
    dialog.setRadiusType(ZBaseDialog::RadiusType(type));
    dialog.setRadius(radius);
    dialog.setShadowEffectWidth(shadow);
    dialog.setShadowEffectColor(color);
    dialog.setBackGroundColor(QColor(60, 60, 68, 120));
    for (const QSize size : {QSize(120, 90), QSize(87, 61)}) {
        dialog.resize(size);
        COMPARE_PICTURES(snapshot(dialog), reference(size, [&](QPainter &painter) {
                             drawDialog(painter, size, {corners, radius, shadow, color});
                         }));
    }
}

void TestZBaseDialog::paintsInParts_data()
{
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("shadow");
    QTest::newRow("as usual") << 20 << 8;
    QTest::newRow("round as can be") << 60 << 15;
    QTest::newRow("corners outside") << -9 << 12;
    QTest::newRow("mirrored outlines") << 10 << 70;
}

void TestZBaseDialog::paintsInParts()
{
    QFETCH(int, radius);
    QFETCH(int, shadow);
    ZBaseDialog dialog;
    dialog.setRadius(radius);
    dialog.setShadowEffectWidth(shadow);
    dialog.resize(131, 97);
    QImage parts = blankPicture(dialog.size());
    for (int x = 0; x < dialog.width(); x += 10) {
        for (int y = 0; y < dialog.height(); y += 10)
            dialog.render(&parts, {x, y}, QRect(x, y, 10, 10), QWidget::DrawChildren);
    }
    COMPARE_PICTURES(parts, snapshot(dialog));
}

void TestZBaseDialog::neverFreezesInAPaint()
{
    constexpr int Huge = std::numeric_limits<int>::max();
    ZBaseDialog dialog;
    dialog.resize(300, 200);
    QElapsedTimer timer;
    for (int shadow : {1000000, Huge, -Huge, -Huge - 1}) {
        for (int radius : {0, 20, -1000000, Huge, -Huge - 1}) {
            dialog.setShadowEffectWidth(shadow);
            dialog.setRadius(radius);
            timer.start();
            snapshot(dialog);
            QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
        }
    }

    // As wide as the shadow itself asks for, and shown in a window of the usual size.
    QWidget window;
    window.resize(640, 480);
    auto *wide = new ZBaseDialog(&window);
    wide->setShadowEffectWidth(1000000);
    wide->setFixedSize(300, 200);
    wide->show();
    timer.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    wide->repaint();
    QVERIFY(timer.elapsed() < 3000);
}

void TestZBaseDialog::keepsItsContentOutOfTheShadow()
{
    ZBaseDialog dialog;
    dialog.setShadowEffectWidth(13);
    auto *content = new QVBoxLayout;
    content->setContentsMargins(0, 0, 0, 0);
    auto *button = new QPushButton;
    content->addWidget(button);
    dialog.setLayout(content);
    dialog.setShadowEffectWidth(50);
    dialog.resize(200, 100);
    snapshot(dialog);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    dialog.layout()->activate();
    QCOMPARE(button->geometry(), QRect(13, 13, 174, 74));
}

void TestZBaseDialog::keepsItsFirstLayout()
{
    ZBaseDialog dialog;
    dialog.setLayout(nullptr);
    dialog.setLayout(new QVBoxLayout);
    const QLayout *first = dialog.layout();
    QVBoxLayout second;
    dialog.setLayout(&second);
    QCOMPARE(dialog.layout(), first);
    QVERIFY(!second.parent());
}

void TestZBaseDialog::addsTheShadowToFixedSizes()
{
    constexpr int Huge = std::numeric_limits<int>::max();
    ZBaseDialog dialog;
    dialog.setFixedSize(300, 200);
    QCOMPARE(dialog.size(), QSize(316, 216));
    dialog.setFixedSize(QSize(10, 20));
    QCOMPARE(dialog.size(), QSize(26, 36));
    dialog.setShadowEffectWidth(3);
    dialog.setFixedSize(Huge, -100);
    QCOMPARE(dialog.size(), QSize(QWIDGETSIZE_MAX, 0));
    dialog.setFixedWidth(50);
    dialog.setFixedHeight(40);
    QCOMPARE(dialog.size(), QSize(56, 46));
}

void TestZBaseDialog::waitsToBeShown()
{
    QWidget window;
    ZBaseDialog child(&window);
    auto *part = new ZBaseDialog;
    QHBoxLayout layout(&window);
    layout.addWidget(part);
    window.show();
    QVERIFY(!child.isVisible());
    QVERIFY(part->isVisible());
    child.show();
    QVERIFY(child.isVisible());
    QCOMPARE(child.windowFlags(), Qt::WindowFlags(Qt::FramelessWindowHint));
}

void TestZBaseDialog::settersOnlyStore()
{
    ZBaseDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    PaintCounter paints(dialog);
    dialog.setShadowEffectWidth(3);
    dialog.setShadowEffectColor(Qt::red);
    dialog.setBackGroundColor(Qt::green);
    dialog.setRadius(1);
    dialog.setRadiusType(ZBaseDialog::NoRadius);
    QCOMPARE(paints.take(), 0);
}

QTEST_MAIN(TestZBaseDialog)
#include "tst_zbasedialog.moc"
