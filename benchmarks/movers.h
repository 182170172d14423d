#ifndef MOVERS_H
#define MOVERS_H

#include <QVector>
#include <QWidget>
#include <functional>

/*! Of what a screen is made. */
enum Making {
    OfLibrary,
    OfBareCalls,
    OfStockWidgets,
};

/*! A widget that moves, and how it is told to. */
struct Mover
{
    QWidget *widget;
    std::function<void()> start;
    std::function<void()> stop;
};

Mover newSpinner(Making making);
Mover newArc(Making making);
Mover newStrip(Making making);
Mover newTurn(Making making);
Mover newMarquee(Making making);
Mover newBlinkingIcon(Making making);
Mover newFilm(Making making);

#endif
