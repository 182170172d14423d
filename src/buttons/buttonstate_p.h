#ifndef BUTTONSTATE_P_H
#define BUTTONSTATE_P_H

#include <QColor>
#include <QStyle>

namespace ZIRVOUI {

/*! How opaque a button is that fades: 0.3 disabled, 0.6 while down, which counts before disabled.
 */
double stateOpacity(QStyle::State state);

/*!
 * The colour of a button that changes its colour: the gray of \a color disabled, \a color made
 * lighter by \a percent while down, which counts before disabled.
 */
QColor stateColor(const QColor &color, QStyle::State state, int percent);

} // namespace ZIRVOUI

#endif
