// A plugin that any program loads with QT_QPA_GENERIC_PLUGINS=firstframe.  It prints how many ms
// after $STARTED (nanoseconds of the clock) the first frame was ready, what memory the program has
// in KiB some time later, and ends it.
#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QFile>
#include <QGenericPlugin>
#include <QTimer>
#include <cstdio>

namespace {

constexpr int RestTime = 1500; // ms
constexpr qint64 NsPerMs = 1000000;

int memory(const QByteArray &kind)
{
    QFile file("/proc/self/smaps_rollup");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith(kind + ':'))
            return line.mid(kind.size() + 1).simplified().split(' ').first().toInt();
    }
    return 0;
}

void printMemory()
{
    std::printf("%d %d %d\n", memory("Rss"), memory("Pss"), memory("Private_Dirty"));
    QCoreApplication::quit();
}

class Watch : public QObject
{
public:
    Watch() { qApp->installEventFilter(this); }

    // What is posted now comes when the expose event, which paints, has been handled.
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Expose) {
            qApp->removeEventFilter(this);
            QTimer::singleShot(0, this, [] {
                const qint64 started = qEnvironmentVariable("STARTED").toLongLong() / NsPerMs;
                std::printf("%lld ", QDateTime::currentMSecsSinceEpoch() - started);
                QTimer::singleShot(RestTime, qApp, printMemory);
            });
        }
        return false;
    }
};

} // namespace

class FirstFramePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "firstframe.json")

public:
    QObject *create(const QString &, const QString &) override { return new Watch; }
};

#include "firstframe.moc"
