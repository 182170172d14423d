#ifndef LAIDOUTTEXT_P_H
#define LAIDOUTTEXT_P_H

#include <QTextLayout>

class QPainter;

namespace ZIRVOUI {

/*!
 * A text that is drawn again and again, and laid out once: to the pixel what QPainter::drawText()
 * draws for Qt::AlignVCenter with the same font and direction.
 */
class LaidOutText
{
public:
    LaidOutText(const QString &text, const QFont &font, Qt::LayoutDirection direction);

    void draw(QPainter &painter, const QRectF &rect) const;

private:
    QString m_text;
    double m_leading;
    QTextLayout m_layout;
};

} // namespace ZIRVOUI

#endif
