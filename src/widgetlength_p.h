#ifndef WIDGETLENGTH_P_H
#define WIDGETLENGTH_P_H

#include <QWidget>

namespace ZIRVOUI {

/*! What Qt makes of a width or height that no widget can have, but without its warning. */
inline int widgetLength(qint64 length)
{
    return int(qBound(qint64(0), length, qint64(QWIDGETSIZE_MAX)));
}

} // namespace ZIRVOUI

#endif
