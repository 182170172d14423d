#ifndef PROGRESSPAGE_H
#define PROGRESSPAGE_H

class Page;

// The exhibits of the Progress page that stand in other files than the page itself.
void addHProgressAnime(Page *page);
void addCircularLoadingWidget(Page *page);
void addLoadingWidget(Page *page);
void addRotateProgress(Page *page);

#endif
