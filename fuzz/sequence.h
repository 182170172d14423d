#ifndef SEQUENCE_H
#define SEQUENCE_H

#include "trial.h"

class QImage;

/*! Does to a widget of the subject's class what the bytes say, until they or it come to an end. */
void runSequence(Trial &trial, Values &values);

/*! Paints the widget, wherever it is, on a small picture of that many device pixels per pixel. */
QImage pictureOf(QWidget &widget, double ratio);

#endif
