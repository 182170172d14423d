#include "finger.h"
#include "paintcounter.h"
#include "picture.h"
#include "warnings.h"

#include <roundedbutton.h>

static QPainterPath outline(const QRectF &rect, double r)
{
    const QPointF right(r, 0);
    const QPointF down(0, r);
    QPainterPath path(rect.topLeft() + down);
    path.quadTo(rect.topLeft(), rect.topLeft() + right);
    path.lineTo(rect.topRight() - right);
    path.quadTo(rect.topRight(), rect.topRight() + down);
    path.lineTo(rect.bottomRight() - down);
    path.quadTo(rect.bottomRight(), rect.bottomRight() - right);
    path.lineTo(rect.bottomLeft() + right);
    path.quadTo(rect.bottomLeft(), rect.bottomLeft() - down);
    path.lineTo(rect.topLeft() + down);
    return path;
}

class TestRoundedButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }

    void paints()
    {
        const QColor color(200, 40, 90, 160);
        const QColor line(0, 90, 200, 120);
        QPixmap pixmap(5, 4);
        pixmap.fill(Qt::darkCyan);
        QPainter(&pixmap).fillRect(1, 1, 2, 2, Qt::yellow);
        // Every combination: the bits of the look are its states.
        for (const int look : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}) {
            const bool enabled = look & 1;
            const bool down = look & 2;
            const bool image = look & 4;
            const int border = look & 8 ? 3 + look % 3 : 0;
            const int radius = look % 5 * 10;
            RoundedButton button;
            button.setText(QStringLiteral("MM&&M"));
            button.setFontSize(44); // reaches beyond the corners
            button.setRadius(radius);
            button.setBackgroundColor(color);
            button.setBackgroundImage(image ? pixmap : QPixmap());
            button.setBorderWidth(border);
            if (!image)
                button.setBorderColor(line);
            button.setEnabled(enabled);
            button.setDown(down);
            const QColor up = enabled ? color : QColor(102, 102, 102, 160);
            const QPen pen(image ? QColor(Qt::black) : line, border, Qt::SolidLine, Qt::SquareCap,
                           Qt::BevelJoin);
            for (const QSize size : {QSize(100, 40), QSize(77, 51)}) {
                const QRect all(QPoint(), size);
                const int inset = border / 2;
                const auto draw = [&](QPainter &painter) {
                    painter.setRenderHints(QPainter::Antialiasing
                                           | QPainter::SmoothPixmapTransform);
                    painter.setClipPath(outline(all, radius));
                    if (image)
                        painter.drawPixmap(all, pixmap);
                    else
                        painter.fillPath(outline(all, radius), down ? color.lighter(130) : up);
                    painter.setClipping(false);
                    if (border > 0)
                        painter.strokePath(
                            outline(all.adjusted(inset, inset, -inset, -inset), radius), pen);
                    painter.setClipping(true);
                    painter.setFont(button.font());
                    painter.setPen(Qt::white);
                    painter.drawText(all, Qt::AlignCenter, button.text());
                };
                COMPARE_PICTURES(snapshot(button, size), reference(size, draw));
            }
        }
    }

    void mayBeDeletedInItsSlots()
    {
        for (auto signal : {&RoundedButton::signal_mousePressed,
                            &RoundedButton::signal_mouseReleased, &RoundedButton::signal_clicked}) {
            QVERIFY(mayBeDeletedIn(signal, new RoundedButton));
            QVERIFY(mayBeDeletedIn(signal, new RoundedButton, Qt::RightButton));
        }
        QVERIFY(mayBeDeletedIn(&QAbstractButton::pressed, new RoundedButton));
        QVERIFY(mayBeDeletedIn(&QAbstractButton::clicked, new RoundedButton));
    }

    void repaintsOnlyForNewValues()
    {
        RoundedButton button;
        const QPixmap pixmap(2, 2);
        const auto setImage = [&] { button.setBackgroundImage(pixmap); };
        QVERIFY(!repaints(button, [&] { button.setRadius(0); }));
        QVERIFY(!repaints(button, [&] { button.setBackgroundImage({}); }));
        QVERIFY(repaints(button, setImage));
        QVERIFY(!repaints(button, setImage));
        QVERIFY(repaints(button, [&] { button.setBorderWidth(0); }));
        QVERIFY(repaints(button, [&] { button.setBorderColor({}); }));
    }
};

QTEST_MAIN(TestRoundedButton)
#include "tst_roundedbutton.moc"
