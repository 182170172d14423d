#ifndef STAGE_H
#define STAGE_H

class QWidget;
class VirtualTime;

/*! The application that the widgets under test live in: one window, no display, its own time. */
namespace Stage {

/*! Makes the application; from here on a warning of Qt ends the program. */
void open();
/*! Visible, though on no screen. */
QWidget *window();
VirtualTime &time();
/*! While one lives, Qt may print what it likes: its own functions are called with any value. */
class Leniency
{
public:
    Leniency();
    ~Leniency();
};

/*! Puts back what belongs to the application as a whole. */
void clear();

} // namespace Stage

#endif
