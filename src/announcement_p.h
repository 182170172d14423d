#ifndef ANNOUNCEMENT_P_H
#define ANNOUNCEMENT_P_H

#include <QAccessible>
#include <QWidget>

namespace ZIRVOUI {

// Without assistive tools nothing is announced, and Qt makes no interface for the widget.
#ifndef QT_NO_ACCESSIBILITY

inline void announceValue(QWidget &widget, double value)
{
    if (!QAccessible::isActive() || !widget.isVisible())
        return;
    QAccessibleValueChangeEvent event(&widget, value);
    QAccessible::updateAccessibility(&event);
}

inline void announceAlert(QWidget &widget)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

#else

inline void announceValue(QWidget &, double)
{
}
inline void announceAlert(QWidget &)
{
}

#endif

} // namespace ZIRVOUI

#endif
