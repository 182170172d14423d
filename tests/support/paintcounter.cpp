#include "paintcounter.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTest>
#include <QWidget>

PaintCounter::PaintCounter(QWidget &widget)
{
    widget.installEventFilter(this);
    QCoreApplication::processEvents();
    m_count = 0;
}

int PaintCounter::take()
{
    QCoreApplication::processEvents();
    const int count = m_count;
    m_count = 0;
    return count;
}

bool PaintCounter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint)
        ++m_count;
    return QObject::eventFilter(watched, event);
}

bool repaints(QWidget &widget, const std::function<void()> &change)
{
    widget.show();
    if (!QTest::qWaitForWindowExposed(&widget))
        qFatal("The widget does not show");
    PaintCounter paints(widget);
    change();
    return paints.take() > 0;
}
