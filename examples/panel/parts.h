// The parts that all pages are made of.
#ifndef PARTS_H
#define PARTS_H

#include <QString>

class Look;
class QBoxLayout;
class QLabel;
class QLayout;
class QScrollArea;
class QWidget;

namespace ZIRVOUI {
class SwitchButton;
class ZButton;
class ZClickLabel;
class ZSlider;
} // namespace ZIRVOUI

namespace Parts {

constexpr int Gap = 24; // between cards, and between the rows of a card
constexpr int CardMargin = 32;
constexpr int Radius = 16;
constexpr int Finger = 64; // the height of what is tapped

constexpr int TitleSize = 34; // px
constexpr int TextSize = 22;
constexpr int CaptionSize = 18;

/*! A widget with \a content on a ground, which is as large as the widget. */
QWidget *newGrounded(ZIRVOUI::ZClickLabel *ground, QLayout *content);
/*! The same with a rounded ground and a margin. */
QWidget *newCard(Look *look, QLayout *content);
/*! A column that begins with a \a title, and is the layout of \a page. */
QBoxLayout *newPage(QWidget *page, const QString &title);

QLabel *newText(const QString &text, int pixelSize = TextSize);
/*! A text that explains another one. */
QLabel *newCaption(Look *look, const QString &text);

ZIRVOUI::ZButton *newButton(Look *look, const QString &text);
ZIRVOUI::SwitchButton *newSwitch(Look *look, bool on);
ZIRVOUI::ZSlider *newSlider(Look *look, int minimum, int maximum, int value);

/*! An area that a finger scrolls; setScrolled() fills it. */
QScrollArea *newScroller(Look *look);
void setScrolled(QScrollArea *scroller, QWidget *content);

/*! A caption at the left and what it tells of at the right. */
QBoxLayout *newRow(const QString &text, QWidget *control);

} // namespace Parts

#endif
