#include "virtualtime.h"

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QTimerEvent>
#include <QVariantAnimation>
#include <algorithm>
#include <limits>

class AnimationClock : public QAnimationDriver
{
public:
    explicit AnimationClock(VirtualTime *time)
        : QAnimationDriver(time)
        , m_time(time)
    {
        install();
        // Qt asks the real clock where it goes on after a time without animations.
        m_always.setStartValue(0);
        m_always.setEndValue(1);
        m_always.setLoopCount(-1);
        m_always.start();
    }

    qint64 elapsed() const override { return m_time->now(); }

private:
    VirtualTime *m_time;
    QVariantAnimation m_always;
};

void VirtualTime::driveAnimations()
{
    m_animations = new AnimationClock(this);
    settle();
}

void VirtualTime::settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void VirtualTime::pass(int ms, int mostTimers)
{
    const qint64 until = m_now + ms;
    while (mostTimers > 0 && fireNext(until))
        --mostTimers;
    m_now = qMax(m_now, until);
    m_animations->advance();
    settle();
}

bool VirtualTime::fireNext(qint64 until)
{
    const auto isEarlier = [](const Timer &a, const Timer &b) { return a.due < b.due; };
    const auto next = std::min_element(m_timers.begin(), m_timers.end(), isEarlier);
    if (next == m_timers.end() || next->due > until)
        return false;
    m_now = qMax(m_now, next->due);
    next->due = m_now + qMax(1, next->interval); // time goes on though an interval is 0
    QTimerEvent event(next->id);
    QCoreApplication::sendEvent(next->object, &event);
    return true;
}

bool VirtualTime::processEvents(QEventLoop::ProcessEventsFlags flags)
{
    const bool wasAwake = m_awake;
    m_awake = false;
    QCoreApplication::sendPostedEvents();
    if (wasAwake || !flags.testFlag(QEventLoop::WaitForMoreEvents))
        return wasAwake;
    if (!fireNext(std::numeric_limits<qint64>::max()))
        qFatal("an event loop waits, and nothing will ever happen in it");
    return true;
}

void VirtualTime::registerTimer(int id, int interval, Qt::TimerType type, QObject *object)
{
    m_timers.append({id, interval, type, object, m_now + interval});
}

template <typename Predicate>
bool VirtualTime::removeIf(Predicate isUnwanted)
{
    const auto kept = std::remove_if(m_timers.begin(), m_timers.end(), isUnwanted);
    const bool found = kept != m_timers.end();
    m_timers.erase(kept, m_timers.end());
    return found;
}

bool VirtualTime::unregisterTimer(int id)
{
    return removeIf([id](const Timer &timer) { return timer.id == id; });
}

bool VirtualTime::unregisterTimers(QObject *object)
{
    return removeIf([object](const Timer &timer) { return timer.object == object; });
}

QList<QAbstractEventDispatcher::TimerInfo> VirtualTime::registeredTimers(QObject *object) const
{
    QList<TimerInfo> found;
    for (const Timer &timer : m_timers) {
        if (timer.object == object)
            found.append({timer.id, timer.interval, timer.type});
    }
    return found;
}

int VirtualTime::remainingTime(int id)
{
    for (const Timer &timer : m_timers) {
        if (timer.id == id)
            return int(qMax(qint64(0), timer.due - m_now));
    }
    return -1;
}
