#include "snippets.h"

#include <QLabel>
#include <QScrollArea>
#include <ZScrollBar>
#include <ZSlider>

using namespace ZIRVOUI;

void zSlider(QBoxLayout *page)
{
    //! [ZSlider]
    const QColor cold("#4da3ff");
    const QColor warm("#ff6b6b");
    auto *temperature = new ZSlider;
    temperature->setFixedSize(320, 48);
    temperature->addGradientColor({{0.0, cold}, {1.0, warm}});
    temperature->setGrooveSlippedColor(Qt::transparent);
    temperature->setGrooveThickness(12);
    temperature->setGrooveRadius(6);
    temperature->setRange(150, 250); // tenths of a degree
    temperature->setSingleStep(5);
    temperature->setValue(210); // last: moves the handle
    page->addWidget(temperature);
    //! [ZSlider]
}

void zScrollBar(QBoxLayout *page)
{
    auto *content = new QLabel;
    content->setPixmap(QPixmap(":/icons/hills.png").scaled(800, 600));
    //! [ZScrollBar]
    auto *bar = new ZScrollBar;
    bar->setBackGroudColor("#25292f");
    bar->setSliderColor("#4da3ff");

    auto *list = new QScrollArea;
    list->setWidget(content);
    list->setVerticalScrollBar(bar); // which takes ownership
    page->addWidget(list);
    //! [ZScrollBar]
}
