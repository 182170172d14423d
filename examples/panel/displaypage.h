#ifndef DISPLAYPAGE_H
#define DISPLAYPAGE_H

#include <QWidget>

class Clock;
class Look;
class QBoxLayout;

/*! Brightness, theme, time and wallpaper; every change is kept at once. */
class DisplayPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int FullBrightness = 100;

    DisplayPage(Look *look, Clock *clock, QWidget *parent = nullptr);

    /*! As it is kept, in percent. */
    static int brightness();
    /*! The blur of the wallpaper as it is kept, in pixels of the picture. */
    static int wallpaperBlur();

Q_SIGNALS:
    void brightnessChanged(int percent);

private:
    QWidget *newBrightness();
    QWidget *newAppearance();
    void addThemes(QBoxLayout *column);
    QWidget *newWallpaper();

    Look *m_look;
    Clock *m_clock;
};

#endif
