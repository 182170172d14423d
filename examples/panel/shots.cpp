#include "shots.h"

#include "panelwindow.h"

#include <QDir>
#include <QPixmap>
#include <QTextStream>

namespace {

bool save(PanelWindow &window, const QDir &directory, const QString &name)
{
    const QString path = directory.filePath(name.toLower() + ".png");
    if (window.grab().save(path, "PNG"))
        return true;
    QTextStream(stderr) << "Cannot write " << path << '\n';
    return false;
}

bool savePages(PanelWindow &window, const QDir &directory, const QString &theme)
{
    const QStringList names = window.pageNames();
    for (int i = 0; i < names.size(); ++i) {
        window.showPage(i);
        if (!save(window, directory, names.at(i) + '-' + theme))
            return false;
    }
    return true;
}

} // namespace

bool writeShots(PanelWindow &window, const QString &directory)
{
    QDir().mkpath(directory);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();

    const QString chosen = window.look()->theme().name;
    bool good = true;
    for (const Theme &theme : Look::themes()) {
        window.look()->setTheme(theme.name);
        good = good && savePages(window, directory, theme.name);
    }
    window.look()->setTheme(chosen);
    window.lock();
    return good && save(window, directory, "lock");
}
