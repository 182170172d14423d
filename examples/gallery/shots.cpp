#include "shots.h"

#include "gallerywindow.h"
#include "page.h"

#include <QDir>
#include <QPixmap>
#include <QTextStream>

namespace {

bool save(const QPixmap &picture, const QDir &directory, const QString &name)
{
    const QString path = directory.filePath(name.toLower() + ".png");
    if (!picture.save(path, "PNG")) {
        QTextStream(stderr) << "Cannot write " << path << '\n';
        return false;
    }
    QTextStream(stdout) << path << '\n';
    return true;
}

bool savePage(GalleryWindow &window, Page *page, const QDir &directory)
{
    for (Exhibit *exhibit : page->exhibits())
        exhibit->standStill();
    if (!save(window.grab(), directory, "page-" + page->title()))
        return false;
    for (Exhibit *exhibit : page->exhibits()) {
        if (!save(exhibit->grabSpecimens(), directory, exhibit->name()))
            return false;
    }
    return true;
}

} // namespace

bool writeShots(GalleryWindow &window, const QString &directory)
{
    // No event is handled until the end: animations stay where they are, and all runs are alike.
    QDir().mkpath(directory);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();

    const QList<Page *> pages = window.pages();
    for (int i = 0; i < pages.size(); ++i) {
        window.showPage(i);
        if (!savePage(window, pages.at(i), directory))
            return false;
    }
    return true;
}
