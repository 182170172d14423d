#ifndef CPUTIME_H
#define CPUTIME_H

#include <QVector>
#include <algorithm>
#include <ctime>

/*! Seconds that the process has spent computing, in all its threads. */
inline double cpuTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

inline double median(QVector<double> values)
{
    double *middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

#endif
