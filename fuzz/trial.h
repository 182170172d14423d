#ifndef TRIAL_H
#define TRIAL_H

#include "subject.h"

#include <QPointer>
#include <QVector>
#include <memory>

class Trial;

/*! A step of a trial. */
using Step = std::function<void(Trial &, Values &)>;

/*! Where the code that handles a happening begins. */
enum class Origin {
    Pointer,
    Event,
    Stock //!< in a function of QWidget, which goes on after the widget's own code
};

/*! Something that happens to a widget: input, or a change of its surroundings. */
struct Happening
{
    Call run;
    Origin origin;
};

const std::vector<Happening> &happenings();

/*! What a slot, or the application at any moment, may do to a widget. */
struct Reaction
{
    Step run;
    bool destroys;
};

const std::vector<Reaction> &reactions();

/*! A widget under test in a home of its own, with a slot at each of its signals. */
class Trial
{
public:
    Trial(const Subject &subject, Values &values);
    ~Trial();
    Q_DISABLE_COPY(Trial)

    const Subject &subject;
    QPointer<QWidget> home;
    QPointer<QWidget> widget; // null once it is deleted
    Origin origin = Origin::Event; // of what is happening to the widget
    QVector<int> emissions; // of each signal, by its index in the meta-object
    const Reaction *armed = nullptr; // that has yet to come

    /*! Lets something happen to the widget or to one of its parts. */
    void meet(const Happening &happening, QWidget &target, Values &values);
    /*! One of the calls of the subject. */
    void callOwn(Values &values);

    /*! The next emission of the signal with this index, or of any with -1, meets the reaction. */
    void arm(const Reaction &reaction, int signal, const Values &values);
    /*!
     * Whether a slot of the signal may delete the widget.  Stock widgets touch themselves after
     * most of their signals; the library's buttons and its slider make up for that where it is the
     * pointer that causes them.
     */
    bool mayDieIn(int signal) const;
    /*!
     * Takes a window into the stage that is of millions by millions of pixels, or of less than none
     * as size increments may leave it: it has no paint engine, which Qt tells with a warning.
     */
    void keepPaintable();

private:
    class Spy;
    void notice(int signal);

    std::unique_ptr<Spy> m_spy;
    int m_awaited = -1;
    Values m_values = {nullptr, 0};
};

#endif
