#include "samplefile.h"

#include <QFile>
#include <QImage>
#include <sys/stat.h>

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

void SampleFile::writeHugePicture() const
{
    QImage picture(9000, 9000, QImage::Format_Mono);
    picture.fill(0);
    if (!picture.save(m_path, "png"))
        qFatal("Cannot write %s", qPrintable(m_path));
}

void SampleFile::makePipe() const
{
    if (mkfifo(QFile::encodeName(m_path), S_IRUSR | S_IWUSR) != 0)
        qFatal("Cannot make %s", qPrintable(m_path));
}
