#ifndef PANELWINDOW_H
#define PANELWINDOW_H

#include "clock.h"
#include "look.h"

#include <QWidget>

class LockScreen;
class QBoxLayout;
class QButtonGroup;
class QStackedWidget;

namespace ZIRVOUI {
class ZClickLabel;
}

/*! The whole screen: a rail to choose a page with, the page, and what lies over both. */
class PanelWindow : public QWidget
{
    Q_OBJECT

public:
    PanelWindow();

    Look *look() { return &m_look; }
    QStringList pageNames() const;
    void showPage(int index);
    void lock();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void childEvent(QChildEvent *event) override;

private:
    QWidget *newRail();
    void addPage(QBoxLayout *rail, const QString &name, const QString &icon, QWidget *page);
    QWidget *newDisplayPage();
    QWidget *newTime();
    QWidget *newLockButton();
    void addLockScreen();
    void addDimmer();
    void dim(int brightness);

    ZIRVOUI::ZClickLabel *m_dimmer = nullptr; // first: each child that is added asks for it
    Look m_look;
    Clock m_clock;
    QStackedWidget *m_pages;
    QButtonGroup *m_tiles;
    LockScreen *m_lockScreen;
};

#endif
