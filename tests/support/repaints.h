#ifndef REPAINTS_H
#define REPAINTS_H

#include <functional>

class QWidget;

/*! How often the event loop paints \a widget, which is shown for it, because of \a change. */
int repaints(QWidget &widget, const std::function<void()> &change);

/*! Whether the animation of \a widget paints it while it shows, and no more once it is hidden. */
bool paintsOnlyWhenShown(QWidget &widget);

#endif
