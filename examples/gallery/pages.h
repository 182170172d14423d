#ifndef PAGES_H
#define PAGES_H

class Page;

// Each fills its page with the widgets of the source folder it is named after.
void fillLabelsPage(Page *page);
void fillImagesPage(Page *page);
void fillDialogsPage(Page *page);
void fillButtonsPage(Page *page);
void fillProgressPage(Page *page);
void fillRangePage(Page *page);
void fillInputPage(Page *page);

#endif
