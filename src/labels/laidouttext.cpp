#include "laidouttext_p.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

namespace ZIRVOUI {

namespace {

constexpr double UnlimitedWidth = 0x01000000; // pixels, as far as QPainter goes
constexpr QChar VariantSeparator(0x9c);

QString drawable(QString text)
{
    text.replace(QChar::CarriageReturn, QChar::Space).replace(QChar::Tabulation, QChar::Space);
    return text.replace(QChar::LineFeed, QChar::LineSeparator);
}

double heightOf(const QTextLine &line)
{
    return line.ascent() + line.descent();
}

} // namespace

LaidOutText::LaidOutText(const QString &text, const QFont &font, Qt::LayoutDirection direction)
    : m_text(text)
    , m_leading(QFontMetricsF(font).leading())
    , m_layout(drawable(text), font)
{
    QTextOption option(Qt::AlignLeft);
    option.setTextDirection(direction);
    m_layout.setTextOption(option);
    m_layout.setCacheEnabled(true);

    double bottom = -m_leading;
    m_layout.beginLayout();
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLineWidth(UnlimitedWidth);
        line.setPosition({0, double(qCeil(bottom + m_leading))});
        bottom = line.y() + heightOf(line);
    }
    m_layout.endLayout();
}

void LaidOutText::draw(QPainter &painter, const QRectF &rect) const
{
    // These are left to Qt: they are placed by what only it knows.
    if (painter.layoutDirection() == Qt::RightToLeft || m_text.contains(VariantSeparator)) {
        painter.drawText(rect, Qt::AlignVCenter, m_text);
        return;
    }

    // The lines that begin within the height are centered, and the others left out.
    QSizeF size;
    int count = 0;
    while (count < m_layout.lineCount() && (count == 0 || size.height() < rect.height())) {
        const QTextLine line = m_layout.lineAt(count++);
        size.setHeight(line.y() + heightOf(line));
        size.setWidth(qMax(size.width(), line.naturalTextWidth()));
    }
    const QPointF origin(rect.x(), rect.y() + (rect.height() - size.height()) / 2);

    painter.save();
    if (!rect.contains({origin, size}))
        painter.setClipRect(rect, Qt::IntersectClip);
    for (int i = 0; i < count; ++i)
        m_layout.lineAt(i).draw(&painter, origin);
    painter.restore();
}

} // namespace ZIRVOUI
