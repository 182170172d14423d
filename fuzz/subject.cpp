#include "subject.h"

const std::vector<Subject> &subjects()
{
    static const std::vector<Subject> list = [] {
        std::vector<Subject> all;
        for (auto *add : {addLabels, addDialogs, addButtons, addProgress, addOthers})
            add(all);
        return all;
    }();
    return list;
}

const Subject &subjectOf(const QString &name)
{
    for (const Subject &subject : subjects()) {
        if (name == QLatin1String(subject.name))
            return subject;
    }
    qFatal("no class %s", qPrintable(name));
}
