#ifndef ROUNDEDOUTLINE_P_H
#define ROUNDEDOUTLINE_P_H

#include <QPainterPath>

namespace ZIRVOUI {

/*! The radius of each corner in pixels, clockwise; 0 is a square corner. */
struct CornerRadii
{
    int topLeft;
    int topRight;
    int bottomRight;
    int bottomLeft;
};

/*!
 * The outline of \a rect along its outer pixel edges.  A rounded corner is a quadratic curve whose
 * control point is the corner; radii are not limited.
 */
QPainterPath roundedOutline(const QRect &rect, const CornerRadii &radii);

} // namespace ZIRVOUI

#endif
