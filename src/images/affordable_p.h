#ifndef AFFORDABLE_P_H
#define AFFORDABLE_P_H

namespace ZIRVOUI {

/*! Whether a picture of this size is worth its memory: 64 million pixels are a quarter gigabyte. */
inline bool isAffordable(double width, double height)
{
    constexpr double MostPixels = 64e6;
    return width * height <= MostPixels;
}

} // namespace ZIRVOUI

#endif
