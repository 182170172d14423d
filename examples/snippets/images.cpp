#include "snippets.h"

#include <MaskWidget>
#include <QLabel>
#include <QWidget>
#include <ZGifWidget>
#include <ZSvgWidget>

using namespace ZIRVOUI;

void zSvgWidget(QBoxLayout *page)
{
    //! [ZSvgWidget]
    auto *alarm = new ZSvgWidget(":/icons/bell.svg");
    alarm->setFixedSize(96, 96);
    alarm->setRotateAngle(15); // degrees, clockwise
    alarm->startBlinking(); // until stopBlinking()
    page->addWidget(alarm, 0, Qt::AlignCenter);
    //! [ZSvgWidget]
}

void zGifWidget(QBoxLayout *page)
{
    //! [ZGifWidget]
    auto *ball = new ZGifWidget(":/icons/ball.gif");
    ball->toDefaultSize();
    page->addWidget(ball, 0, Qt::AlignCenter);
    //! [ZGifWidget]
}

void maskWidget(QBoxLayout *page)
{
    QWidget *screen = page->parentWidget();
    auto *picture = new QLabel(screen);
    picture->setPixmap(QPixmap(":/icons/hills.png").scaled(screen->size()));
    picture->setGeometry(screen->rect());
    picture->show();

    //! [MaskWidget]
    auto *pane = new MaskWidget(screen);
    pane->setGeometry(screen->rect().adjusted(40, 40, -40, -40));
    pane->setDistance(0); // no gray frame that bleeds into the edges
    pane->setBlurRadius(24);
    pane->setPixmap(screen->grab(pane->geometry())); // after distance and radius
    pane->show();
    //! [MaskWidget]
}
