#include "snippets.h"

#include <CommonLabelWidget>
#include <ZAdjustFontLabel>
#include <ZClickLabel>
#include <ZResizableLabel>
#include <ZScrollLabel>
#include <ZTextWidget>

using namespace ZIRVOUI;

void zClickLabel(QBoxLayout *page)
{
    //! [ZClickLabel]
    auto *network = new ZClickLabel("Network");
    network->setTextSize(28);
    network->setAlignment(Qt::AlignCenter);
    network->setBgColor("#25292f");
    network->setRadius(12);
    QObject::connect(network, &ZClickLabel::signal_clicked, network, [=] {
        network->setRightCornerLabels(true); // a mark in the corner: it has been opened
    });
    page->addWidget(network);
    //! [ZClickLabel]
}

void zAdjustFontLabel(QBoxLayout *page)
{
    //! [ZAdjustFontLabel]
    auto *clock = new ZAdjustFontLabel("22:15");
    clock->setAlignment(Qt::AlignCenter);
    clock->setMinimumSize(1, 1); // it may become smaller again
    clock->setFontSizeRange(12, 160); // the largest that fits, at every size of the label
    page->addWidget(clock, 1);
    //! [ZAdjustFontLabel]
}

void zScrollLabel(QBoxLayout *page)
{
    //! [ZScrollLabel]
    auto *news = new ZScrollLabel;
    news->setMinimumWidth(1); // it may be narrower than its text
    news->setFontColor("#4da3ff");
    news->setSpacing(40);
    news->setTimerMsc(20);
    news->setStep(1); // 50 pixels a second
    news->setText("The filter has to be cleaned before the end of the week.");
    page->addWidget(news);
    //! [ZScrollLabel]
}

void zResizableLabel(QBoxLayout *page)
{
    //! [ZResizableLabel]
    auto *message = new ZResizableLabel("The door was left open.");
    message->setMinSize({120, 40});
    message->setMaxSize({320, 240}); // it grows with its text between the two
    message->setBackgroundColor("#4da3ff");
    message->setAlignment(Qt::AlignCenter);
    page->addWidget(message, 0, Qt::AlignLeft);
    //! [ZResizableLabel]
}

void commonLabelWidget(QBoxLayout *page)
{
    //! [CommonLabelWidget]
    auto *room = new CommonLabelWidget;
    room->setTitleText("Bedroom");
    room->setIcon(":/icons/lamp.svg");
    room->setIconSize({64, 64});
    room->setText("2 lamps");
    room->setSpacing(12);
    room->titleLabel()->setTextSize(24);
    page->addWidget(room);
    //! [CommonLabelWidget]
}

void zTextWidget(QBoxLayout *page)
{
    //! [ZTextWidget]
    auto *terms = new ZTextWidget;
    terms->setBackgroundColor("#dfe3e8");
    terms->textDocument()->setDocumentMargin(16);
    terms->setHtml("<h2>Terms</h2><p>What you <b>agree</b> to.</p>");
    page->addWidget(terms, 1);
    //! [ZTextWidget]
}
