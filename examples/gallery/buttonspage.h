#ifndef BUTTONSPAGE_H
#define BUTTONSPAGE_H

class Page;

// The exhibits of the Buttons page that stand in other files than the page itself.
void addCircleButton(Page *page);
void addImageSwitchButton(Page *page);
void addZImageButton(Page *page);
void addZRadioButton(Page *page);
void addSwitchButton(Page *page);

#endif
