#ifndef READABLEFILE_P_H
#define READABLEFILE_P_H

#include <QFile>
#include <QFileInfo>

namespace ZIRVOUI {

/*!
 * Whether reading the file at \a path comes to an end: who opens a pipe waits for its writer, and a
 * device may go on for ever.  A missing one may be tried: Qt finds bitmaps without their suffix.
 */
inline bool isReadableFile(const QString &path)
{
    // Qt prints a warning for a name that is empty or holds a NUL.
    if (path.isEmpty() || path.contains(QChar::Null))
        return false;
    const QFileInfo file(path);
    return file.isFile() || !file.exists();
}

/*! All that is in the file at \a path; nothing if that cannot be read. */
inline QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    const bool isOpen = isReadableFile(path) && file.open(QIODevice::ReadOnly);
    return isOpen ? file.readAll() : QByteArray();
}

} // namespace ZIRVOUI

#endif
