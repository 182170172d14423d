#ifndef PROGRESSTEST_H
#define PROGRESSTEST_H

#include "widgettest.h"

constexpr double Huge = std::numeric_limits<double>::max();

/*! Whether the animation of \a widget paints it while it shows, and no more once it is hidden. */
inline bool paintsOnlyWhenShown(QWidget &widget)
{
    const bool paintsWhenShown = repaints(widget, [] { QTest::qWait(100); });
    widget.hide();
    PaintCounter paints(widget);
    QTest::qWait(60);
    return paintsWhenShown && paints.take() == 0;
}

#endif
