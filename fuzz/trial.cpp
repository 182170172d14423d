#include "trial.h"

#include "stage.h"

#include <QMetaMethod>

/*! Receives any signal, without slots of its own: each signal calls the method of its index. */
class Trial::Spy : public QObject
{
public:
    Spy(Trial &trial, QWidget &watched)
        : m_trial(trial)
        , emissions(watched.metaObject()->methodCount())
    {
        const QMetaObject &type = *watched.metaObject();
        const int firstOwn = metaObject()->methodCount();
        for (int i = 0; i < type.methodCount(); ++i) {
            // When destroyed() comes, the widget is none any more.
            if (type.method(i).methodType() == QMetaMethod::Signal
                && type.method(i).name() != "destroyed")
                QMetaObject::connect(&watched, i, this, firstOwn + i);
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        ++emissions[id];
        const bool isAwaited = armed && (awaited < 0 || awaited == id);
        if (isAwaited && (!armed->destroys || m_trial.mayDieIn(id)))
            std::exchange(armed, nullptr)->run(m_trial, values);
        return -1;
    }

private:
    Trial &m_trial;

public:
    QVector<int> emissions;
    const Reaction *armed = nullptr;
    int awaited = -1;
    Values values = {nullptr, 0};
};

Trial::Trial(const Subject &tested, Values &values)
    : subject(tested)
    , home(new QWidget(Stage::window()))
{
    constexpr int Side = 40;
    home->resize(2 * Side, 2 * Side);
    widget = subject.make(values, home);
    widget->resize(Side, Side / 2);
    m_spy = std::make_unique<Spy>(*this, *widget);
    home->show();
    widget->setVisible(values.below(4) != 0);
}

Trial::~Trial()
{
    m_spy.reset();
    delete widget;
    delete home;
    Stage::clear();
}

void Trial::arm(const Reaction &reaction, int signal, const Values &values)
{
    m_spy->armed = &reaction;
    m_spy->awaited = signal;
    m_spy->values = values;
}

bool Trial::mayDieIn(int signal) const
{
    const QMetaMethod method = widget->metaObject()->method(signal);
    const bool isOfQt = method.enclosingMetaObject()->className()[0] == 'Q';
    const bool isGuarded = widget->inherits("QAbstractButton") || widget->inherits("QSlider");
    if (isOfQt)
        return origin == Origin::Pointer && isGuarded;
    return origin != Origin::Stock;
}

const QVector<int> &Trial::emissions() const
{
    return m_spy->emissions;
}

bool Trial::isArmed() const
{
    return m_spy->armed;
}
