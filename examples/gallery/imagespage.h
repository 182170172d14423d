#ifndef IMAGESPAGE_H
#define IMAGESPAGE_H

class Page;

// The exhibits of the Images page that stand in other files than the page itself.
void addZGifWidget(Page *page);
void addMaskWidget(Page *page);

#endif
