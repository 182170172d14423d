#ifndef EXECONCE_P_H
#define EXECONCE_P_H

#include <QDialog>
#include <QPointer>

namespace ZIRVOUI {

/*!
 * QDialog::exec(), but for a dialog that is in it already, which \a isExecuting of the dialog
 * remembers: Qt answers that with -1 too, and with a warning.
 */
inline int execOnce(QDialog &dialog, bool &isExecuting)
{
    if (isExecuting)
        return -1;

    const QPointer<QDialog> guard(&dialog);
    isExecuting = true;
    const int result = dialog.QDialog::exec();
    if (guard)
        isExecuting = false;
    return result;
}

} // namespace ZIRVOUI

#endif
