#ifndef AFFORDABLE_P_H
#define AFFORDABLE_P_H

#include "readablefile_p.h"

#include <QImageReader>
#include <QPixmap>

namespace ZIRVOUI {

/*! Whether a picture of this size is worth its memory: 64 million pixels are a quarter gigabyte. */
inline bool isAffordable(double width, double height)
{
    constexpr double MostPixels = 64e6;
    return width * height <= MostPixels;
}

/*! Whether the header promises an affordable picture; one without a size may be anything. */
inline bool isAffordable(const QImageReader &reader)
{
    const QSize size = reader.size();
    return isAffordable(size.width(), size.height());
}

/*! The bitmap at \a path; a null one if that cannot be read, or is too large by its header. */
inline QPixmap affordableBitmap(const QString &path)
{
    if (!isReadableFile(path) || !isAffordable(QImageReader(path)))
        return {};
    return QPixmap(path);
}

} // namespace ZIRVOUI

#endif
