#include "controlpanel.h"
#include "imagespage.h"
#include "look.h"
#include "page.h"
#include "zgifwidget.h"

#include <QMovie>

using ZIRVOUI::ZGifWidget;

namespace {

constexpr int BallSide = 120;
constexpr int PlaceSide = 176;
constexpr int WideWidth = 224;
constexpr int StillFrame = 3;
constexpr int NormalSpeed = 100; // percent

const char BallPath[] = ":/gallery/ball.gif";

ZGifWidget *addGif(Exhibit *exhibit, const QString &caption, const QString &path = BallPath)
{
    auto *gif = new ZGifWidget(path);
    exhibit->addSpecimen(caption, gif);
    return gif;
}

/*! A widget of another size than its frames, with a ground to tell them apart. */
ZGifWidget *addPlacedGif(Exhibit *exhibit, const QString &caption, const QString &path = BallPath)
{
    ZGifWidget *gif = addGif(exhibit, caption, path);
    gif->setFixedSize(PlaceSide, PlaceSide);
    gif->setAlignment(Qt::AlignCenter);
    QPalette palette = gif->palette();
    palette.setColor(QPalette::Window, Look::Field);
    gif->setPalette(palette);
    gif->setAutoFillBackground(true);
    return gif;
}

void addScaledGif(Exhibit *exhibit, const QString &caption, const QSize &size)
{
    ZGifWidget *gif = addGif(exhibit, caption);
    gif->setSize(size.width(), size.height());
    gif->setFixedSize(size);
}

ZGifWidget *addGifs(Exhibit *exhibit)
{
    ZGifWidget *live = addPlacedGif(exhibit, "In a larger widget");
    addGif(exhibit, "Natural size")->toDefaultSize();
    addScaledGif(exhibit, "Scaled", {PlaceSide, PlaceSide});
    addScaledGif(exhibit, "Stretched", {WideWidth, BallSide});

    addScaledGif(exhibit, "Small", {BallSide / 2, BallSide / 2});
    addGif(exhibit, "Half speed")->movie()->setSpeed(NormalSpeed / 2);
    addGif(exhibit, "Paused")->movie()->setPaused(true);
    addPlacedGif(exhibit, "No such file", ":/gallery/none.gif");
    return live;
}

void standStill(Exhibit *exhibit)
{
    for (ZGifWidget *gif : exhibit->findChildren<ZGifWidget *>()) {
        QMovie *movie = gif->movie();
        if (movie->state() != QMovie::Running)
            continue;
        movie->setPaused(true);
        // One after the other: a GIF cannot be read at any other place.
        while (movie->currentFrameNumber() < StillFrame && movie->jumpToNextFrame())
            continue;
    }
}

void addSizeControls(ControlPanel *controls, ZGifWidget *gif)
{
    const auto setSize = [=](const QSize &size) { gif->setSize(size.width(), size.height()); };
    controls->addNumber("Frame width", 16, WideWidth, BallSide, [=](int width) {
        setSize({width, gif->movie()->scaledSize().height()});
    });
    controls->addNumber("Frame height", 16, PlaceSide, BallSide, [=](int height) {
        setSize({gif->movie()->scaledSize().width(), height});
    });
    controls->addActions("Widget's size",
                         {{"Frame's", [=] { gif->toDefaultSize(); }},
                          {"Fixed", [=] { gif->setFixedSize(PlaceSide, PlaceSide); }}});
}

void addMovieControls(ControlPanel *controls, ZGifWidget *gif)
{
    QMovie *movie = gif->movie();
    controls->addSwitch("Playing", true, [=](bool on) { movie->setPaused(!on); });
    controls->addNumber("Speed, %", 0, 300, NormalSpeed,
                        [=](int percent) { movie->setSpeed(percent); });
}

} // namespace

void addZGifWidget(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "ZGifWidget", "An animated picture that plays by itself, scaled if need be", Exhibit::Full);
    ZGifWidget *live = addGifs(exhibit);
    live->setSize(BallSide, BallSide);
    exhibit->setStill([=] { standStill(exhibit); });
    addSizeControls(exhibit->controls(), live);
    addMovieControls(exhibit->controls(), live);
}
