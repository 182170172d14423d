#ifndef TRUNCATED_P_H
#define TRUNCATED_P_H

#include <QtGlobal>
#include <limits>

namespace ZIRVOUI {

/*!
 * \a value without its fraction; what lies beyond int is the nearest int, and NaN is 0.  A bare
 * conversion is undefined for these, and differs between processors.
 */
inline int truncated(double value)
{
    constexpr double Least = std::numeric_limits<int>::min();
    constexpr double Most = std::numeric_limits<int>::max();
    return qIsNaN(value) ? 0 : int(qBound(Least, value, Most));
}

} // namespace ZIRVOUI

#endif
