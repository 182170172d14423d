#include "panelwindow.h"

#include "aboutpage.h"
#include "displaypage.h"
#include "lockscreen.h"
#include "networkpage.h"
#include "parts.h"
#include "storagepage.h"

#include <CircleButton>
#include <QBoxLayout>
#include <QButtonGroup>
#include <QChildEvent>
#include <QLabel>
#include <QStackedWidget>
#include <ZClickLabel>
#include <ZImageButton>
#include <ZSvgWidget>

using namespace ZIRVOUI;

namespace {

constexpr QSize ScreenSize(1280, 800);
constexpr int RailWidth = 200;
constexpr int RailMargin = 20;
constexpr QSize TileSize(160, 128);
constexpr int TileGap = 16;
constexpr QRect TileIcon(52, 18, 56, 56);
constexpr QRect TileText(0, 80, 160, 36);
constexpr int TileTextSize = 20; // px
constexpr int TimeSize = 28; // px
constexpr int LockSize = 80;
constexpr int DarkestAlpha = 240;

// The tile's own icon is drawn at the size of the tile first, which leaves rough edges.
void addIcon(ZImageButton *tile, const QString &path)
{
    auto *icon = new ZSvgWidget(path, tile);
    icon->setGeometry(TileIcon);
    icon->setAttribute(Qt::WA_TransparentForMouseEvents);
}

ZImageButton *newTile(Look *look, const QString &name, const QString &icon)
{
    auto *tile = new ZImageButton(name);
    tile->setObjectName("page " + name);
    tile->setCheckable(true);
    tile->setSignVisible(false);
    tile->setFixedSize(TileSize);
    tile->setRadius(Parts::Radius);
    tile->setTextRect(TileText);
    addIcon(tile, icon);
    QFont font = tile->font();
    font.setPixelSize(TileTextSize);
    tile->setFont(font);

    const auto paint = [look, tile] {
        const Theme &theme = look->theme();
        tile->setBgColor(tile->isChecked() ? theme.field : theme.card);
        tile->setFontColor(tile->isChecked() ? theme.ink : theme.quietInk);
    };
    QObject::connect(tile, &ZImageButton::toggled, tile, paint);
    return look->dress(tile, [paint](ZImageButton *, const Theme &) { paint(); });
}

} // namespace

PanelWindow::PanelWindow()
    : m_pages(new QStackedWidget)
    , m_tiles(new QButtonGroup(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(newRail());
    row->addWidget(m_pages, 1);

    addLockScreen();
    addDimmer();
    resize(ScreenSize);
    showPage(0);
}

QStringList PanelWindow::pageNames() const
{
    QStringList names;
    for (const QAbstractButton *tile : m_tiles->buttons())
        names.append(tile->text());
    return names;
}

void PanelWindow::showPage(int index)
{
    m_tiles->button(index)->setChecked(true);
    m_pages->setCurrentIndex(index);
}

void PanelWindow::lock()
{
    m_lockScreen->show();
}

void PanelWindow::resizeEvent(QResizeEvent *event)
{
    constexpr int Overhang = LockScreen::Overhang;
    m_lockScreen->setGeometry(rect().adjusted(-Overhang, -Overhang, Overhang, Overhang));
    m_dimmer->setGeometry(rect());
    QWidget::resizeEvent(event);
}

// The screen is dim as a whole, with all dialogs that open later.
void PanelWindow::childEvent(QChildEvent *event)
{
    if (m_dimmer && event->added())
        m_dimmer->raise();
    QWidget::childEvent(event);
}

QWidget *PanelWindow::newRail()
{
    auto *ground = m_look.dress(new ZClickLabel, [](ZClickLabel *ground, const Theme &theme) { //
        ground->setBgColor(theme.card);
    });
    auto *column = new QVBoxLayout;
    column->setContentsMargins(RailMargin, RailMargin, RailMargin, RailMargin);
    column->setSpacing(TileGap);
    addPage(column, tr("Network"), ":/panel/network.svg", new NetworkPage(&m_look));
    addPage(column, tr("Display"), ":/panel/display.svg", newDisplayPage());
    addPage(column, tr("Storage"), ":/panel/storage.svg", new StoragePage(&m_look));
    addPage(column, tr("About"), ":/panel/about.svg", new AboutPage(&m_look));
    column->addStretch();
    column->addWidget(newTime(), 0, Qt::AlignHCenter);
    column->addWidget(newLockButton(), 0, Qt::AlignHCenter);
    QWidget *rail = Parts::newGrounded(ground, column);
    rail->setFixedWidth(RailWidth);
    return rail;
}

void PanelWindow::addPage(QBoxLayout *rail, const QString &name, const QString &icon, QWidget *page)
{
    const int index = m_pages->addWidget(page);
    ZImageButton *tile = newTile(&m_look, name, icon);
    m_tiles->addButton(tile, index);
    connect(tile, &ZImageButton::clicked, m_pages, [=] { m_pages->setCurrentIndex(index); });
    rail->addWidget(tile);
}

QWidget *PanelWindow::newDisplayPage()
{
    auto *page = new DisplayPage(&m_look, &m_clock);
    connect(page, &DisplayPage::brightnessChanged, this, &PanelWindow::dim);
    return page;
}

QWidget *PanelWindow::newTime()
{
    QLabel *time = Parts::newText(m_clock.text(), TimeSize);
    connect(&m_clock, &Clock::changed, time, &QLabel::setText);
    return time;
}

QWidget *PanelWindow::newLockButton()
{
    auto *button = new CircleButton(":/panel/lock.svg");
    button->setObjectName("lock");
    button->setFixedSize(LockSize, LockSize);
    connect(button, &CircleButton::clicked, this, &PanelWindow::lock);
    return m_look.dress(button, [](CircleButton *button, const Theme &theme) {
        button->setBackgroundColor(theme.field);
    });
}

void PanelWindow::addLockScreen()
{
    m_lockScreen = new LockScreen(&m_clock, this);
    m_lockScreen->hide();
    connect(m_lockScreen, &LockScreen::opened, m_lockScreen, &QWidget::hide);
}

// Stands in for the light behind the screen, which an application cannot reach everywhere.
void PanelWindow::addDimmer()
{
    m_dimmer = new ZClickLabel(this);
    m_dimmer->setAttribute(Qt::WA_TransparentForMouseEvents);
    dim(DisplayPage::brightness());
}

void PanelWindow::dim(int brightness)
{
    const double light = double(brightness) / DisplayPage::FullBrightness;
    m_dimmer->setBgColor(QColor(0, 0, 0, qRound((1 - light) * DarkestAlpha)));
    m_dimmer->setVisible(brightness < DisplayPage::FullBrightness);
}
