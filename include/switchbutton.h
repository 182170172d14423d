#ifndef SWITCHBUTTON_H
#define SWITCHBUTTON_H

#include "zcommonwidgets_export.h"

#include <QAbstractButton>
#include <QScopedPointer>

namespace ZIRVOUI {

class SwitchButtonPrivate;

/*!
 * An on/off switch: a round knob that slides from end to end of a pill-shaped track, with a text
 * on the side that the knob leaves free.
 *
 * Two states live side by side: checkState() colours the track and places the knob, isChecked()
 * chooses the text.  The switch keeps them in step: a new check state sets the checked flag without
 * toggled(), and setChecked() while the switch's signals are blocked moves the knob without
 * stateChanged().
 *
 * The texts are white, in Arial of 10 points whatever the switch's font.  The knob keeps its place
 * when the switch is resized, until it slides the next time.  A disabled switch is drawn at 40 %.
 * Over the switch the pointer is a hand.  A slot of any signal may delete the switch, but in
 * a QButtonGroup not one of toggled(): there Qt goes on with it.
 */
class ZCOMMONWIDGETS_EXPORT SwitchButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(int offset READ offset WRITE setOffset)

public:
    /*!
     * A switch of 119 × 68 pixels that is off.  With \a autoToggle a click moves it; without, a
     * click only emits toggled() and changes the text's side, and the application moves it.
     */
    explicit SwitchButton(QWidget *parent = nullptr, bool autoToggle = true);
    ~SwitchButton() override;

    /*!
     * Pixels between the track's edge and the knob, 8 by default; the setter repaints.  With a
     * margin that is not finite no knob is drawn.
     *
     * An override moves the end of the knob's way, not the knob that is drawn.
     */
    virtual double margin();
    void setMargin(double margin);

    /*! The track while the switch is not off, RGB (57, 158, 251) by default; the setter repaints.
     */
    QColor checkedBackground();
    void setCheckedBackground(const QColor &color);
    /*! The track while it is off, RGBA (121, 123, 129, 76) by default; the setter repaints. */
    QColor nocheckedBackground();
    void setNocheckedBackground(const QColor &color);

    Qt::CheckState checkState() const;
    /*!
     * Repaints and, if \a state is new, emits stateChanged().  The knob slides when the switch goes
     * on or off; a partially checked one is on, with a dash across the knob.
     */
    void setCheckState(Qt::CheckState state);

    /*! Stored for the application; the switch itself does not look at it. */
    bool isTristate() const;
    void setTristate(bool tristate);

    /*! The text at the left while the switch is checked.  Only stores. */
    void setCheckText(const QString &text);
    /*! The text at the right while it is not.  Only stores. */
    void setNoCheckText(const QString &text);

    /*!
     * The pixels that the knob has moved from the left end of its way; the setter repaints.  Not
     * limited.
     */
    int offset();
    void setOffset(int offset);

Q_SIGNALS:
    /*! The check state is new: \a state is a Qt::CheckState. */
    void stateChanged(int state);

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void checkStateSet() override;
    void nextCheckState() override;

private:
    QScopedPointer<SwitchButtonPrivate> d;
};

} // namespace ZIRVOUI

#endif
