#ifndef LAIDOUTTEXT_P_H
#define LAIDOUTTEXT_P_H

#include "kept_p.h"

#include <QFont>
#include <QTextLayout>
#include <memory>

class QPainter;

namespace ZIRVOUI {

/*! Draws a text as QPainter::drawText() does, to the pixel, and keeps what it has laid out. */
class LaidOutText
{
public:
    /*! Flags other than alignments and Qt::TextWordWrap are left to Qt, and laid out each time. */
    void draw(QPainter &painter, const QRectF &rect, int flags, const QString &text);

private:
    Kept<std::unique_ptr<QTextLayout>, QString, QFont, Qt::LayoutDirection, double> m_lines;
};

} // namespace ZIRVOUI

#endif
