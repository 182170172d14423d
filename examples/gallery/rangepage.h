#ifndef RANGEPAGE_H
#define RANGEPAGE_H

class Page;
class QAbstractSlider;
class QLabel;

// The exhibit of the Range page that stands in another file than the page itself.
void addZScrollBar(Page *page);

/*! Shows the value that \a slider told last. */
QLabel *newValueReading(QAbstractSlider *slider);

#endif
