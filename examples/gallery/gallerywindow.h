#ifndef GALLERYWINDOW_H
#define GALLERYWINDOW_H

#include <QWidget>

class Page;
class QButtonGroup;
class QStackedWidget;
class QVBoxLayout;

/*! The whole screen: the choice of pages at the left, the chosen page beside it. */
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    QList<Page *> pages() const;
    /*! Shows the page at \a index of pages(), and its button as pressed. */
    void showPage(int index);

private:
    QWidget *newNavigation();
    void addPage(Page *page);

    QStackedWidget *m_stack;
    QButtonGroup *m_buttons;
    QVBoxLayout *m_buttonColumn;
    QList<Page *> m_pages;
};

#endif
