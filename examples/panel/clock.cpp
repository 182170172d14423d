#include "clock.h"

#include <QSettings>
#include <QTime>

namespace {

constexpr int Interval = 1000; // ms
const char HoursKey[] = "display/24hours";

} // namespace

Clock::Clock(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &Clock::tick);
    m_timer.start(Interval);
}

bool Clock::has24Hours() const
{
    return QSettings().value(HoursKey, true).toBool();
}

void Clock::set24Hours(bool on)
{
    QSettings().setValue(HoursKey, on);
    tick();
}

QString Clock::text() const
{
    return QTime::currentTime().toString(has24Hours() ? "H:mm" : "h:mm AP");
}

void Clock::tick()
{
    const QString now = text();
    if (now == m_lastText)
        return;
    m_lastText = now;
    Q_EMIT changed(now);
}
