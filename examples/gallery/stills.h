#ifndef STILLS_H
#define STILLS_H

#include <QPixmap>

class QWidget;

/*! Stops the running animations of \a widget at \a ms of their time. */
void freeze(QWidget *widget, int ms);
/*! The caption of a specimen that is frozen at \a ms. */
QString instantText(int ms);

/*! What \a widget shows at this instant, scaled to \a size; see-through where it draws nothing. */
QPixmap miniature(QWidget &widget, const QSize &size);

#endif
