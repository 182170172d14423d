#include "flipchecked_p.h"

#include <QAbstractButton>
#include <QSignalBlocker>

namespace ZIRVOUI {

bool flipChecked(QAbstractButton &button)
{
    const QSignalBlocker blocker(button);
    const bool wasChecked = button.isChecked();
    button.setChecked(!wasChecked);
    return button.isChecked() != wasChecked;
}

} // namespace ZIRVOUI
