#include "warnings.h"

#include <QtTest>

static QtMessageHandler previousHandler = nullptr;

static void failOnWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // What the display prints and no widget can help.
    const QRegularExpression aboutTheDisplay("propagateSizeHints|XDG_RUNTIME_DIR");
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg;
    if (isWarning && !message.contains(aboutTheDisplay))
        QTest::qFail(qPrintable("Qt printed: " + message), __FILE__, __LINE__);
    else
        previousHandler(type, context, message);
}

void failOnWarnings()
{
    previousHandler = qInstallMessageHandler(failOnWarning);
}
