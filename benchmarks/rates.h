#ifndef RATES_H
#define RATES_H

class QWidget;

constexpr int SettlingTime = 400; // ms

/*! What happened, a second. */
struct Rates
{
    double cpu; // ms
    double paints;
    double frames;
    double allocations;
};

void runEvents(int ms);

/*! What happens within some milliseconds, after the window has settled. */
Rates ratesOf(const QWidget &window, int ms);

#endif
