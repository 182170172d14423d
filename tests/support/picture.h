#ifndef PICTURE_H
#define PICTURE_H

#include <QImage>
#include <QPainter>
#include <QString>

class QWidget;

/*! A transparent picture of \a size at a device pixel ratio. */
QImage blankPicture(const QSize &size, int ratio = 1);

/*! What \a widget draws, alone and on transparent ground. */
QImage snapshot(QWidget &widget, int ratio = 1);

/*! The same of the widget at another \a size. */
QImage snapshot(QWidget &widget, const QSize &size);

/*! A picture that \a draw makes with a painter. */
template <typename Draw>
QImage reference(const QSize &size, Draw draw, int ratio = 1)
{
    QImage picture = blankPicture(size, ratio);
    QPainter painter(&picture);
    draw(painter);
    return picture;
}

/*! Where two pictures differ by more than rounding; empty when they do not. */
QString difference(const QImage &actual, const QImage &expected);

#define COMPARE_PICTURES(actual, expected)                                                         \
    do {                                                                                           \
        const QString found = difference(actual, expected);                                        \
        QVERIFY2(found.isEmpty(), qPrintable(found));                                              \
    } while (false)

#endif
