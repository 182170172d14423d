#ifndef ZTOASTDIALOG_H
#define ZTOASTDIALOG_H

#include "zbasedialog.h"

/*! The kind of message that a toast's icon tells. */
enum ToastType : int {
    ToastConfirm, //!< It is done.
    ToastPrompt, //!< It is good to know.
    ToastWarning, //!< It may go wrong.
    ToastError //!< It went wrong.
};

namespace ZIRVOUI {

class ZClickLabel;
class ZSvgWidget;

/*!
 * A short message that closes itself: an icon for its kind above a word-wrapped text.
 *
 * The application provides the icons in its own Qt resources:
 * \li ToastConfirm: ":/resource/common/tip_svg/tip_ok.svg"
 * \li ToastPrompt: ":/resource/common/tip_svg/tip_info.svg"
 * \li ToastWarning: ":/resource/common/tip_svg/tip_warning.svg"
 * \li ToastError: ":/resource/common/tip_svg/tip_error.svg"
 *
 * The toast has the size that its content asks for, unless it is given a fixed one.  It is not
 * deleted when it closes and may be shown again.  See ZBaseDialog for placement and modality.
 */
class ZCOMMONWIDGETS_EXPORT ZToastDialog : public ZBaseDialog
{
    Q_OBJECT

public:
    /*! Shows the icon of \a type above \a text; an empty text keeps its place. */
    explicit ZToastDialog(ToastType type, const QString &text, QWidget *parent = nullptr);
    ~ZToastDialog() override;

    /*! Shows the icon of \a type; a value that is not listed leaves the icon as it is. */
    void setType(ToastType type);
    /*! An empty text hides the label, and no later text shows it again. */
    void setText(QString text);
    /*!
     * The milliseconds from show() or exec() to closing, 3000 by default.  With a negative delay
     * the toast stays open.  A toast that is open closes when it would have closed.
     */
    void setDelayMS(int ms);
    /*! Fixes the icon's size in pixels; by default it is the natural size of its file. */
    void setIcoSize(int width, int height);
    /*! Shows any file in place of the type's icon; see ZSvgWidget::loadSvgImage(). */
    void loadImage(QString path);

    /*!
     * Shows the toast and starts counting its delay.
     *
     * Every call counts on its own, and closing the toast early ends no count: one that is shown
     * again may be closed by an earlier call's.  Called through a pointer to a base class, this is
     * QWidget::show(), which counts nothing.
     */
    void show();
    /*!
     * Shows the toast, starts counting its delay and returns when it is closed, with
     * QDialog::Rejected unless it was accepted.  Within another exec() of the same toast it
     * returns -1 at once.
     */
    int exec() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void startCloseTimer();

    int m_delay = 3000; // ms
    ZSvgWidget *m_icon;
    ZClickLabel *m_label;
    bool m_isExecuting = false;
};

} // namespace ZIRVOUI

#endif
