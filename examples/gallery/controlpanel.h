#ifndef CONTROLPANEL_H
#define CONTROLPANEL_H

#include <QString>
#include <QVector>
#include <QWidget>
#include <functional>
#include <utility>

class QGridLayout;

/*!
 * Captioned controls for the fingers, filled in from left to right and from top to bottom.
 *
 * Each calls back when it is used, but not when it is added: its specimen starts in the state that
 * the control is told to show.
 */
class ControlPanel : public QWidget
{
    Q_OBJECT

public:
    template <typename Value>
    using Choices = QVector<std::pair<QString, Value>>;
    using Actions = QVector<std::pair<QString, std::function<void()>>>;

    explicit ControlPanel(int controlsPerRow, QWidget *parent = nullptr);

    void addNumber(const QString &caption, int from, int to, int value,
                   const std::function<void(int)> &apply);
    void addSwitch(const QString &caption, bool on, const std::function<void(bool)> &apply);
    void addText(const QString &caption, const QString &text,
                 const std::function<void(const QString &)> &apply);
    /*! A swatch for each of \a names, in the notation of QColor::setNamedColor(). */
    void addColor(const QString &caption, const QStringList &names,
                  const std::function<void(const QColor &)> &apply);
    /*! Shows the first choice at the start. */
    template <typename Value>
    void addChoice(const QString &caption, const Choices<Value> &choices,
                   const std::function<void(Value)> &apply);
    void addActions(const QString &caption, const Actions &actions);

    /*! Any other widget, across as many \a columns as it needs. */
    void addRow(const QString &caption, QWidget *control, int columns = 1);

private:
    void addIndexedChoice(const QString &caption, const QStringList &names,
                          const std::function<void(int)> &apply);

    QGridLayout *m_grid;
    int m_controlsPerRow;
    int m_count = 0;
};

template <typename Value>
void ControlPanel::addChoice(const QString &caption, const Choices<Value> &choices,
                             const std::function<void(Value)> &apply)
{
    QStringList names;
    for (const auto &choice : choices)
        names.append(choice.first);
    addIndexedChoice(caption, names, [=](int index) { apply(choices.at(index).second); });
}

/*! A callback for a control: calls \a set, which only stores, and repaints. */
template <typename Widget, typename Setter>
auto repainting(Widget *widget, Setter set)
{
    return [=](const auto &value) {
        (widget->*set)(value);
        widget->update();
    };
}

#endif
