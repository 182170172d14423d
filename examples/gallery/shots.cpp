#include "shots.h"

#include "gallerywindow.h"
#include "page.h"

#include <QCoreApplication>
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

void showWhole(GalleryWindow &window, Page *page, const QSize &screen)
{
    window.resize(screen.width(), qMax(screen.height(), page->fullHeight()));
    // The page removes its scroll bar in a queued call.
    QCoreApplication::sendPostedEvents(page, QEvent::MetaCall);
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
    // No timer runs until the end: animations stay where they are, and all runs are alike.
    QDir().mkpath(directory);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();

    const QSize screen = window.size();
    const QList<Page *> pages = window.pages();
    for (int i = 0; i < pages.size(); ++i) {
        window.showPage(i);
        showWhole(window, pages.at(i), screen);
        if (!savePage(window, pages.at(i), directory))
            return false;
    }
    return true;
}
