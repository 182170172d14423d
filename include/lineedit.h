#ifndef LINEEDIT_H
#define LINEEDIT_H

#include "zcommonwidgets_export.h"

#include <QLineEdit>

namespace ZIRVOUI {

/*!
 * A line edit without frame or background: white text, gray while it is disabled, on whatever the
 * parent shows.  A click gives it the focus, the Tab key does not.
 *
 * It tells who gained and who lost the focus, so that one slot can serve all fields of a screen,
 * such as to show the on-screen keyboard.  A slot of these signals calls deleteLater() rather than
 * delete the line edit: QWidget goes on with it in setFocus() and clearFocus(), taps included.
 */
class ZCOMMONWIDGETS_EXPORT LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /*! A field without a validator. */
    explicit LineEdit(QWidget *parent = nullptr);
    ~LineEdit() override;

    /*! Sets palette and frame as they are in a new line edit.  Repaints. */
    void setupStyle();
    /*! The height of the font in pixels; 0 and less keep the one it has.  Repaints. */
    void setFontSize(int size);
    /*!
     * Sets the text anew, as the validator's fixup() makes it if there is a validator.  The cursor
     * goes to the end, and what was typed cannot be undone any more.
     */
    void fixUp();

Q_SIGNALS:
    /*! The focus came to \a edit, which is this line edit, for whatever reason. */
    void signal_focusIn(QWidget *edit);
    /*! The focus left \a edit, which is this line edit, for whatever reason. */
    void signal_focusOut(QWidget *edit);

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace ZIRVOUI

#endif
