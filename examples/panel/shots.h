#ifndef SHOTS_H
#define SHOTS_H

class PanelWindow;
class QString;

/*!
 * Writes PNG files to \a directory: each page and the lock screen in every theme.
 *
 * At the first that cannot be written, says so and returns false.
 */
bool writeShots(PanelWindow &window, const QString &directory);

#endif
