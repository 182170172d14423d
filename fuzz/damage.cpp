#include "samples.h"

#include <random>

namespace {

constexpr int Variants = 20; // of each kind of file
constexpr int Deep = 20000; // elements within each other
// HTML is trusted: Qt's layout of nested tables takes exponential time, of nested blocks square.
constexpr int DeepHtml = 500;
constexpr int DeepTables = 8;
constexpr int HugeSide = 50000; // 2.5 thousand million pixels

QByteArray spoilt(QByteArray bytes, unsigned seed)
{
    std::minstd_rand random(seed);
    for (int i = 1 + int(random() % 4); i > 0; --i) {
        const int place = int(random() % unsigned(bytes.size()));
        const int length = int(random() % 24);
        switch (random() % 5) {
        case 0:
            bytes[place] = char(random());
            break;
        case 1:
            bytes.remove(place, length);
            break;
        case 2:
            bytes.insert(place, bytes.mid(int(random() % unsigned(bytes.size())), length));
            break;
        case 3:
            bytes.insert(place, QByteArray::number(1u << (random() % 32)) + "e9");
            break;
        default:
            bytes.truncate(qMax(1, place));
        }
        bytes.append(' '); // there is always a byte to damage
    }
    return bytes;
}

QByteArray bigEndian(int value)
{
    return {QByteArray(1, char(value >> 24)) + char(value >> 16) + char(value >> 8) + char(value)};
}

// Only a header: it promises the pixels, and its checksum is right.
QByteArray hugePng()
{
    QByteArray header = "IHDR" + bigEndian(HugeSide) + bigEndian(HugeSide);
    header += QByteArray::fromHex("0806000000");
    const QByteArray rest = Samples::png().mid(33);
    return Samples::png().left(8) + bigEndian(13) + header + bigEndian(int(Samples::crc32(header)))
        + rest;
}

QByteArray hugeGif()
{
    QByteArray bytes = Samples::gif();
    const QByteArray side = QByteArray::fromHex("ffff");
    bytes.replace(6, 2, side).replace(8, 2, side); // of the screen
    const int frame = bytes.indexOf(QByteArray::fromHex("2c00000000"));
    return bytes.replace(frame + 5, 2, side).replace(frame + 7, 2, side);
}

QByteArray svgOf(const QByteArray &attributes, const QByteArray &content)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        + attributes + ">" + content + "</svg>";
}

QByteArray doublingEntities()
{
    QByteArray entities = "<!ENTITY e0 'aaaaaaaaaa'>";
    for (int i = 1; i < 30; ++i) {
        const QByteArray last = "&e" + QByteArray::number(i - 1) + ";";
        entities += "<!ENTITY e" + QByteArray::number(i) + " '" + last + last + "'>";
    }
    return "<!DOCTYPE svg [" + entities + "]>" + svgOf("", "<text>&e29;</text>");
}

std::vector<Samples::File> tricks()
{
    const QByteArray rect = "<rect width='9' height='9'/>";
    const QByteArray selfUse = "<g id='a'><use xlink:href='#a'/></g>";
    return {
        {"empty.svg", {}},
        {"empty.png", {}},
        {"huge.png", hugePng()},
        {"huge.gif", hugeGif()},
        {"huge.svg", svgOf("width='1000000000' height='1000000000'", rect)},
        {"hugeunit.svg", svgOf("width='1e30in' height='9e99cm' viewBox='0 0 1e-30 1e-30'", rect)},
        {"negative.svg", svgOf("width='-5' height='-7' viewBox='0 0 -1 -1'", rect)},
        {"nan.svg", svgOf("width='nan' height='inf' viewBox='nan nan inf inf'", rect)},
        {"flat.svg", svgOf("width='10' height='0' viewBox='0 0 0 0'", rect)},
        {"deep.svg",
         svgOf("width='9' height='9'",
               QByteArray("<g>").repeated(Deep) + rect + QByteArray("</g>").repeated(Deep))},
        {"selfuse.svg", svgOf("width='9' height='9'", selfUse)},
        {"entities.svg", doublingEntities()},
        {"stroke.svg",
         svgOf("width='9' height='9'",
               "<path d='M0 0L9 9' stroke='red' "
               "stroke-width='1e9' stroke-dasharray='1e-9 1e-9'/>")},
        {"bomb.svgz", Samples::zipped(svgOf("width='9' height='9'", rect)).replace(10, 1, "\x05")},
        {"hugename.svg.png", hugePng()},
        {"deep.html", QByteArray("<div>").repeated(DeepHtml)},
        {"tables.html", QByteArray("<table><tr><td>").repeated(DeepTables)},
        {"lists.html", QByteArray("<ul><li>").repeated(DeepHtml)},
        {"spans.html", "<table><tr><td colspan=2000000000 rowspan=2000000000>a</td></tr></table>"},
        {"image.html", "<img src='huge.png' width=1000000 height=1000000><hr width=2000000000>"},
        {"font.html", "<p style='font-size:1000000px; margin:1e9px'>a"},
    };
}

} // namespace

std::vector<Samples::File> Samples::damaged()
{
    std::vector<File> files = tricks();
    const std::vector<File> samples = {{".svg", svg()},
                                       {".svgz", zipped(svg())},
                                       {".png", png()},
                                       {".gif", gif()},
                                       {".html", html()}};
    for (const File &file : samples) {
        for (int i = 1; i <= Variants; ++i)
            files.push_back({QByteArray::number(i) + file.name, spoilt(file.bytes, unsigned(i))});
    }
    return files;
}
