#ifndef STRETCHEDPICTURE_P_H
#define STRETCHEDPICTURE_P_H

#include "kept_p.h"

#include <QPainter>
#include <QPainterPath>

namespace ZIRVOUI {

/*! Draws a picture as the painter scales it, and keeps what it has scaled. */
class StretchedPicture
{
public:
    /*! What reaches beyond \a bounds may be of any size: it is scaled each time. */
    void draw(QPainter &painter, const QRectF &target, const QPixmap &picture,
              const QRectF &bounds);

private:
    Kept<QPixmap, qint64, QSizeF, double, QPainter::RenderHints, QPainterPath> m_scaled;
};

} // namespace ZIRVOUI

#endif
