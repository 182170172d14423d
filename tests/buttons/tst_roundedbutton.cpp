#include "buttontest.h"

#include <QPicture>
#include <roundedbutton.h>

class TestRoundedButton : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void paints()
    {
        const QColor color(200, 40, 90, 160), line(0, 90, 200, 120);
        RoundedButton button;
        button.setText("MM&&M");
        button.setFontSize(44); // reaches beyond the corners
        button.setBackgroundColor(color);
        for (const QPixmap &image : {spottedPixmap(), QPixmap()}) {
            button.setBackgroundImage(image);
            if (image.isNull())
                button.setBorderColor(line);
            for (const int radius : {0, 9, 20, 40}) {
                const int border = radius / 8; // odd and even
                const int inset = border / 2;
                button.setRadius(radius);
                button.setBorderWidth(border);
                const QPen pen(image.isNull() ? line : QColor(Qt::black), border, Qt::SolidLine,
                               Qt::SquareCap, Qt::BevelJoin);
                compareStates(button, {{100, 40}, {77, 51}}, [&](auto &painter, auto &all) {
                    const QColor up = button.isEnabled() ? color : QColor(102, 102, 102, 160);
                    const QRect inner = all.adjusted(inset, inset, -inset, -inset);
                    painter.setRenderHint(QPainter::SmoothPixmapTransform);
                    painter.setClipPath(roundedOutline(all, radius));
                    if (image.isNull())
                        painter.fillPath(roundedOutline(all, radius),
                                         button.isDown() ? color.lighter(130) : up);
                    painter.drawPixmap(all, image);
                    painter.setClipping(false);
                    if (border > 0)
                        painter.strokePath(roundedOutline(inner, radius), pen);
                    painter.setClipping(true);
                    painter.setPen(Qt::white);
                    painter.drawText(all, Qt::AlignCenter, button.text());
                });
            }
        }
    }

    void printsItsShapeAsOne()
    {
        RoundedButton button;
        button.setRadius(9);
        button.setBackgroundColor(Qt::red);
        button.resize(40, 20);
        const auto printed = [&] {
            QPicture print;
            button.render(&print, {}, {}, QWidget::DrawChildren);
            const auto magnified = [&](QPainter &p) { p.scale(8, 8), p.drawPicture(0, 0, print); };
            return reference({320, 160}, magnified);
        };
        const QImage first = printed();
        printed();
        COMPARE_PICTURES(printed(), first);
    }

    void clicksUnlessTheFingerLeavesIt()
    {
        RoundedButton button;
        button.show();
        QSignalSpy clicks(&button, &RoundedButton::signal_clicked);
        Finger finger(button, Qt::RightButton);
        finger.tap({5, 5});
        QCOMPARE(clicks.count(), 1);
        finger.press({5, 5});
        finger.move({5, -5});
        finger.move({5, 5});
        finger.release({5, 5});
        QTest::mousePress(&button, Qt::LeftButton, {}, {5, 5});
        QTest::mouseRelease(&button, Qt::LeftButton, {}, {5, -5}); // as the first to be outside
        QCOMPARE(clicks.count(), 1);
    }

    void mayBeDeletedInItsSlots()
    {
        for (auto signal : {&RoundedButton::signal_mousePressed,
                            &RoundedButton::signal_mouseReleased, &RoundedButton::signal_clicked}) {
            QVERIFY(mayBeDeletedIn(signal, new RoundedButton));
            QVERIFY(mayBeDeletedIn(signal, new RoundedButton, Qt::RightButton));
        }
        QVERIFY(mayBeDeletedInSlots([] { return new RoundedButton; }));
    }

    void repaintsOnlyForNewValues()
    {
        RoundedButton button;
        QVERIFY(staysCheckedInItsGroup(button));
        const QPixmap pixmap(2, 2);
        QVERIFY(!repaints(button, [&] { button.setRadius(0), button.setBackgroundImage({}); }));
        QVERIFY(repaints(button, [&] { button.setRadius(1); }));
        QVERIFY(repaints(button, [&] { button.setBackgroundImage(pixmap); }));
        QVERIFY(!repaints(button, [&] { button.setBackgroundImage(pixmap); }));
        QVERIFY(repaints(button, [&] { button.setBorderWidth(0); }));
        QVERIFY(repaints(button, [&] { button.setBorderColor({}); }));
    }
};

QTEST_MAIN(TestRoundedButton)
#include "tst_roundedbutton.moc"
