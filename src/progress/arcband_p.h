#ifndef ARCBAND_P_H
#define ARCBAND_P_H

#include <QPainterPath>

namespace ZIRVOUI {

/*!
 * The band along the rim of a slice of a disc: what QPainterPath::subtracted() leaves of the slice
 * without the inner disc, to the pixel, at a small part of the cost.
 *
 * The slice begins at \a startAngle, in degrees as QPainterPath::arcTo() takes them, and goes
 * clockwise for \a sweep degrees, from 0 to 360.
 */
QPainterPath arcBand(const QPointF &center, double outerRadius, double innerRadius, int startAngle,
                     int sweep);

} // namespace ZIRVOUI

#endif
