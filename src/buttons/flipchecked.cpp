#include "flipchecked_p.h"

#include <QAbstractButton>
#include <QPointer>

namespace ZIRVOUI {

bool flipChecked(QAbstractButton &button)
{
    const bool wasChecked = button.isChecked();
    // A group follows the button's own signal with signals of its own.
    if (button.group()) {
        button.setChecked(!wasChecked);
        return false;
    }
    // A slot of the button that this one turns off may delete it.
    const QPointer<QAbstractButton> guard(&button);
    const bool wasBlocked = button.blockSignals(true);
    button.setChecked(!wasChecked);
    if (!guard)
        return false;
    button.blockSignals(wasBlocked);
    return button.isChecked() != wasChecked;
}

} // namespace ZIRVOUI
