#ifndef BUTTONTEST_H
#define BUTTONTEST_H

#include "widgettest.h"

#include <QAbstractButton>

constexpr int Huge = std::numeric_limits<int>::max();

/*!
 * Compares what \a button draws, enabled and disabled, up and down, with what \a draw(painter,
 * rect) does, at each of \a sizes.
 */
template <typename Draw>
void compareStates(QAbstractButton &button, std::initializer_list<QSize> sizes, Draw draw)
{
    for (const int state : {0, 1, 2, 3}) {
        button.setEnabled(state & 1);
        button.setDown(state & 2);
        for (const QSize size : sizes) {
            const QImage expected = reference(size, [&](QPainter &painter) {
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setFont(button.font());
                draw(painter, QRect(QPoint(), size));
            });
            COMPARE_PICTURES(snapshot(button, size), expected);
        }
    }
}

/*! A picture that shows how it was stretched. */
inline QPixmap spottedPixmap()
{
    QPixmap pixmap(7, 5);
    pixmap.fill(Qt::darkCyan);
    QPainter(&pixmap).fillRect(1, 1, 4, 2, Qt::yellow);
    return pixmap;
}

#endif
