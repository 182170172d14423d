#ifndef SUBJECT_H
#define SUBJECT_H

#include "values.h"

#include <QWidget>
#include <functional>
#include <tuple>
#include <vector>

/*! Does something to a widget, with arguments from the bytes. */
using Call = std::function<void(QWidget &, Values &)>;

/*! A public class, and what can be called of it beyond what its meta-object tells. */
struct Subject
{
    const char *name;
    std::function<QWidget *(Values &, QWidget *parent)> make;
    std::vector<Call> calls;
};

const std::vector<Subject> &subjects();
/*! The subject of that name; ends the program if there is none. */
const Subject &subjectOf(const QString &name);

// Tables of one folder each, appended to the list of all.
void addButtons(std::vector<Subject> &all);
void addDialogs(std::vector<Subject> &all);
void addLabels(std::vector<Subject> &all);
void addProgress(std::vector<Subject> &all);
void addOthers(std::vector<Subject> &all);

/*! Makes a widget whose constructor takes what the template says, and its parent. */
template <typename Widget, typename... Arguments>
QWidget *make(Values &values, QWidget *parent)
{
    // Braces, unlike the parentheses of a call, fix the order in which the bytes are read.
    const std::tuple<Arguments...> arguments{values.take<Arguments>()...};
    return std::apply([&](const auto &...all) { return new Widget(all..., parent); }, arguments);
}

/*! A method as a call, with a value for each of its parameters. */
template <typename Widget, typename Class, typename Result, typename... Parameters>
Call call(Result (Class::*method)(Parameters...))
{
    return [method](QWidget &widget, Values &values) {
        std::tuple<std::decay_t<Parameters>...> arguments{
            values.take<std::decay_t<Parameters>>()...};
        auto &object = static_cast<Widget &>(widget);
        std::apply([&](auto &...all) { (object.*method)(all...); }, arguments);
    };
}

/*! The same for a method that takes a path. */
template <typename Widget, typename Class, typename Result, typename Path>
Call callWithPath(Result (Class::*method)(Path))
{
    return [method](QWidget &widget, Values &values) {
        (static_cast<Widget &>(widget).*method)(values.path());
    };
}

template <typename Widget, typename... Methods>
std::vector<Call> calls(Methods... methods)
{
    return {call<Widget>(methods)...};
}

inline std::vector<Call> operator+(std::vector<Call> list, const std::vector<Call> &more)
{
    list.insert(list.end(), more.begin(), more.end());
    return list;
}

#endif
