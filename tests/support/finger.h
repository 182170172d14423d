#ifndef FINGER_H
#define FINGER_H

#include <QPointer>
#include <QtTest>

/*!
 * A pointer on the window of a shown widget, at positions within the widget: its events take the
 * way of real ones, on to the parents of what ignores them.
 */
class Finger
{
public:
    explicit Finger(QWidget &widget, Qt::MouseButton button = Qt::LeftButton)
        : m_window(widget.window()->windowHandle())
        , m_origin(widget.mapTo(widget.window(), QPoint()))
        , m_button(button)
    {
    }

    void press(const QPoint &at) { QTest::mousePress(m_window, m_button, {}, m_origin + at); }
    void move(const QPoint &to) { QTest::mouseMove(m_window, m_origin + to); }
    void release(const QPoint &at) { QTest::mouseRelease(m_window, m_button, {}, m_origin + at); }
    void tap(const QPoint &at)
    {
        press(at);
        release(at);
    }

private:
    QWindow *m_window;
    QPoint m_origin;
    Qt::MouseButton m_button;
};

/*! Whether a tap on \a widget, a child of another, ends well when a slot of \a signal deletes it.
 */
template <typename Widget, typename Signal>
bool mayBeDeletedIn(Signal signal, Widget *widget, Qt::MouseButton button = Qt::LeftButton)
{
    QWidget parent;
    const QPointer<Widget> guard(widget);
    widget->setParent(&parent);
    QObject::connect(widget, signal, &parent, [guard] { delete guard.data(); });

    // Not through the window, which sends what a right press left over a request for a menu.
    const QPoint position(10, widget->height() / 2);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, position, button, button, Qt::NoModifier);
        if (guard)
            QCoreApplication::sendEvent(guard, &event);
    }
    return !guard;
}

#endif
