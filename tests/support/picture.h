#ifndef PICTURE_H
#define PICTURE_H

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTest>
#include <QWidget>

/*! A transparent picture of \a size at a device pixel ratio. */
QImage blankPicture(const QSize &size, double ratio = 1);

/*! What \a widget draws, alone and on transparent ground. */
QImage snapshot(QWidget &widget, double ratio = 1);

/*! The same of the widget at another \a size. */
QImage snapshot(QWidget &widget, const QSize &size);

/*! A picture that \a draw makes with a painter. */
template <typename Draw>
QImage reference(const QSize &size, Draw draw, double ratio = 1)
{
    QImage picture = blankPicture(size, ratio);
    QPainter painter(&picture);
    painter.setLayoutDirection(QGuiApplication::layoutDirection()); // as on a screen
    draw(painter);
    return picture;
}

/*! A picture that shows how it was stretched. */
QPixmap spottedPixmap(const QSize &size = {7, 5});

/*!
 * The outline of a rectangle whose corners are marked "r" where they are round, clockwise from the
 * top left.
 */
QPainterPath roundedOutline(const QRectF &rect, double radius, const char *corners = "rrrr");

/*! Where two pictures differ by more than rounding; empty when they do not. */
QString difference(const QImage &actual, const QImage &expected);

#define COMPARE_PICTURES(actual, expected)                                                         \
    do {                                                                                           \
        const QString found = difference(actual, expected);                                        \
        QVERIFY2(found.isEmpty(), qPrintable(found));                                              \
    } while (false)

/*!
 * Compares what \a widget draws with what \a draw(painter, rect) does, at each of \a sizes and at
 * whole and broken pixel ratios. The painter is smooth, and has the font of the widget but no pen.
 */
template <typename Draw>
void comparePictures(QWidget &widget, std::initializer_list<QSize> sizes, Draw draw)
{
    for (const QSize size : sizes) {
        const QRect all(QPoint(), size);
        widget.setFixedSize(size);
        // The second of the same may come from kept pixels.
        for (const double ratio : {1.0, 1.0, 1.5, 2.0, 2.0}) {
            const auto prepareAndDraw = [&](QPainter &painter) {
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setFont(widget.font());
                painter.setPen(Qt::NoPen);
                draw(painter, all);
            };
            COMPARE_PICTURES(snapshot(widget, ratio), reference(size, prepareAndDraw, ratio));
        }
    }
}

#endif
