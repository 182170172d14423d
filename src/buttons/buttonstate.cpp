#include "buttonstate_p.h"

namespace ZIRVOUI {

namespace {

constexpr double DisabledOpacity = 0.3;
constexpr double DownOpacity = 0.6;

} // namespace

double stateOpacity(QStyle::State state)
{
    if (state & QStyle::State_Sunken)
        return DownOpacity;
    return state & QStyle::State_Enabled ? 1.0 : DisabledOpacity;
}

QColor stateColor(const QColor &color, QStyle::State state, int percent)
{
    if (state & QStyle::State_Sunken)
        return color.lighter(percent);
    if (state & QStyle::State_Enabled)
        return color;

    const int gray = qGray(color.rgb());
    return {gray, gray, gray, color.alpha()};
}

} // namespace ZIRVOUI
