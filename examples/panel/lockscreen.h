#ifndef LOCKSCREEN_H
#define LOCKSCREEN_H

#include <MaskWidget>

class Clock;
class Keypad;
class QBoxLayout;
class QLabel;

namespace ZIRVOUI {
class LineEdit;
}

/*! The time before a blurred wallpaper, and a keypad for the number that opens the panel. */
class LockScreen : public ZIRVOUI::MaskWidget
{
    Q_OBJECT

public:
    /*! How far it is to reach beyond each edge of the screen: a blurred picture has a gray rim. */
    static constexpr int Overhang = 64;

    explicit LockScreen(Clock *clock, QWidget *parent = nullptr);

Q_SIGNALS:
    void opened();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QBoxLayout *newTime(Clock *clock);
    QBoxLayout *newEntry();
    Keypad *newKeypad();
    void check();

    ZIRVOUI::LineEdit *m_entry;
};

#endif
