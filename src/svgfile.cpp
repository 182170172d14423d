#include "readablefile_p.h"
#include "svgfile_p.h"

namespace ZIRVOUI {

namespace {

bool isCompressedPath(const QString &path)
{
    return path.endsWith(QLatin1String(".svgz"), Qt::CaseInsensitive)
        || path.endsWith(QLatin1String(".svg.gz"), Qt::CaseInsensitive);
}

QByteArray svgBytes(const QString &path)
{
    // By path, QSvgRenderer lets the name decide whether a file is compressed; by bytes, the
    // content.  Where the two differ the path would have drawn nothing.
    const QByteArray bytes = fileBytes(path);
    return bytes.startsWith("\x1f\x8b") == isCompressedPath(path) ? bytes : QByteArray();
}

} // namespace

bool isSvgPath(const QString &path)
{
    return path.contains(QLatin1String(".svg"), Qt::CaseInsensitive);
}

SvgFile::SvgFile(QObject *parent)
    : QSvgRenderer(parent)
{
    // At any other rate, parsing an animated document starts a timer that nobody listens to.
    setFramesPerSecond(0);
}

void SvgFile::read(const QString &path)
{
    const QByteArray bytes = svgBytes(path);

    // Only a fresh parse takes an animated document back to its first frame.
    if (bytes == m_parsed && !animated())
        return;
    m_parsed = bytes;
    load(bytes);
}

} // namespace ZIRVOUI
