#include "page.h"

#include "look.h"

#include <QGridLayout>
#include <QMouseEvent>
#include <QScrollBar>
#include <QScrollerProperties>

namespace {

constexpr int Margin = 16;
constexpr int Columns = 2;

// Longer than ZButton's own: a button that scrolls the page has to notice the drag before it moves
// along with the finger.
constexpr int DragDistance = 24;

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
    dressControls(verticalScrollBar(), "scrollBar");
    setDragDistance(DragDistance);
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

int Page::fullHeight() const
{
    return widget()->minimumSizeHint().height();
}

void Page::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        scrollByFinger(QScroller::InputPress, event);
}

void Page::mouseMoveEvent(QMouseEvent *event)
{
    scrollByFinger(QScroller::InputMove, event);
}

void Page::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        scrollByFinger(QScroller::InputRelease, event);
}

void Page::setDragDistance(int pixels)
{
    QScroller *scroller = QScroller::scroller(viewport());
    QScrollerProperties properties = scroller->scrollerProperties();
    properties.setScrollMetric(QScrollerProperties::DragStartDistance,
                               pixels / scroller->pixelPerMeter().y());
    scroller->setScrollerProperties(properties);
}

void Page::scrollByFinger(QScroller::Input input, QMouseEvent *event)
{
    const auto time = qint64(event->timestamp());
    QScroller::scroller(viewport())->handleInput(input, event->localPos(), time);
}
