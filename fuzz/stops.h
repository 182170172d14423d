#ifndef STOPS_H
#define STOPS_H

#include "stage.h"
#include "values.h"

#include <QColor>
#include <QPair>
#include <QVector>
#include <QWidget>

/*! Calls addGradientColor(), which takes references to colours; that QGradient warns is documented.
 */
template <typename Widget>
void addStops(QWidget &widget, Values &values)
{
    const QColor colors[] = {values.take<QColor>(), values.take<QColor>()};
    QVector<QPair<double, const QColor &>> stops;
    for (int i = values.below(4); i > 0; --i)
        stops.append({values.take<double>(), colors[i % 2]});
    const Stage::Leniency leniency;
    static_cast<Widget &>(widget).addGradientColor(stops);
}

#endif
