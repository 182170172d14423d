#include "sequence.h"

#include "stage.h"
#include "virtualtime.h"

#include <QDialog>
#include <QImage>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QTimer>

namespace {

constexpr int MostSteps = 40;

void happen(Trial &trial, Values &values)
{
    QWidget *target = trial.widget;
    const auto parts = target->findChildren<QWidget *>();
    if (values.below(8) == 0 && !parts.isEmpty())
        target = parts.at(values.below(parts.size()));
    trial.meet(values.oneOf(happenings()), *target, values);
}

void writeProperty(Trial &trial, Values &values)
{
    const QMetaObject &type = *trial.widget->metaObject();
    const QMetaProperty property = type.property(values.below(type.propertyCount()));
    // Sheets need a syntax, for which there is an event, and Qt warns of the rest.
    if (property.name() == QByteArray("styleSheet"))
        return;
    QVariant value = values.variant(property.userType());
    if (property.isEnumType())
        value = property.enumerator().value(values.below(property.enumerator().keyCount()));
    if (!value.isValid())
        return;
    const Stage::Leniency leniency;
    const QScopedValueRollback<Origin> origin(trial.origin, Origin::Stock);
    property.write(trial.widget, value);
}

// A dialog that executes stays in here until it is closed, so that the sequence goes on inside.
void execute(Trial &trial, QDialog &dialog)
{
    QTimer::singleShot(0, Stage::window(), [&trial] {
        if (trial.widget)
            trial.widget->hide();
    });
    dialog.exec();
}

void invokeSlot(Trial &trial, Values &values)
{
    const QMetaObject &type = *trial.widget->metaObject();
    const QMetaMethod method = type.method(values.below(type.methodCount()));
    if (method.access() != QMetaMethod::Public || method.methodType() != QMetaMethod::Slot
        || method.name() == "setStyleSheet")
        return;
    if (method.name() == "exec")
        return execute(trial, static_cast<QDialog &>(*trial.widget));

    QVariant arguments[3];
    QGenericArgument generic[3];
    for (int i = 0; i < method.parameterCount(); ++i) {
        arguments[i] = values.variant(method.parameterType(i));
        if (!arguments[i].isValid())
            return;
        generic[i] = QGenericArgument(arguments[i].typeName(), arguments[i].constData());
    }
    const Stage::Leniency leniency;
    const QScopedValueRollback<Origin> origin(trial.origin, Origin::Stock);
    method.invoke(trial.widget, Qt::DirectConnection, generic[0], generic[1], generic[2]);
}

void paint(Trial &trial, Values &values)
{
    constexpr double Ratios[] = {1, 1, 2, 1.25, 3};
    pictureOf(*trial.widget, Ratios[values.below(int(std::size(Ratios)))]);
}

void passTime(Trial &, Values &values)
{
    constexpr int MostTimers = 40;
    constexpr int LongTimes[] = {1000, 3000, 60000, 86400000};
    const int time = values.byte();
    Stage::time().pass(time < 250 ? time : LongTimes[time % 4], MostTimers);
}

void repaint(Trial &trial, Values &)
{
    trial.widget->repaint();
}

void settle(Trial &, Values &)
{
    VirtualTime::settle();
}

void react(Trial &trial, Values &values)
{
    const QScopedValueRollback<Origin> origin(trial.origin, Origin::Stock);
    values.oneOf(reactions()).run(trial, values);
}

void armReaction(Trial &trial, Values &values)
{
    const Reaction &reaction = values.oneOf(reactions());
    trial.arm(reaction, -1, values);
}

// What belongs to the library stands more often.
const std::vector<Step> Steps = {
    &Trial::callOwn, &Trial::callOwn, &Trial::callOwn, &Trial::callOwn, &Trial::callOwn,
    &Trial::callOwn, happen,          happen,          happen,          happen,
    paint,           paint,           passTime,        passTime,        repaint,
    settle,          writeProperty,   invokeSlot,      armReaction,     react,
};

} // namespace

QImage pictureOf(QWidget &widget, double ratio)
{
    constexpr int MostPixels = 48;
    QImage image(QSize(MostPixels, MostPixels) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget.render(&image, {}, QRect(0, 0, MostPixels, MostPixels));
    return image;
}

void runSequence(Trial &trial, Values &values)
{
    for (int i = 0; i < MostSteps && trial.widget && !values.isEmpty(); ++i) {
        values.oneOf(Steps)(trial, values);
        trial.keepPaintable();
    }
}
