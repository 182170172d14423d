// A plugin that any program of Qt Widgets loads with QT_QPA_GENERIC_PLUGINS=places.  It writes to
// the file $PLACES where the named widgets are that a finger can reach, anew after each change: a
// line "<x> <y> <width> <height> <name>" for each, in the pixels of its window's layout.
#include <QApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QSaveFile>
#include <QTextStream>
#include <QTimer>
#include <QWidget>

namespace {

const QVector<QEvent::Type> MovesOfWidgets
    = {QEvent::Move, QEvent::Resize, QEvent::Show, QEvent::Hide, QEvent::ZOrderChange};

bool isReachable(const QWidget *widget)
{
    if (!widget->isVisible() || widget->isWindow())
        return false;
    const QWidget *window = widget->window();
    const QWidget *reached = window->childAt(widget->mapTo(window, widget->rect().center()));
    return reached && (reached == widget || widget->isAncestorOf(reached));
}

void writePlaces()
{
    QSaveFile file(qEnvironmentVariable("PLACES"));
    if (!file.open(QIODevice::WriteOnly))
        return;
    QTextStream text(&file);
    for (const QWidget *widget : QApplication::allWidgets()) {
        const QString name = widget->objectName();
        if (name.isEmpty() || name.startsWith("qt_") || !isReachable(widget))
            continue;
        const QPoint corner = widget->mapTo(widget->window(), QPoint());
        text << corner.x() << ' ' << corner.y() << ' ' << widget->width() << ' ' << widget->height()
             << ' ' << name << '\n';
    }
    text.flush();
    file.commit();
}

/*! Watches all widgets, and writes once when they have come to rest. */
class Watch : public QTimer
{
public:
    Watch()
    {
        setSingleShot(true);
        connect(this, &QTimer::timeout, this, writePlaces);
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched->isWidgetType() && MovesOfWidgets.contains(event->type()))
            start();
        return false;
    }
};

} // namespace

class PlacesPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "places.json")

public:
    QObject *create(const QString &, const QString &) override { return new Watch; }
};

#include "places.moc"
