#ifndef LABELTEST_H
#define LABELTEST_H

#include "widgettest.h"

#include <QLabel>

/*! The time that 1000 calls of \a measure take, in layouts of the text of \a label. */
template <typename Measure>
double layoutsTaken(const QLabel &label, Measure measure)
{
    QElapsedTimer timer;
    timer.start();
    label.fontMetrics().boundingRect(label.rect(), Qt::TextWordWrap, label.text());
    const double once = double(timer.nsecsElapsed());
    timer.start();
    for (int i = 0; i < 1000; ++i)
        measure();
    return double(timer.nsecsElapsed()) / once;
}

#endif
