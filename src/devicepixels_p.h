#ifndef DEVICEPIXELS_P_H
#define DEVICEPIXELS_P_H

class QPainter;
class QRectF;

namespace ZIRVOUI {

/*! How many pixels of the device under \a painter a pixel of its coordinates takes. */
double pixelRatio(const QPainter &painter);

/*!
 * Whether \a rect has its edges between pixels of the device, which is neither turned nor
 * magnified: at a ratio of 1.5 only every second rectangle is such.
 */
bool takesWholePixels(const QPainter &painter, const QRectF &rect);

/*!
 * Whether Qt adds both a drawing and pixels of it to what is under \a painter without rounding in
 * between.  Printers and other painters of shapes do not, and are to get the drawing.
 */
bool addsExactPixels(const QPainter &painter);

} // namespace ZIRVOUI

#endif
