#include "trial.h"

#include "stage.h"

#include <QLayout>
#include <QMetaMethod>
#include <QScopedValueRollback>

namespace {

void reparent(Trial &trial, Values &values)
{
    trial.widget->setAttribute(Qt::WA_DontShowOnScreen);
    const bool isHome = trial.widget->parentWidget() == trial.home;
    QWidget *other = values.below(2) ? nullptr : Stage::window();
    trial.widget->setParent(isHome ? other : trial.home.data());
    trial.keepPaintable();
    if (trial.widget)
        trial.widget->show();
}

QSize leastSize(const QWidget &window)
{
    QSize least = window.minimumSizeHint();
    // A layout learns what a layout inside it needs only later.
    for (int i = 0; window.layout() && i < window.layout()->count(); ++i)
        least = least.expandedTo(window.layout()->itemAt(i)->minimumSize());
    return least;
}

void coverByDialog(Trial &trial, Values &)
{
    auto *dialog = new ZIRVOUI::ZBaseDialog(trial.widget);
    dialog->setFixedSize(trial.widget->size());
    dialog->show();
}

} // namespace

const std::vector<Reaction> &reactions()
{
    static const std::vector<Reaction> list = {
        {[](Trial &trial, Values &) { delete trial.widget; }, true},
        {[](Trial &trial, Values &) { trial.widget->deleteLater(); }, false},
        {[](Trial &trial, Values &) { trial.widget->hide(); }, false},
        {[](Trial &trial, Values &) { trial.widget->setEnabled(false); }, false},
        {reparent, false},
        {coverByDialog, false},
        {[](Trial &trial, Values &) { delete trial.home; }, true},
        {[](Trial &trial, Values &values) { trial.callOwn(values); }, false},
    };
    return list;
}

/*! Receives any signal, without slots of its own: each signal calls the method of its index. */
class Trial::Spy : public QObject
{
public:
    explicit Spy(Trial &trial)
        : m_trial(trial)
    {
        const QMetaObject &type = *trial.widget->metaObject();
        for (int i = 0; i < type.methodCount(); ++i) {
            // When destroyed() comes, the widget is none any more.
            if (type.method(i).methodType() == QMetaMethod::Signal
                && type.method(i).name() != "destroyed")
                QMetaObject::connect(trial.widget, i, this, metaObject()->methodCount() + i);
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        m_trial.notice(id);
        return -1;
    }

private:
    Trial &m_trial;
};

Trial::Trial(const Subject &tested, Values &values)
    : subject(tested)
    , home(new QWidget(Stage::window()))
{
    constexpr int Side = 40;
    home->resize(2 * Side, 2 * Side);
    widget = subject.make(values, home);
    widget->resize(Side, Side / 2);
    emissions.resize(widget->metaObject()->methodCount());
    m_spy = std::make_unique<Spy>(*this);
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

void Trial::meet(const Happening &happening, QWidget &target, Values &values)
{
    const QScopedValueRollback<Origin> rollback(origin, happening.origin);
    happening.run(target, values);
}

void Trial::callOwn(Values &values)
{
    if (!subject.calls.empty())
        values.oneOf(subject.calls)(*widget, values);
}

void Trial::keepPaintable()
{
    constexpr qint64 MostPixels = 4096 * 4096;
    if (!widget || !widget->isWindow())
        return;
    const QSize size = widget->size().expandedTo(leastSize(*widget)); // a layout enforces it later
    if (!widget->size().isValid() || qint64(size.width()) * size.height() > MostPixels)
        widget->setParent(Stage::window());
}

void Trial::arm(const Reaction &reaction, int signal, const Values &values)
{
    armed = &reaction;
    m_awaited = signal;
    m_values = values;
}

void Trial::notice(int signal)
{
    ++emissions[signal];
    const bool isAwaited = armed && (m_awaited < 0 || m_awaited == signal);
    if (isAwaited && (!armed->destroys || mayDieIn(signal)))
        std::exchange(armed, nullptr)->run(*this, m_values);
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
