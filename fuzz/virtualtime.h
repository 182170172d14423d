#ifndef VIRTUALTIME_H
#define VIRTUALTIME_H

#include <QAbstractEventDispatcher>
#include <QVector>

/*!
 * The event dispatcher of these programs: timers and animations follow a clock that is moved by
 * hand, so that hours pass in seconds, and the same way each time.
 *
 * Set it before the application is made.
 */
class VirtualTime : public QAbstractEventDispatcher
{
public:
    qint64 now() const { return m_now; }
    /*! Lets \a ms milliseconds pass, or less after \a mostTimers timeouts. */
    void pass(int ms, int mostTimers);
    /*! Takes over all animations; to be called once, when the application is there. */
    void driveAnimations();
    /*! Delivers what was posted, and deletes what is to be deleted later. */
    static void settle();

    bool processEvents(QEventLoop::ProcessEventsFlags flags) override;
    bool hasPendingEvents() override { return m_awake; }
    void registerSocketNotifier(QSocketNotifier *) override { }
    void unregisterSocketNotifier(QSocketNotifier *) override { }
    void registerTimer(int id, int interval, Qt::TimerType type, QObject *object) override;
    bool unregisterTimer(int id) override;
    bool unregisterTimers(QObject *object) override;
    QList<TimerInfo> registeredTimers(QObject *object) const override;
    int remainingTime(int id) override;
    void wakeUp() override { m_awake = true; }
    void interrupt() override { m_awake = true; }
    void flush() override { }

private:
    struct Timer
    {
        int id;
        int interval;
        Qt::TimerType type;
        QObject *object;
        qint64 due;
    };

    bool fireNext(qint64 until);
    template <typename Predicate>
    bool removeIf(Predicate isUnwanted);

    QVector<Timer> m_timers;
    qint64 m_now = 0;
    bool m_awake = false;
    class AnimationClock *m_animations = nullptr;
};

#endif
