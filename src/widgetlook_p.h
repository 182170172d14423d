#ifndef WIDGETLOOK_P_H
#define WIDGETLOOK_P_H

#include <QWidget>

namespace ZIRVOUI {

/*! Gives \a widget its own font at \a size pixels; 0 and less, which Qt refuses, keep the size. */
void setFontPixelSize(QWidget &widget, int size);

/*! Sets \a brush for \a role in all colour groups of the widget's palette. */
void setPaletteBrush(QWidget &widget, QPalette::ColorRole role, const QBrush &brush);

} // namespace ZIRVOUI

#endif
