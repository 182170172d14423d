#include "controlpanel.h"
#include "look.h"
#include "page.h"
#include "rangepage.h"
#include "zscrollbar.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>

using ZIRVOUI::ZScrollBar;

namespace {

constexpr int LiveColumns = 4;
constexpr int LiveWidth = 904;
constexpr int BarWidth = 224;
constexpr int BarHeight = 20;
constexpr int BarMaximum = 100;
constexpr int BarPageStep = 40;
constexpr int AreaColumns = 2;
constexpr QSize AreaSize(440, 160);
constexpr QSize PictureSize(520, 208);

ZScrollBar *newBar(int width)
{
    auto *bar = new ZScrollBar(Qt::Horizontal);
    bar->setMaximum(BarMaximum);
    bar->setPageStep(BarPageStep);
    bar->setValue(BarMaximum / 2);
    bar->setFixedSize(width, BarHeight);
    return bar;
}

ZScrollBar *addBar(Exhibit *exhibit, const QString &caption)
{
    ZScrollBar *bar = newBar(BarWidth);
    exhibit->addSpecimen(caption, bar);
    return bar;
}

void setGround(ZScrollBar *bar, QRgb color)
{
    QPalette palette = bar->palette();
    palette.setColor(QPalette::Window, color);
    bar->setPalette(palette);
}

// The handle of a bar in the middle of its range is in the bar's middle.
void sendToHandle(ZScrollBar *bar, QEvent::Type type, Qt::MouseButton button)
{
    QMouseEvent event(type, bar->rect().center(), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(bar, &event);
}

QScrollArea *newArea()
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    // Bars that come as needed come in a queued call, for which no shot waits.
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    area->setFixedSize(AreaSize);
    return area;
}

void addArea(Exhibit *exhibit, const QString &caption, QScrollArea *area)
{
    auto *picture = new QLabel;
    picture->setPixmap(QPixmap(":/gallery/hills.png")
                           .scaled(PictureSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    area->setWidget(picture);
    exhibit->addSpecimen(caption, area, AreaColumns);
}

void addAreas(Exhibit *exhibit)
{
    QScrollArea *area = newArea();
    area->setHorizontalScrollBar(new ZScrollBar(Qt::Horizontal));
    area->setVerticalScrollBar(new ZScrollBar(Qt::Vertical));
    addArea(exhibit, "In a scroll area", area);
    addArea(exhibit, "Stock scroll bars", newArea());
}

void addBarSpecimens(Exhibit *exhibit)
{
    addBar(exhibit, "Plain");
    sendToHandle(addBar(exhibit, "Under the pointer"), QEvent::MouseMove, Qt::NoButton);
    sendToHandle(addBar(exhibit, "Pressed"), QEvent::MouseButtonPress, Qt::LeftButton);

    ZScrollBar *colored = addBar(exhibit, "Other colours");
    setGround(colored, Look::Card);
    colored->setBackGroudColor(Look::Gray);
    colored->setSliderColor(Look::Accent);
}

void addBarControls(ControlPanel *controls, ZScrollBar *bar)
{
    controls->addNumber("Value", 0, 200, BarMaximum / 2, [=](int value) { bar->setValue(value); });
    controls->addNumber("Page step", 0, 200, BarPageStep,
                        [=](int step) { bar->setPageStep(step); });
    controls->addNumber("Maximum", 0, 200, BarMaximum,
                        [=](int maximum) { bar->setMaximum(maximum); });
    controls->addColor("Track", fillColors(),
                       [=](const QColor &color) { bar->setBackGroudColor(color); });
    controls->addColor("Handle", lineColors(),
                       [=](const QColor &color) { bar->setSliderColor(color); });
    controls->addRow("Signal", newValueReading(bar));
}

} // namespace

void addZScrollBar(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZScrollBar", "A scroll bar with a rounded handle that darkens under the pointer",
        Exhibit::Full);
    ZScrollBar *live = newBar(LiveWidth);
    exhibit->addSpecimen("Live", live, LiveColumns);
    addAreas(exhibit);
    addBarSpecimens(exhibit);
    addBarControls(exhibit->controls(), live);
}
