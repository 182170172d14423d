#ifndef PAINTCOUNTER_H
#define PAINTCOUNTER_H

#include <QObject>
#include <functional>

class QWidget;

/*! Counts the paints that a shown widget gets from the event loop. */
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget &widget);

    /*! The paints since the last call, once everything pending is done. */
    int take();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int m_count = 0;
};

/*! Whether \a change makes the event loop paint \a widget, which is shown for it. */
bool repaints(QWidget &widget, const std::function<void()> &change);

#endif
