#ifndef BUTTONTEST_H
#define BUTTONTEST_H

#include "widgettest.h"

#include <QAbstractButton>
#include <QButtonGroup>

/*! The same as comparePictures(), enabled and disabled, up and down. */
template <typename Draw>
void compareStates(QAbstractButton &button, std::initializer_list<QSize> sizes, Draw draw)
{
    for (const int state : {0, 1, 2, 3}) {
        button.setEnabled(state & 1);
        button.setDown(state & 2);
        comparePictures(button, sizes, draw);
    }
}

/*! Whether taps on buttons that \a make() makes end well when slots delete them. */
template <typename Make>
bool mayBeDeletedInSlots(Make make)
{
    using Button = QAbstractButton;
    const bool isCheckable = QScopedPointer<Button>(make())->isCheckable();
    return mayBeDeletedIn(&Button::pressed, make()) && mayBeDeletedIn(&Button::released, make())
        && mayBeDeletedIn(&Button::clicked, make())
        && (!isCheckable || mayBeDeletedIn(&Button::toggled, make()));
}

/*! Whether \a button, the only one of its group, emits that it is checked, and then stays so. */
inline bool staysCheckedInItsGroup(QAbstractButton &button)
{
    QButtonGroup group;
    group.addButton(&button);
    QSignalSpy toggles(&button, &QAbstractButton::toggled);
    button.setCheckable(true);
    button.click();
    button.click();
    return button.isChecked() && toggles == QList<QVariantList>{{true}};
}

#endif
