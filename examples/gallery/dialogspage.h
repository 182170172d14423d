#ifndef DIALOGSPAGE_H
#define DIALOGSPAGE_H

class Page;

// The exhibit of the Dialogs page that stands in another file than the page itself.
void addZLoadingDialog(Page *page);

#endif
