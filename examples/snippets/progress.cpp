#include "snippets.h"

#include <CircleProgess>
#include <CircularDelegate>
#include <CircularLoadingWidget>
#include <HProgressAnime>
#include <LoadingWidget>
#include <ProgressBar>
#include <QAbstractAnimation>
#include <QWidget>
#include <RotateProgress>
#include <ZClickLabel>

using namespace ZIRVOUI;

void progressBar(QBoxLayout *page)
{
    //! [ProgressBar]
    auto *download = new ProgressBar;
    download->setFixedHeight(12);
    download->setRadius(6);
    download->setBgColor("#434a54");
    download->setValueBrush(QColor("#4da3ff"));
    download->setRange(0, 250);
    download->setValue(100); // an int repaints, a double only stores
    page->addWidget(download);
    //! [ProgressBar]
}

void circleProgess(QBoxLayout *page)
{
    //! [CircleProgess]
    auto *battery = new CircleProgess;
    battery->setFixedSize(160, 160);
    battery->setBorderWidth(16);
    battery->setCircleColor(QColor("#434a54"));
    battery->setProgressColor(QColor("#5fd38d"));
    battery->setBgColor(QColor("#14161a")); // the hole, in the colour of the screen
    battery->setValue(80); // of 100
    page->addWidget(battery);
    //! [CircleProgess]
}

void hProgressAnime(QBoxLayout *page)
{
    //! [HProgressAnime]
    auto *loading = new HProgressAnime;
    loading->setFixedHeight(4);
    page->addWidget(loading);
    //! [HProgressAnime]
}

void rotateProgress(QBoxLayout *page)
{
    //! [RotateProgress]
    auto *pairing = new RotateProgress;
    pairing->setMinimumSize(480, 480); // the figure is 400 pixels across, whatever the size
    page->addWidget(pairing);
    pairing->startAnmition(); // bursts after 2.8 seconds, and glows until stopAnmition()
    //! [RotateProgress]
}

void circularLoadingWidget(QBoxLayout *page)
{
    //! [CircularLoadingWidget]
    auto *spinner = new CircularLoadingWidget;
    spinner->setFixedSize(96, 96);
    spinner->setLineWidth(8);
    spinner->setColor("#4da3ff");
    spinner->setCirqueColor("#25292f");
    page->addWidget(spinner);
    //! [CircularLoadingWidget]
}

void circularDelegate(QBoxLayout *page)
{
    //! [CircularDelegate]
    auto *spinner = new CircularLoadingWidget;
    auto *arc = spinner->findChild<CircularDelegate *>();
    for (auto *animation : spinner->findChildren<QAbstractAnimation *>())
        animation->stop();
    arc->setDashOffset(0);
    arc->setDashLength(12); // of the line's width
    arc->setAngle(-90); // from 12 o'clock
    page->addWidget(spinner);
    //! [CircularDelegate]
}

void loadingWidget(QBoxLayout *page)
{
    //! [LoadingWidget]
    const QColor head("#5fd38d");
    const QColor tail("#14161a"); // the colour of the screen
    auto *spinner = new LoadingWidget;
    spinner->setFixedSize(96, 96);
    spinner->setWidth(12);
    spinner->addGradientColor({{0.0, head}, {1.0, tail}});
    page->addWidget(spinner);
    //! [LoadingWidget]
}

void styleSheet(QBoxLayout *page)
{
    QWidget *screen = page->parentWidget();
    auto *bar = new ProgressBar;
    bar->setFixedHeight(12);
    bar->setValue(40);
    page->addWidget(bar);
    page->addWidget(new CircularLoadingWidget);
    page->addWidget(new ZClickLabel("Loading"));
    //! [style sheet]
    screen->setStyleSheet(R"(
        ZIRVOUI--ProgressBar { qproperty-m_valueBrush: #5fd38d; qproperty-m_radius: 6; }
        ZIRVOUI--CircularLoadingWidget { qproperty-color: #4da3ff; qproperty-lineWidth: 8; }
        ZIRVOUI--ZClickLabel { color: #a3acb7; font-size: 24px; }
    )");
    //! [style sheet]
}
