#ifndef LABELSPAGE_H
#define LABELSPAGE_H

class Page;

// The exhibits of the Labels page that stand in other files than the page itself.
void addZAdjustFontLabel(Page *page);
void addZScrollLabel(Page *page);
void addZResizableLabel(Page *page);
void addCommonLabelWidget(Page *page);
void addZTextWidget(Page *page);

#endif
