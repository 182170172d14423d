#include <QAccessible>
#include <QLibrary>
#include <QtTest>

// An application that unloads a plugin which had brought the library along goes on without it.
int main(int argc, char **argv)
{
    QLibrary library(QStringLiteral(LIBRARY_FILE));
    if (!library.load())
        qFatal("%s", qPrintable(library.errorString()));
    for (int i = 0; i < 2; ++i) {
        const QApplication application(argc, argv);
        library.unload();
        QWidget widget;
        if (QAccessible::queryAccessibleInterface(&widget)->role() != QAccessible::Client)
            return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
