#include "values.h"

#include "samples.h"

#include <QBrush>
#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <cfloat>
#include <climits>

namespace {

constexpr int Small = 160; // bytes below it stand for a small value, the others for a special one

constexpr int SpecialInts[] = {
    INT_MIN,  INT_MIN + 1, INT_MIN / 2,   -16777216,   -32769,      -1000,   255,     256,
    359,      1000,        4095,          32767,       32768,       65536,   1000000, 16777215,
    16777216, 1 << 28,     (1 << 29) + 1, INT_MAX / 2, INT_MAX - 1, INT_MAX,
};

const double SpecialDoubles[] = {
    qQNaN(), qInf(), -qInf(), DBL_MAX, -DBL_MAX, DBL_TRUE_MIN, -0.0, 1e-9, 0.1,  0.5,   0.999999,
    1.5,     1e5,    -1e5,    1e9,     -1e9,     3e9,          -3e9, 1e18, 1e38, -1e39,
};

const char *const Texts[] = {
    "",
    "a",
    "Some words to wrap",
    "192.168.1.1",
    "1.2.",
    "first\nsecond\tthird",
    "<b>rich</b> <i>text",
    "&Mnemonic && more",
    "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d (\xd8\xb3\xd9\x84\xd8\xa7\xd9\x85)",
    "\xf0\x9f\x98\x80\xe4\xb8\xad",
    "e\xcc\x81\xcc\x81\xcc\x81\xe2\x80\x8d\xe2\x80\xae",
    "%1 %s %n",
};

template <typename Table>
auto anyOf(const Table &table, int byte)
{
    return table[size_t(byte) % std::size(table)];
}

} // namespace

void Values::read(int &value)
{
    const int first = byte();
    value = first < Small ? first - Small / 4 : anyOf(SpecialInts, first - Small);
}

void Values::read(double &value)
{
    const int first = byte();
    value = first < Small ? (first - Small / 4) / 4.0 : anyOf(SpecialDoubles, first - Small);
}

void Values::read(QString &value)
{
    constexpr int LongLength = 300;
    const int first = byte();
    if (first < Small) {
        value = QString::fromUtf8(anyOf(Texts, first));
        return;
    }
    for (int i = first % 6; i > 0; --i) {
        const int row = byte();
        value += QChar(row << 8 | byte()); // a half of a surrogate pair at times
    }
    if (first % 32 == 0)
        value = value.repeated(LongLength);
}

void Values::read(QColor &value)
{
    const int first = byte();
    if (first % 8 == 0)
        return;
    value = QColor(QRgb(byte() << 16));
    value.setGreen(byte());
    value.setBlue(byte());
    value.setAlpha(first % 8 == 1 ? byte() : 255);
}

void Values::read(QPixmap &value)
{
    const int first = byte();
    if (first % 4 == 0)
        return;
    value = QPixmap(1 + first % 13, 1 + first % 7);
    value.fill(take<QColor>());
    if (first % 4 == 1)
        value.setDevicePixelRatio(2);
}

void Values::read(QBrush &value)
{
    const int kind = below(4);
    if (kind == 1)
        value = QBrush(take<QPixmap>());
    if (kind > 1)
        value = QBrush(take<QColor>(), Qt::BrushStyle(below(Qt::DiagCrossPattern + 1)));
}

void Values::read(QRect &value)
{
    // Beyond these bounds QRect itself overflows as soon as it is asked for its width.
    const auto end = [](int begin, int length) {
        const qint64 last = qint64(begin) + qMax(length, -INT_MAX) - 1;
        return int(qBound(qint64(INT_MIN), last, qint64(INT_MAX)));
    };
    const QPoint corner = take<QPoint>();
    const QSize size = take<QSize>();
    value.setCoords(corner.x(), corner.y(), end(corner.x(), size.width()),
                    end(corner.y(), size.height()));
}

void Values::read(QFont &value)
{
    // QFont itself refuses sizes of 0 and less with a warning.
    value = QFont(below(2) ? QStringLiteral("DejaVu Sans") : QStringLiteral("Liberation Sans"));
    value.setPixelSize(1 + byte() % 64);
    value.setBold(take<bool>());
    value.setItalic(take<bool>());
}

void Values::read(Qt::TextFlag &value)
{
    const int high = byte();
    value = Qt::TextFlag((high << 12 | byte() << 4) & 0xfffff);
}

QString Values::path()
{
    return Samples::paths().at(below(Samples::paths().size()));
}

QVariant Values::variant(int type)
{
    switch (type) {
    case QMetaType::Bool:
        return take<bool>();
    case QMetaType::Int:
        return take<int>();
    case QMetaType::Double:
        return take<double>();
    case QMetaType::QString:
        return take<QString>();
    case QMetaType::QColor:
        return take<QColor>();
    case QMetaType::QBrush:
        return take<QBrush>();
    case QMetaType::QPixmap:
        return take<QPixmap>();
    case QMetaType::QIcon:
        return QIcon(take<QPixmap>());
    case QMetaType::QPoint:
        return near<QPoint>();
    case QMetaType::QSize:
        return near<QSize>();
    case QMetaType::QRect:
        return geometry();
    case QMetaType::QFont:
        return take<QFont>();
    }
    return {};
}
