#include "samplefile.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <sys/stat.h>

SampleFile::SampleFile(const QString &name, const QByteArray &content)
    : m_path(m_folder.filePath(name))
{
    if (!content.isEmpty())
        write(content);
}

void SampleFile::write(const QByteArray &content) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Cannot write %s", qPrintable(m_path));
}

void SampleFile::makePipe() const
{
    if (mkfifo(QFile::encodeName(m_path), S_IRUSR | S_IWUSR) != 0)
        qFatal("Cannot make %s", qPrintable(m_path));
}

QByteArray sampleSvg(const char *color)
{
    return QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'>"
                      "<rect width='20' height='10' fill='")
        + color + "'/><ellipse cx='12' cy='5' rx='6' ry='3' fill='white'/></svg>";
}

QByteArray hugePicture()
{
    QImage picture(9000, 9000, QImage::Format_Mono);
    picture.fill(0);
    QBuffer file;
    if (!picture.save(&file, "png"))
        qFatal("Cannot write a huge picture");
    return file.data();
}
