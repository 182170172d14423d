#include "roundedoutline_p.h"

namespace ZIRVOUI {

QPainterPath roundedOutline(const QRect &rect, const CornerRadii &radii)
{
    const double left = rect.x();
    const double top = rect.y();
    const double right = rect.right() + 1.0;
    const double bottom = rect.bottom() + 1.0;

    QPainterPath path({left, top + radii.topLeft});
    path.quadTo({left, top}, {left + radii.topLeft, top});
    path.lineTo(right - radii.topRight, top);
    path.quadTo({right, top}, {right, top + radii.topRight});
    path.lineTo(right, bottom - radii.bottomRight);
    path.quadTo({right, bottom}, {right - radii.bottomRight, bottom});
    path.lineTo(left + radii.bottomLeft, bottom);
    path.quadTo({left, bottom}, {left, bottom - radii.bottomLeft});
    path.lineTo(left, top + radii.topLeft);
    return path;
}

} // namespace ZIRVOUI
