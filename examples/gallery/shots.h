#ifndef SHOTS_H
#define SHOTS_H

class GalleryWindow;
class QString;

/*!
 * Writes PNG files to \a directory: each page of \a window, whole, and the specimens of each
 * exhibit.
 *
 * Prints the name of each file written.  At the first that cannot be, says so and returns false.
 */
bool writeShots(GalleryWindow &window, const QString &directory);

#endif
