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

/*! A method as a call, with a value for each of its parameters. */
template <typename Widget, typename Class, typename Result, typename... Parameters>
Call call(Result (Class::*method)(Parameters...))
{
    return [method](QWidget &widget, Values &values) {
        // Braces, unlike the parentheses of a call, fix the order in which the bytes are read.
        std::tuple<std::decay_t<Parameters>...> arguments{
            values.take<std::decay_t<Parameters>>()...};
        auto &object = static_cast<Widget &>(widget);
        std::apply([&](auto &...all) { (object.*method)(all...); }, arguments);
    };
}

#endif
