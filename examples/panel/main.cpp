#include "panelwindow.h"
#include "shots.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QScreen>

namespace {

constexpr int FontSize = 22; // px

void applyStyle(QApplication &app)
{
    QApplication::setStyle("Fusion");
    QFont font = QApplication::font();
    font.setPixelSize(FontSize);
    app.setFont(font);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    app.setApplicationName("panel");
    app.setOrganizationName("panel"); // the folder of the settings
    app.setApplicationDisplayName("Panel");

    QCommandLineParser parser;
    parser.setApplicationDescription("The settings of a device with a touch screen.");
    parser.addHelpOption();
    const QCommandLineOption shots("shots", "Write pictures of all pages, then quit.", "directory");
    parser.addOption(shots);
    parser.process(app);

    applyStyle(app);
    PanelWindow window;
    if (parser.isSet(shots))
        return writeShots(window, parser.value(shots)) ? EXIT_SUCCESS : EXIT_FAILURE;

    const QSize screen = QGuiApplication::primaryScreen()->size();
    if (screen.boundedTo(window.size()) == screen)
        window.showFullScreen();
    else
        window.show();
    return app.exec();
}
