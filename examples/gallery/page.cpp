#include "page.h"

#include <QGridLayout>
#include <QScrollBar>
#include <QScroller>

namespace {

constexpr int Margin = 16;
constexpr int Columns = 2;

} // namespace

Page::Page(const QString &title, QWidget *parent)
    : QScrollArea(parent)
    , m_title(title)
{
    auto *content = new QWidget;
    m_grid = new QGridLayout(content);
    m_grid->setContentsMargins(0, Margin, Margin, Margin);
    m_grid->setSpacing(Margin);
    for (int i = 0; i < Columns; ++i)
        m_grid->setColumnStretch(i, 1);

    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Queued: while it is being laid out, a page that fits may seem not to.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &Page::scrollByFinger,
            Qt::QueuedConnection);
}

QString Page::title() const
{
    return m_title;
}

QList<Exhibit *> Page::exhibits() const
{
    return m_exhibits;
}

Exhibit *Page::addExhibit(const QString &name, const QString &description, Exhibit::Width width)
{
    const int span = width == Exhibit::Full ? Columns : 1;
    if (m_nextCell % Columns + span > Columns)
        ++m_nextCell;

    auto *exhibit = new Exhibit(name, description, width);
    m_grid->addWidget(exhibit, m_nextCell / Columns, m_nextCell % Columns, 1, span);
    m_nextCell += span;
    m_exhibits.append(exhibit);
    return exhibit;
}

// A scroller delays every tap, which a page that fits need not suffer.
void Page::scrollByFinger()
{
    if (verticalScrollBar()->maximum() > 0)
        QScroller::grabGesture(viewport(), QScroller::LeftMouseButtonGesture);
    else
        QScroller::ungrabGesture(viewport());
}
