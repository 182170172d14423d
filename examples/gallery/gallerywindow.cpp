#include "gallerywindow.h"

#include "look.h"
#include "page.h"
#include "pages.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

struct PageEntry
{
    const char *title;
    void (*fill)(Page *page);
};

constexpr PageEntry Pages[] = {
    {"Labels", fillLabelsPage},   {"Images", fillImagesPage},     {"Dialogs", fillDialogsPage},
    {"Buttons", fillButtonsPage}, {"Progress", fillProgressPage}, {"Range", fillRangePage},
    {"Input", fillInputPage},
};

constexpr QSize ScreenSize(1280, 800);
constexpr int NavigationWidth = 200;
constexpr int NavigationMargin = 16;
constexpr int TitleSize = 26;

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : QWidget(parent)
    , m_stack(new QStackedWidget)
    , m_buttons(new QButtonGroup(this))
    , m_buttonColumn(new QVBoxLayout)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(newNavigation());
    row->addWidget(m_stack, 1);

    for (const PageEntry &entry : Pages) {
        auto *page = new Page(entry.title);
        entry.fill(page);
        addPage(page);
    }
    showPage(0);
    resize(ScreenSize);
}

QList<Page *> GalleryWindow::pages() const
{
    return m_pages;
}

void GalleryWindow::showPage(int index)
{
    m_buttons->button(index)->setChecked(true);
}

QWidget *GalleryWindow::newNavigation()
{
    auto *navigation = new QWidget;
    dressControls(navigation, "navigation");
    navigation->setFixedWidth(NavigationWidth);

    auto *column = new QVBoxLayout(navigation);
    column->setContentsMargins(NavigationMargin, NavigationMargin, NavigationMargin, 0);
    column->setSpacing(NavigationMargin);
    column->addWidget(newText("Widgets", TitleSize, Look::Ink));
    column->addLayout(m_buttonColumn);
    column->addStretch();
    return navigation;
}

void GalleryWindow::addPage(Page *page)
{
    auto *button = new QPushButton(page->title());
    button->setCheckable(true);
    m_buttonColumn->addWidget(button);
    m_buttons->addButton(button, m_pages.size());

    m_stack->addWidget(page);
    m_pages.append(page);
    connect(button, &QPushButton::toggled, page, [this, page](bool on) {
        if (on)
            m_stack->setCurrentWidget(page);
    });
}
