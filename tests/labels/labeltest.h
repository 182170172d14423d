#ifndef LABELTEST_H
#define LABELTEST_H

#include "widgettest.h"

#include <QLabel>

inline QStringList textsOfAllKinds()
{
    return {{},
            QString(9, ' '),
            QString(9, QChar(0x200b)),
            "W",
            "Donaudampfschifffahrtsgesellschaft",
            "Warning\n\nThe door is open\n",
            QString(300, 'W'),
            QString("many words ").repeated(12),
            QString("The door is open. ").repeated(60),
            QString("a\nb\n\n").repeated(25),
            QString(90, 'm') + QString(" and a few words").repeated(30),
            QString("שלום עולם مرحبا 漢字かな 😀 \t e\u0301 ").repeated(12),
            QString("A long variant") + QChar(0x9c) + "short"};
}

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
