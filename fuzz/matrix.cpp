// Every signal and every handler of every class meets every reaction: matrix [class]
// The names of the classes: matrix --list

#include "sequence.h"
#include "stage.h"
#include "virtualtime.h"

#include <QImage>
#include <QMetaMethod>
#include <array>
#include <cstdio>

namespace {

constexpr int Tours = 6; // each with other arguments
constexpr int LongPress = 600; // ms

using Bytes = std::array<unsigned char, 64>;

// They make mostly harmless arguments, others for each tour.
Bytes bytesOf(int tour)
{
    constexpr int Least = 48;
    constexpr int Most = 144;
    constexpr int Strides[] = {0, 1, 7, 13, 29, 41};
    Bytes bytes = {};
    for (int i = 0; i < int(bytes.size()); ++i)
        bytes[size_t(i)] = uchar(Least + (tour + i * Strides[tour]) % (Most - Least));
    return bytes;
}

Step handlerOf(const Happening &happening)
{
    return [&](Trial &trial, Values &values) { trial.meet(happening, *trial.widget, values); };
}

void passTime(Trial &, Values &)
{
    Stage::time().pass(LongPress, LongPress);
}

void paint(Trial &trial, Values &)
{
    pictureOf(*trial.widget, 1);
}

// All that makes code of the class run; time passes after a press too, before its release.
std::vector<Step> handlersOf(const Subject &subject)
{
    std::vector<Step> handlers = {paint};
    for (const Happening &happening : happenings()) {
        handlers.push_back(handlerOf(happening));
        if (happening.origin == Origin::Pointer)
            handlers.push_back(passTime);
    }
    for (int i = 0; i < 3; ++i) // press, release, as a tap
        handlers.push_back(handlerOf(happenings()[size_t(i % 2)]));
    for (const Call &call : subject.calls)
        handlers.push_back([&call](Trial &trial, Values &values) { call(*trial.widget, values); });
    handlers.push_back(passTime);
    return handlers;
}

// Each handler begins with the same values.
void tour(Trial &trial, const std::vector<Step> &handlers, const Values &start)
{
    for (const Step &handler : handlers) {
        if (!trial.widget)
            return;
        Values values = start;
        handler(trial, values);
    }
    VirtualTime::settle();
}

/*! What became of the cells of a class. */
struct Tally
{
    int met = 0; // signals that were emitted and met the reaction
    int unmet = 0; // those that were not, or whose slots must not delete
    int handlers = 0;
    QStringList neverEmitted; // of the library's own signals
};

void meetSignal(const Subject &subject, const QMetaMethod &signal, Tally &tally)
{
    const auto handlers = handlersOf(subject);
    bool wasEmitted = false;
    for (const Reaction &reaction : reactions()) {
        bool hasMet = false;
        for (int i = 0; i < Tours; ++i) {
            const Bytes bytes = bytesOf(i);
            const Values start(bytes.data(), bytes.size());
            Values values = start;
            Trial trial(subject, values);
            trial.widget->show();
            trial.arm(reaction, signal.methodIndex(), values);
            tour(trial, handlers, start);
            wasEmitted |= trial.emissions.at(signal.methodIndex()) > 0;
            hasMet |= !trial.armed;
        }
        ++(hasMet ? tally.met : tally.unmet);
    }
    if (!wasEmitted && signal.enclosingMetaObject()->className()[0] != 'Q')
        tally.neverEmitted.append(QString::fromLatin1(signal.name()));
}

void meetHandlers(const Subject &subject, Tally &tally)
{
    const Bytes bytes = bytesOf(1);
    const Values start(bytes.data(), bytes.size());
    for (const Step &handler : handlersOf(subject)) {
        for (const Reaction &reaction : reactions()) {
            Values values = start;
            Trial trial(subject, values);
            handler(trial, values);
            if (trial.widget)
                reaction.run(trial, values);
            tour(trial, {handler, paint, passTime, paint}, start);
            ++tally.handlers;
        }
    }
}

Tally meetAll(const Subject &subject)
{
    Tally tally;
    Values none(nullptr, 0);
    const Trial example(subject, none);
    const QMetaObject &type = *example.widget->metaObject();
    for (int i = 0; i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        if (method.methodType() == QMetaMethod::Signal && method.name() != "destroyed")
            meetSignal(subject, method, tally);
    }
    meetHandlers(subject, tally);
    return tally;
}

} // namespace

int main(int count, char **arguments)
{
    if (count > 1 && qstrcmp(arguments[1], "--list") == 0) {
        for (const Subject &subject : subjects())
            puts(subject.name);
        return 0;
    }

    Stage::open();
    bool isComplete = true;
    for (const Subject &subject : subjects()) {
        if (count > 1 && qstrcmp(subject.name, arguments[1]) != 0)
            continue;
        const Tally tally = meetAll(subject);
        printf("%-22s signals: %3d cells met, %3d not; handlers: %3d cells %s\n", subject.name,
               tally.met, tally.unmet, tally.handlers, qPrintable(tally.neverEmitted.join(' ')));
        fflush(stdout);
        isComplete &= tally.neverEmitted.isEmpty();
    }
    return isComplete ? 0 : 1;
}
