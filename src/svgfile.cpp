#include "readablefile_p.h"
#include "svgfile_p.h"

#include <QXmlStreamReader>

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

// Whether what Qt makes of an SVG depends on other files too.
bool refersToFiles(const QByteArray &svg)
{
    QXmlStreamReader xml(svg);
    xml.setNamespaceProcessing(false); // nor does Qt ask for declared prefixes
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.processingInstructionTarget() == QLatin1String("xml-stylesheet"))
            return true;
        if (!xml.isStartElement() || xml.name() != QLatin1String("image"))
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        const QStringRef picture = attributes.value(QLatin1String("xlink:href")).trimmed();
        if (!picture.startsWith(QLatin1String("data")))
            return true;
    }
    return false;
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
    if (bytes != m_parsed) {
        m_parsed = bytes;
        m_refersToFiles = refersToFiles(bytes);
    } else if (!animated() && !m_refersToFiles) {
        // Only a fresh parse takes an animated document back to its first frame.
        return;
    }
    // Of bytes, Qt does not know the folder that pictures are named from.
    if (m_refersToFiles)
        load(path);
    else
        load(bytes);
}

} // namespace ZIRVOUI
