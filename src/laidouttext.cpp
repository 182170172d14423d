#include "laidouttext_p.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

namespace ZIRVOUI {

namespace {

constexpr double UnlimitedWidth = 0x01000000; // pixels, as far as QPainter goes
constexpr int KnownFlags = Qt::AlignLeft | Qt::AlignRight | Qt::AlignHCenter | Qt::AlignTop
    | Qt::AlignBottom | Qt::AlignVCenter | Qt::TextWordWrap;
constexpr QChar VariantSeparator(0x9c);

// Whether Qt places it by what is public.
bool isPlain(const QPainter &painter, int flags, const QString &text)
{
    return (flags & ~KnownFlags) == 0 && painter.layoutDirection() != Qt::RightToLeft
        && !((flags & Qt::AlignRight) && text.isRightToLeft()) && !text.contains(VariantSeparator);
}

QString drawable(QString text)
{
    text.replace(QChar::CarriageReturn, QChar::Space).replace(QChar::Tabulation, QChar::Space);
    return text.replace(QChar::LineFeed, QChar::LineSeparator);
}

double heightOf(const QTextLine &line)
{
    return line.ascent() + line.descent();
}

std::unique_ptr<QTextLayout> laidOut(const QString &text, const QFont &font,
                                     Qt::LayoutDirection direction, double width)
{
    auto layout = std::make_unique<QTextLayout>(drawable(text), font);
    QTextOption option(Qt::AlignLeft);
    option.setTextDirection(direction);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);

    const double leading = QFontMetricsF(font).leading();
    double bottom = -leading;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, double(qCeil(bottom + leading))});
        bottom = line.y() + heightOf(line);
    }
    layout->endLayout();
    return layout;
}

// How much of the room there is lies before the text.
double before(double room, int flags, int middle, int end)
{
    if (flags & end)
        return room;
    return flags & middle ? room / 2 : 0;
}

void drawLines(QPainter &painter, const QRectF &rect, int flags, const QTextLayout &lines)
{
    const auto left = [&](double width) {
        return rect.x() + before(rect.width() - width, flags, Qt::AlignHCenter, Qt::AlignRight);
    };

    // Lines that begin below the rectangle take no part.
    QSizeF size;
    int count = 0;
    while (count < lines.lineCount() && (count == 0 || size.height() < rect.height())) {
        const QTextLine line = lines.lineAt(count++);
        size.setHeight(line.y() + heightOf(line));
        size.setWidth(qMax(size.width(), line.naturalTextWidth()));
    }
    const double top = rect.y()
        + before(rect.height() - size.height(), flags, Qt::AlignVCenter, Qt::AlignBottom);

    const bool clips = !rect.contains({{left(size.width()), top}, size});
    if (clips) {
        painter.save();
        painter.setClipRect(rect, Qt::IntersectClip);
    }
    for (int i = 0; i < count; ++i) {
        const QTextLine line = lines.lineAt(i);
        line.draw(&painter, {left(line.horizontalAdvance()), top});
    }
    if (clips)
        painter.restore();
}

} // namespace

void LaidOutText::draw(QPainter &painter, const QRectF &rect, int flags, const QString &text)
{
    if (text.isEmpty())
        return;
    if (!isPlain(painter, flags, text)) {
        painter.drawText(rect, flags, text);
        return;
    }
    const double width = flags & Qt::TextWordWrap ? qMax(0.0, rect.width()) : UnlimitedWidth;
    const auto direction = painter.layoutDirection();
    const auto &lines = m_lines.of({text, painter.font(), direction, width},
                                   [&] { return laidOut(text, painter.font(), direction, width); });
    drawLines(painter, rect, flags, *lines);
}

} // namespace ZIRVOUI
