#ifndef LOOK_H
#define LOOK_H

#include <QColor>
#include <QStringList>

class QApplication;
class QLabel;
class QWidget;

/*! The colours of a device in the dark; those of the stock controls stand in gallery.qss. */
namespace Look {

constexpr QRgb Ground = 0xff14161a;
constexpr QRgb Card = 0xff25292f;
constexpr QRgb Field = 0xff343941;
constexpr QRgb Ink = 0xfff1f3f5;
constexpr QRgb QuietInk = 0xffa3acb7;
constexpr QRgb Accent = 0xff4da3ff;

// Of specimens that show another colour than their own.
constexpr QRgb Gray = 0xff3f4650;
constexpr QRgb Blue = 0xff1f5fae;
constexpr QRgb Yellow = 0xffebc232;

} // namespace Look

/*! Style, palette and font of the whole application. */
void applyLook(QApplication &app);

/*!
 * Dresses the stock controls in \a panel, which the style sheet knows by its object name.
 *
 * Only such panels get the sheet, so that the specimens look as they do in any application.
 */
void dressControls(QWidget *panel, const QString &objectName);

/*! Choices for a specimen's background, and for its text and lines on that. */
QStringList fillColors();
QStringList lineColors();

QLabel *newText(const QString &text, int pixelSize, QRgb color);

#endif
