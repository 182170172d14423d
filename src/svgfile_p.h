#ifndef SVGFILE_P_H
#define SVGFILE_P_H

#include <QByteArray>
#include <QSvgRenderer>

namespace ZIRVOUI {

/*! The rule that tells an SVG from a bitmap: ".svg" anywhere in \a path, in any case. */
bool isSvgPath(const QString &path);

/*!
 * A renderer for a file that may change between two paints: read() looks at the file every time
 * and parses it only when its bytes are not those parsed last, or refer to other files.
 */
class SvgFile : public QSvgRenderer
{
public:
    explicit SvgFile(QObject *parent = nullptr);

    /*! Makes the renderer show \a path as it is now.  Says nothing about a file it cannot read. */
    void read(const QString &path);

private:
    QByteArray m_parsed;
    bool m_refersToFiles = false;
};

} // namespace ZIRVOUI

#endif
