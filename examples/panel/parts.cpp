#include "parts.h"

#include "look.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScroller>
#include <SwitchButton>
#include <ZButton>
#include <ZClickLabel>
#include <ZScrollBar>
#include <ZSlider>

using namespace ZIRVOUI;

namespace {

constexpr QSize SwitchSize(104, 60);
constexpr int SliderHeight = 48;
constexpr int GrooveThickness = 8;
constexpr int PageMargin = 40;
constexpr int ScrollBarWidth = 12;

/*! Keeps the handle of a slider at its value when a layout resizes the slider. */
class HandlePlacer : public QObject
{
public:
    explicit HandlePlacer(ZSlider *slider)
        : QObject(slider)
        , m_slider(slider)
    {
        slider->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            m_slider->calcHandlePosition();
        return false;
    }

private:
    ZSlider *m_slider;
};

} // namespace

// Side by side, not one in the other: a label does not grow with its layout, and would hand its
// palette down to what is in it.
QWidget *Parts::newGrounded(ZClickLabel *ground, QLayout *content)
{
    auto *whole = new QWidget;
    auto *cell = new QGridLayout(whole);
    cell->setContentsMargins(0, 0, 0, 0);
    ground->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    cell->addWidget(ground, 0, 0);
    cell->addLayout(content, 0, 0);
    return whole;
}

QWidget *Parts::newCard(Look *look, QLayout *content)
{
    auto *ground = look->dress(new ZClickLabel, [](ZClickLabel *ground, const Theme &theme) { //
        ground->setBgColor(theme.card);
    });
    ground->setRadius(Radius);
    content->setContentsMargins(CardMargin, CardMargin, CardMargin, CardMargin);
    return newGrounded(ground, content);
}

QBoxLayout *Parts::newPage(QWidget *page, const QString &title)
{
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(PageMargin, PageMargin, PageMargin, PageMargin);
    column->setSpacing(Gap);
    column->addWidget(newText(title, TitleSize));
    return column;
}

QLabel *Parts::newText(const QString &text, int pixelSize)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    label->setFont(font);
    return label;
}

QLabel *Parts::newCaption(Look *look, const QString &text)
{
    return look->dress(newText(text, CaptionSize), [](QLabel *label, const Theme &theme) {
        QPalette palette;
        palette.setColor(QPalette::WindowText, theme.quietInk);
        label->setPalette(palette);
    });
}

ZButton *Parts::newButton(Look *look, const QString &text)
{
    auto *button = new ZButton(text);
    button->setFixedHeight(Finger);
    button->setRadius(Radius);
    button->setFontSize(TextSize);
    return look->dress(button, [](ZButton *button, const Theme &theme) { //
        button->setBackgroundColor(theme.accent);
    });
}

SwitchButton *Parts::newSwitch(Look *look, bool on)
{
    auto *button = new SwitchButton;
    button->setFixedSize(SwitchSize);
    if (on) {
        button->setCheckState(Qt::Checked);
        button->setOffset(SwitchSize.width() - SwitchSize.height()); // where it slides to
    }
    return look->dress(button, [](SwitchButton *button, const Theme &theme) {
        button->setCheckedBackground(theme.accent);
        button->setNocheckedBackground(theme.quietInk);
    });
}

ZSlider *Parts::newSlider(Look *look, int minimum, int maximum, int value)
{
    auto *slider = new ZSlider;
    new HandlePlacer(slider);
    slider->setFixedHeight(SliderHeight);
    slider->setGrooveThickness(GrooveThickness);
    slider->setGrooveRadius(GrooveThickness / 2);
    slider->setRange(minimum, maximum);
    slider->setValue(value);
    return look->dress(slider, [](ZSlider *slider, const Theme &theme) {
        slider->setGrooveColor(theme.field);
        slider->setGrooveSlippedColor(theme.accent);
        slider->setHandleNormalColor(theme.accent);
        slider->setHandlePressColor(theme.ink);
    });
}

QScrollArea *Parts::newScroller(Look *look)
{
    auto *bar = new ZScrollBar;
    bar->setFixedWidth(ScrollBarWidth);
    look->dress(bar, [](ZScrollBar *bar, const Theme &theme) {
        bar->setPalette(QPalette(theme.field, theme.card));
        bar->setBackGroudColor(theme.field);
        bar->setSliderColor(theme.quietInk);
    });
    auto *scroller = new QScrollArea;
    scroller->setFrameStyle(QFrame::NoFrame);
    scroller->setWidgetResizable(true);
    scroller->setVerticalScrollBar(bar);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->viewport()->setAutoFillBackground(false);
    QScroller::grabGesture(scroller->viewport(), QScroller::LeftMouseButtonGesture);
    return scroller;
}

void Parts::setScrolled(QScrollArea *scroller, QWidget *content)
{
    scroller->setWidget(content);
    content->setAutoFillBackground(false); // the area has just set it
}

QBoxLayout *Parts::newRow(const QString &text, QWidget *control)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Gap);
    row->addWidget(newText(text), 1);
    row->addWidget(control);
    return row;
}
