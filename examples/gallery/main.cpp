#include "gallerywindow.h"
#include "look.h"
#include "shots.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QScreen>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    app.setApplicationName("gallery");
    app.setApplicationDisplayName("Widget gallery");

    QCommandLineParser parser;
    parser.setApplicationDescription("Shows every widget of the library in its states.");
    parser.addHelpOption();
    const QCommandLineOption shots("shots", "Write pictures of all pages and widgets, then quit.",
                                   "directory");
    parser.addOption(shots);
    parser.process(app);

    applyLook(app);
    GalleryWindow window;
    if (parser.isSet(shots))
        return writeShots(window, parser.value(shots)) ? EXIT_SUCCESS : EXIT_FAILURE;

    // A frame would push the window beyond the edges of a device's screen.
    const QSize screen = QGuiApplication::primaryScreen()->size();
    if (screen.boundedTo(window.size()) == screen)
        window.showFullScreen();
    else
        window.show();
    return app.exec();
}
