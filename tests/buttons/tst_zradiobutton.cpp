#include "finger.h"
#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <limits>
#include <zradiobutton.h>

using ZIRVOUI::ZRadioButton;

class TestZRadioButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints_data();
    void paints();
    void mayBeDeletedInItsSlots();
    void settersOnlyStore();
};

void TestZRadioButton::paints_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("thickness");
    QTest::addColumn<QRectF>("circle");
    QTest::addColumn<QRectF>("dot");
    QTest::addColumn<bool>("enabled");
    const QRectF none;
    QTest::newRow("off") << QSize(150, 40) << 2 << QRectF(2, 2, 36, 36) << none << true;
    QTest::newRow("on") << QSize(150, 40) << 2 << QRectF(2, 2, 36, 36) << QRectF(6, 6, 28, 28)
                        << true;
    QTest::newRow("disabled") << QSize(150, 35) << 2 << QRectF(2, 2, 30, 30)
                              << QRectF(5.4, 5.4, 23.2, 23.2) << false;
    QTest::newRow("higher than wide")
        << QSize(30, 60) << 2 << QRectF(2, 2, 26, 26) << QRectF(5, 5, 20, 20) << true;
    QTest::newRow("too thick for a dot")
        << QSize(150, 40) << 17 << QRectF(17, 17, 6, 6) << none << true;
}

void TestZRadioButton::paints()
{
    QFETCH(QSize, size);
    QFETCH(int, thickness);
    QFETCH(QRectF, circle);
    QFETCH(QRectF, dot);
    QFETCH(bool, enabled);

    ZRadioButton button(QStringLiteral("A && B"));
    QFont font;
    font.setPixelSize(13);
    button.setFont(font);
    button.setThickness(thickness);
    button.setExternalCircleFillColor(QColor(200, 60, 60, 90));
    button.setChecked(thickness > 2 || !dot.isNull());
    button.setEnabled(enabled);
    button.resize(size);
    const QRect text(QPoint(size.height() + 30, 0), QPoint(size.width() - 1, size.height() - 1));

    COMPARE_PICTURES(snapshot(button), reference(size, [&](QPainter &painter) {
                         painter.setRenderHint(QPainter::Antialiasing);
                         painter.setOpacity(enabled ? 1.0 : 0.4);
                         painter.setPen({QColor("#979797"), double(thickness), Qt::SolidLine,
                                         Qt::SquareCap, Qt::BevelJoin});
                         painter.setBrush(QColor(200, 60, 60, 90));
                         painter.drawEllipse(circle);
                         painter.setPen(Qt::NoPen);
                         painter.setBrush(QColor("#979797"));
                         painter.drawEllipse(dot);
                         painter.setOpacity(1.0);
                         painter.setFont(font);
                         painter.setPen(Qt::white);
                         painter.drawText(text, Qt::AlignVCenter, QStringLiteral("A && B"));
                     }));
}

void TestZRadioButton::mayBeDeletedInItsSlots()
{
    QVERIFY(mayBeDeletedIn(&QAbstractButton::toggled, new ZRadioButton));
    QVERIFY(mayBeDeletedIn(&QAbstractButton::clicked, new ZRadioButton));
}

void TestZRadioButton::settersOnlyStore()
{
    ZRadioButton button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    PaintCounter paints(button);
    button.setSpacing(std::numeric_limits<int>::max());
    button.setThickness(3);
    button.setExternalCircleLineColor(Qt::red);
    button.setExternalCircleFillColor(Qt::red);
    button.setInternalCircleFillColor(Qt::red);
    button.setTextColor(Qt::red);
    QCOMPARE(paints.take(), 0);
    snapshot(button);
}

QTEST_MAIN(TestZRadioButton)
#include "tst_zradiobutton.moc"
