#include "samples.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

quint32 Samples::crc32(const QByteArray &bytes)
{
    constexpr quint32 Polynomial = 0xedb88320;
    quint32 crc = ~0u;
    for (const char byte : bytes) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? Polynomial : 0);
    }
    return ~crc;
}

QByteArray Samples::svg()
{
    return R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="12" height="10" viewBox="0 0 12 10">
<defs><linearGradient id="g"><stop offset="0" stop-color="red"/><stop offset="1" stop-color="#00f"/>
</linearGradient></defs><g transform="rotate(10) scale(0.9)" opacity="0.8">
<rect x="1" y="1" width="9" height="7" rx="2" fill="url(#g)" stroke="green" stroke-width="0.5"/>
<path d="M1 1 L5 5 C2 2 3 3 4 1 A2 2 0 0 1 6 6 Z"/><circle cx="5" cy="5" r="2"/>
<text x="1" y="8" font-size="4">a</text></g></svg>)svg";
}

QByteArray Samples::png()
{
    QImage image(6, 5, QImage::Format_ARGB32);
    image.fill(0x80ff8000);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray Samples::gif()
{
    return QByteArray::fromHex("474946383961" // header
                               "02000200800000"
                               "000000ffffff" // 2 × 2, two colours
                               "21ff0b4e45545343415045322e300301000000" // for ever
                               "21f904000a000000"
                               "2c000000000200020000"
                               "02028451"
                               "00"
                               "21f904000a000000"
                               "2c000000000200020000"
                               "02028c53"
                               "00"
                               "3b");
}

QByteArray Samples::html()
{
    return "<h1>Title</h1><p style='font-size:8px;color:red'>a <b>b</b> <i>c</i> &amp; &#955;</p>"
           "<table border=1 width='50%'><tr><td colspan=2>1</td></tr></table>"
           "<ul><li>x<ol><li>y</ol></ul><img src='missing.png' width=4><a href='#'>z</a>";
}

QByteArray Samples::zipped(const QByteArray &bytes)
{
    QByteArray result = QByteArray::fromHex("1f8b0800000000000003"
                                            "01");
    QDataStream stream(&result, QIODevice::Append);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(bytes.size()) << quint16(~bytes.size());
    stream.writeRawData(bytes.constData(), bytes.size());
    stream << crc32(bytes) << quint32(bytes.size());
    return result;
}

void Samples::write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

const QStringList &Samples::paths()
{
    static const QTemporaryDir folder;
    static const QStringList paths = [] {
        const std::vector<File> files = {
            {"a.svg", svg()}, {"a.svgz", zipped(svg())},    {"a.png", png()},
            {"a.gif", gif()}, {"cut.svg", svg().left(200)}, {"svg.png", svg()},
        };
        QStringList written = {{}, folder.path(), folder.filePath("missing.svg")};
        for (const File &file : files) {
            written.append(folder.filePath(file.name));
            write(written.last(), file.bytes);
        }
        return written;
    }();
    return paths;
}
