#ifndef FLIPCHECKED_P_H
#define FLIPCHECKED_P_H

class QAbstractButton;

namespace ZIRVOUI {

/*!
 * Turns the checked flag of \a button over, and returns whether toggled() is left to the caller.
 *
 * A slot of that signal may delete the button, while setChecked() would still report it to
 * assistive technology after the signal.  In a QButtonGroup setChecked() emits all signals.
 */
bool flipChecked(QAbstractButton &button);

} // namespace ZIRVOUI

#endif
