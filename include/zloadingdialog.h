#ifndef ZLOADINGDIALOG_H
#define ZLOADINGDIALOG_H

#include "zbasedialog.h"

#include <QTimer>

class QVBoxLayout;

namespace ZIRVOUI {

class LoadingWidget;
class ZClickLabel;

/*!
 * A dialog to wait in: a spinner above a centred, word-wrapped message, which may close itself.
 *
 * Its body is fixed at 944 × 608 pixels, the widget at 960 × 624.  Hiding the dialog, by whatever
 * way and be it with its parent, ends the count to its closing; the next show() or exec() counts
 * the full time.  It is not deleted when it closes.  See ZBaseDialog for placement and modality.
 */
class ZCOMMONWIDGETS_EXPORT ZLoadingDialog : public ZBaseDialog
{
    Q_OBJECT

public:
    /*! See setInfoText() and setTimeNum(). */
    explicit ZLoadingDialog(const QString &text, int time = -1, QWidget *parent = nullptr);
    ~ZLoadingDialog() override;

    /*! The message; an empty one keeps its place. */
    void setInfoText(const QString &text);
    /*!
     * The milliseconds from the next show() or exec() to closing; -1, the default, and other
     * negative times keep the dialog open.  A count that is under way goes on as it is.
     */
    void setTimeNum(const int &time);
    /*! The spinner, which the dialog owns. */
    LoadingWidget *loadingWidget();
    /*! The pixels between spinner and message, 70 by default; below 0 the style decides. */
    void setSpacing(int spacing);

    /*!
     * Shows the dialog and starts counting.  Called through a pointer to a base class, this is
     * QWidget::show(), which counts nothing.
     */
    void show();
    /*!
     * Shows the dialog, starts counting and returns when it is closed, with QDialog::Rejected
     * unless it was accepted.  Within another exec() of the same dialog it returns -1 at once.
     */
    int exec() override;

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void startTimer();

    ZClickLabel *m_infoLabel;
    int m_time; // ms
    QVBoxLayout *m_layout;
    LoadingWidget *m_loadingWidget;
    QTimer m_timer;
    bool m_isExecuting = false;
};

} // namespace ZIRVOUI

#endif
