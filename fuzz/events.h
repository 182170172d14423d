#ifndef EVENTS_H
#define EVENTS_H

#include "trial.h"

/*! Something that happens to a widget: input, or a change of its surroundings. */
struct Happening
{
    const char *name;
    void (*run)(QWidget &widget, Values &values);
    Origin origin;
};

const std::vector<Happening> &happenings();

#endif
