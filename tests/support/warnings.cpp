#include "warnings.h"

#include <QtTest>

namespace {

QtMessageHandler previousHandler = nullptr;

// What the display prints and no widget can help.
bool isAboutTheDisplay(const QString &message)
{
    return message.contains(QLatin1String("propagateSizeHints"))
        || message.contains(QLatin1String("XDG_RUNTIME_DIR"));
}

void failOnWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg;
    if (isWarning && !isAboutTheDisplay(message))
        QTest::qFail(qPrintable("Qt printed: " + message), __FILE__, __LINE__);
    else
        previousHandler(type, context, message);
}

} // namespace

void failOnWarnings()
{
    previousHandler = qInstallMessageHandler(failOnWarning);
}
