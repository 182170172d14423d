#include "stage.h"
#include "trial.h"

namespace {

void deleteIt(Trial &trial, Values &)
{
    delete trial.widget;
}

void deleteLater(Trial &trial, Values &)
{
    trial.widget->deleteLater();
}

void hide(Trial &trial, Values &)
{
    trial.widget->hide();
}

void disable(Trial &trial, Values &)
{
    trial.widget->setEnabled(false);
}

void reparent(Trial &trial, Values &values)
{
    trial.widget->setAttribute(Qt::WA_DontShowOnScreen);
    const bool isHome = trial.widget->parentWidget() == trial.home;
    QWidget *other = values.below(2) ? nullptr : Stage::window();
    trial.widget->setParent(isHome ? other : trial.home.data());
    if (trial.widget)
        trial.widget->show();
}

void openDialog(Trial &trial, Values &)
{
    auto *dialog = new ZIRVOUI::ZBaseDialog(trial.widget);
    dialog->setFixedSize(trial.widget->size());
    dialog->show();
}

void deleteParent(Trial &trial, Values &)
{
    delete trial.home;
}

void callAgain(Trial &trial, Values &values)
{
    const auto &calls = trial.subject.calls;
    if (!calls.empty())
        calls[size_t(values.below(int(calls.size())))](*trial.widget, values);
}

} // namespace

const std::vector<Reaction> &reactions()
{
    static const std::vector<Reaction> list = {
        {"delete", deleteIt, true},
        {"delete later", deleteLater, false},
        {"hide", hide, false},
        {"disable", disable, false},
        {"reparent", reparent, false},
        {"open a dialog over it", openDialog, false},
        {"delete the parent", deleteParent, true},
        {"call a setter", callAgain, false},
    };
    return list;
}
