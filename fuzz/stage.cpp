#include "stage.h"

#include "virtualtime.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

VirtualTime *currentTime = nullptr;
QWidget *stageWindow = nullptr;

int leniencies = 0;

// What no call of the library could prevent.
const char *const ExpectedWarnings[] = {
    "This plugin does not support", // the offscreen display, of raising and hints
    "OpenType support missing for ", // a family that does not know a script
    "QWidget::setWindowModified: ", // told when a window is created whose title has no place for it
    "QWidgetLineControl::setSelection: ", // a stock line edit, of positions far away
    "The largest allowed size is ", // a layout, of parts that are each as large as a widget can be
    "Negative sizes (", // a layout whose margins are negative, of a shadow's negative width
};

bool isExpected(const QMessageLogContext &context, const QString &text)
{
    // What is wrong with a file is told by Qt's readers.
    if (context.category && QByteArray(context.category).startsWith("qt.svg"))
        return true;
    return std::any_of(std::begin(ExpectedWarnings), std::end(ExpectedWarnings),
                       [&](const char *part) { return text.contains(QLatin1String(part)); });
}

void endOnWarning(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtDebugMsg || type == QtInfoMsg || leniencies > 0 || isExpected(context, text))
        return;
    fprintf(stderr, "Qt prints: %s\n", qPrintable(text));
    std::abort();
}

} // namespace

void Stage::open()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};

    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.debug=false");
    currentTime = new VirtualTime;
    QCoreApplication::setEventDispatcher(currentTime);
    new QApplication(count, arguments);
    QApplication::setStyle(QStringLiteral("Fusion"));
    currentTime->driveAnimations();

    constexpr int Side = 100;
    stageWindow = new QWidget;
    stageWindow->setAttribute(Qt::WA_DontShowOnScreen);
    stageWindow->resize(Side, Side);
    stageWindow->show();
    QApplication::setActiveWindow(stageWindow);
    qInstallMessageHandler(endOnWarning);
}

QWidget *Stage::window()
{
    return stageWindow;
}

VirtualTime &Stage::time()
{
    return *currentTime;
}

Stage::Leniency::Leniency()
{
    ++leniencies;
}

Stage::Leniency::~Leniency()
{
    --leniencies;
}

void Stage::clear()
{
    VirtualTime::settle();
    // A single shot lives until its time, even if whom it was for is gone.
    for (QObject *child : currentTime->children()) {
        if (child->inherits("QSingleShotTimer"))
            delete child;
    }
    stageWindow->setEnabled(true);
    stageWindow->show();
    QApplication::setActiveWindow(stageWindow);
    // Else Qt may give the focus to a new widget at the address of one that has died hidden.
    stageWindow->setFocus();
    stageWindow->clearFocus();
}
