#include "finger.h"
#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <roundedbutton.h>

namespace {

QPainterPath outline(const QRectF &rect, double r)
{
    QPainterPath path(rect.topLeft() + QPointF(0, r));
    path.quadTo(rect.topLeft(), rect.topLeft() + QPointF(r, 0));
    path.lineTo(rect.topRight() - QPointF(r, 0));
    path.quadTo(rect.topRight(), rect.topRight() + QPointF(0, r));
    path.lineTo(rect.bottomRight() - QPointF(0, r));
    path.quadTo(rect.bottomRight(), rect.bottomRight() - QPointF(r, 0));
    path.lineTo(rect.bottomLeft() + QPointF(r, 0));
    path.quadTo(rect.bottomLeft(), rect.bottomLeft() - QPointF(0, r));
    path.lineTo(rect.topLeft() + QPointF(0, r));
    return path;
}

} // namespace

class TestRoundedButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void reportsInOrder_data();
    void reportsInOrder();
    void mayBeDeletedInItsSlots();
    void repaintsOnlyForNewValues();
};

void TestRoundedButton::paints_data()
{
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("border");
    QTest::addColumn<bool>("image");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("down");
    QTest::addColumn<QColor>("fill");
    const QColor color(200, 40, 90, 160);
    const QColor gray(102, 102, 102, 160);
    QTest::newRow("plain") << 10 << 0 << false << true << false << color;
    QTest::newRow("disabled") << 10 << 3 << false << false << false << gray;
    QTest::newRow("down") << 0 << 4 << false << true << true << color.lighter(130);
    QTest::newRow("disabled while down") << 0 << 0 << false << false << true << color.lighter(130);
    QTest::newRow("picture") << 20 << 5 << true << true << false << color;
    QTest::newRow("picture, disabled") << 40 << 0 << true << false << false << color;
}

void TestRoundedButton::paints()
{
    QFETCH(int, radius);
    QFETCH(int, border);
    QFETCH(bool, image);
    QFETCH(bool, enabled);
    QFETCH(bool, down);
    QFETCH(QColor, fill);
    QPixmap pixmap(5, 4);
    pixmap.fill(Qt::darkCyan);
    QPainter(&pixmap).fillRect(1, 1, 2, 2, Qt::yellow);

    RoundedButton button;
    button.setText(QStringLiteral("MM&&M"));
    button.setFontSize(44); // reaches beyond the corners
    button.setRadius(radius);
    button.setBackgroundColor(QColor(200, 40, 90, 160));
    button.setBorderWidth(border);
    if (border != 5)
        button.setBorderColor(QColor(0, 90, 200, 120));
    button.setEnabled(enabled);
    button.setDown(down);
    if (image)
        button.setBackgroundImage(pixmap);

    const QHash<int, int> insetOfBorder = {{0, 0}, {3, 1}, {4, 2}, {5, 2}};
    const int inset = insetOfBorder.value(border);
    for (const QSize size : {QSize(100, 40), QSize(77, 51)}) {
        button.resize(size);
        const QRect all(QPoint(), size);
        COMPARE_PICTURES(
            snapshot(button), reference(size, [&](QPainter &painter) {
                painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
                painter.setClipPath(outline(all, radius));
                if (image)
                    painter.drawPixmap(all, pixmap);
                else
                    painter.fillPath(outline(all, radius), fill);
                if (border > 0) {
                    painter.setClipping(false);
                    painter.setPen({border == 5 ? QColor(Qt::black) : QColor(0, 90, 200, 120),
                                    double(border), Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin});
                    painter.drawPath(outline(all.adjusted(inset, inset, -inset, -inset), radius));
                    painter.setClipping(true);
                }
                painter.setFont(button.font());
                painter.setPen(Qt::white);
                painter.drawText(all, Qt::AlignCenter, QStringLiteral("MM&&M"));
            }));
    }
}

void TestRoundedButton::reportsInOrder_data()
{
    QTest::addColumn<int>("mouseButton");
    QTest::addColumn<bool>("leaves");
    QTest::addColumn<QString>("signalOrder");
    QTest::newRow("tap") << int(Qt::LeftButton) << false << "pressed P R C released clicked";
    QTest::newRow("out and back") << int(Qt::LeftButton) << true
                                  << "pressed P released pressed R released clicked";
    QTest::newRow("right button") << int(Qt::RightButton) << false << "P R C";
}

void TestRoundedButton::reportsInOrder()
{
    QFETCH(int, mouseButton);
    QFETCH(bool, leaves);
    QFETCH(QString, signalOrder);
    QWidget window;
    RoundedButton button(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QStringList seen;
    connect(&button, &RoundedButton::pressed, this, [&] { seen << "pressed"; });
    connect(&button, &RoundedButton::released, this, [&] { seen << "released"; });
    connect(&button, &RoundedButton::clicked, this, [&] { seen << "clicked"; });
    connect(&button, &RoundedButton::signal_mousePressed, this, [&] { seen << "P"; });
    connect(&button, &RoundedButton::signal_mouseReleased, this, [&] { seen << "R"; });
    connect(&button, &RoundedButton::signal_clicked, this, [&] { seen << "C"; });

    Finger finger(button, Qt::MouseButton(mouseButton));
    finger.press({10, 10});
    if (leaves) {
        finger.move({10, 200});
        finger.move({10, 10});
    }
    finger.release({10, 10});
    QCOMPARE(seen.join(' '), signalOrder);
}

void TestRoundedButton::mayBeDeletedInItsSlots()
{
    for (auto signal : {&RoundedButton::signal_mousePressed, &RoundedButton::signal_mouseReleased,
                        &RoundedButton::signal_clicked}) {
        QVERIFY(mayBeDeletedIn(signal, new RoundedButton));
        QVERIFY(mayBeDeletedIn(signal, new RoundedButton, Qt::RightButton));
    }
    QVERIFY(mayBeDeletedIn(&QAbstractButton::pressed, new RoundedButton));
    QVERIFY(mayBeDeletedIn(&QAbstractButton::clicked, new RoundedButton));
}

void TestRoundedButton::repaintsOnlyForNewValues()
{
    RoundedButton button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    PaintCounter paints(button);
    QPixmap pixmap(2, 2);
    button.setRadius(0);
    button.setBackgroundImage({});
    QCOMPARE(paints.take(), 0);
    button.setBackgroundImage(pixmap);
    QCOMPARE(paints.take(), 1);
    button.setBackgroundImage(pixmap);
    QCOMPARE(paints.take(), 0);
    button.setBorderWidth(0);
    QCOMPARE(paints.take(), 1);
    button.setBorderColor({});
    QCOMPARE(paints.take(), 1);
}

QTEST_MAIN(TestRoundedButton)
#include "tst_roundedbutton.moc"
