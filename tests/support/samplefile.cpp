#include "samplefile.h"

#include <QFile>

void SampleFile::write(const QByteArray &content) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Cannot write %s", qPrintable(m_path));
}

void SampleFile::writeSvg(const char *color) const
{
    write(QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'>"
                     "<rect width='20' height='10' fill='")
          + color + "'/><ellipse cx='12' cy='5' rx='6' ry='3' fill='white'/></svg>");
}
