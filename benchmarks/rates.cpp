#include "rates.h"

#include "allocations.h"
#include "cputime.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

namespace {

constexpr double Milliseconds = 1000; // of a second

/*! Counts what is painted. The window is painted once in each of its frames, below the widgets. */
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(const QWidget &window)
        : m_window(window)
    {
        qApp->installEventFilter(this);
    }

    int paints() const { return m_paints; }
    int frames() const { return m_frames; }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && object->isWidgetType())
            ++(object == &m_window ? m_frames : m_paints);
        return false;
    }

private:
    const QWidget &m_window;
    int m_paints = 0;
    int m_frames = 0;
};

} // namespace

void runEvents(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

Rates ratesOf(const QWidget &window, int ms)
{
    runEvents(SettlingTime);
    const PaintCounter counter(window);
    QElapsedTimer timer;
    timer.start();
    const double cpu = cpuTime();
    const long allocations = allocationCount();
    runEvents(ms);
    const long allocated = allocationCount() - allocations;
    const double used = cpuTime() - cpu;
    const double seconds = double(timer.nsecsElapsed()) * 1e-9;
    return {used * Milliseconds / seconds, counter.paints() / seconds, counter.frames() / seconds,
            double(allocated) / seconds};
}
