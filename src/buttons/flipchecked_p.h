#ifndef FLIPCHECKED_P_H
#define FLIPCHECKED_P_H

class QAbstractButton;

namespace ZIRVOUI {

/*!
 * Turns the checked flag of \a button over without a signal, and returns whether it did.
 *
 * The caller then emits toggled().  A slot of that signal may delete the button, while setChecked()
 * would still report it to assistive technology after the signal.
 */
bool flipChecked(QAbstractButton &button);

} // namespace ZIRVOUI

#endif
