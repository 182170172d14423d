#include "circleprogess.h"
#include "circularloadingwidget.h"
#include "commonlabelwidget.h"
#include "hprogressanime.h"
#include "loadingwidget.h"
#include "maskwidget.h"
#include "progressbar.h"
#include "rotateprogress.h"
#include "truncated_p.h"
#include "zclicklabel.h"
#include "zslider.h"
#include "zsvgwidget.h"
#include "ztextwidget.h"
#include "ztoastdialog.h"

#include <QAbstractAnimation>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QPointer>
#include <algorithm>

#ifndef QT_NO_ACCESSIBILITY

namespace ZIRVOUI {

namespace {

template <typename Widget>
Widget *widgetOf(const QAccessibleInterface &interface)
{
    return static_cast<Widget *>(interface.object());
}

/*! A widget that is read: its name is the application's, else the text that it shows. */
class Shown : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? shownText() : text;
    }

protected:
    virtual QString shownText() const { return {}; }
};

/*! Busy as long as it moves. */
class BusyIndicator : public Shown
{
public:
    explicit BusyIndicator(QWidget *widget)
        : Shown(widget, QAccessible::ProgressBar)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = Shown::state();
        state.busy = isMoving();
        return state;
    }

protected:
    virtual bool isMoving() const
    {
        const auto animations = object()->findChildren<QAbstractAnimation *>();
        return std::any_of(animations.begin(), animations.end(), [](auto *animation) {
            return animation->state() == QAbstractAnimation::Running;
        });
    }
};

class Document : public Shown
{
public:
    explicit Document(QWidget *widget)
        : Shown(widget, QAccessible::Document)
    {
    }

protected:
    QString shownText() const override
    {
        return widgetOf<ZTextWidget>(*this)->textDocument()->toPlainText();
    }
};

class Toast : public Shown
{
public:
    explicit Toast(QWidget *widget)
        : Shown(widget, QAccessible::AlertMessage)
    {
    }

protected:
    QString shownText() const override
    {
        const auto *label = object()->findChild<ZClickLabel *>();
        return label ? label->text() : QString();
    }
};

/*! A label's text is drawn as it stands, markup included, so it is read like that. */
class TapLabel : public Shown
{
public:
    explicit TapLabel(QWidget *widget)
        : Shown(widget, QAccessible::StaticText)
    {
    }

    QStringList actionNames() const override
    {
        QStringList names = Shown::actionNames();
        if (widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name != pressAction())
            Shown::doAction(name);
        else if (widget()->isEnabled())
            tap(widgetOf<ZClickLabel>(*this));
    }

    QStringList keyBindingsForAction(const QString &) const override { return {}; }

protected:
    QString shownText() const override { return widgetOf<ZClickLabel>(*this)->text(); }

private:
    static void tap(const QPointer<ZClickLabel> &label)
    {
        Q_EMIT label->signal_pressed();
        if (label)
            Q_EMIT label->signal_released();
        if (label)
            Q_EMIT label->signal_clicked();
    }
};

/*! A value in its range, beside what else it is. */
template <typename Base>
class Valued : public Base, public QAccessibleValueInterface
{
public:
    using Base::Base;

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return Base::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? currentValue().toString() : Base::text(kind);
    }
};

/*! A progress bar of whatever form. */
template <typename Widget, double (Widget::*Value)() const, double (Widget::*Minimum)() const,
          double (Widget::*Maximum)() const>
class Gauge : public Valued<Shown>
{
public:
    explicit Gauge(QWidget *widget)
        : Valued(widget, QAccessible::ProgressBar)
    {
    }

    QVariant currentValue() const override { return (widgetOf<Widget>(*this)->*Value)(); }
    QVariant minimumValue() const override { return (widgetOf<Widget>(*this)->*Minimum)(); }
    QVariant maximumValue() const override { return (widgetOf<Widget>(*this)->*Maximum)(); }
    QVariant minimumStepSize() const override { return 0.0; }
    void setCurrentValue(const QVariant &) override { }
};

using Bar = Gauge<ProgressBar, &ProgressBar::getValue, &ProgressBar::getMinValue,
                  &ProgressBar::getMaxValue>;
using Ring = Gauge<CircleProgess, &CircleProgess::value, &CircleProgess::min, &CircleProgess::max>;

/*! Qt's own would set the value without moving the handle. */
class Slider : public Valued<QAccessibleWidget>
{
public:
    explicit Slider(QWidget *widget)
        : Valued(widget, QAccessible::Slider)
    {
    }

    QVariant currentValue() const override { return widgetOf<ZSlider>(*this)->value(); }
    QVariant minimumValue() const override { return widgetOf<ZSlider>(*this)->minimum(); }
    QVariant maximumValue() const override { return widgetOf<ZSlider>(*this)->maximum(); }
    QVariant minimumStepSize() const override { return widgetOf<ZSlider>(*this)->singleStep(); }
    void setCurrentValue(const QVariant &value) override
    {
        widgetOf<ZSlider>(*this)->setValue(truncated(value.toDouble()));
    }
};

// ---- which class is which

template <typename Interface>
QAccessibleInterface *newInterface(QWidget *widget)
{
    return new Interface(widget);
}

template <QAccessible::Role Role>
QAccessibleInterface *newShown(QWidget *widget)
{
    return new Shown(widget, Role);
}

struct Entry
{
    const QMetaObject &metaObject;
    QAccessibleInterface *(*create)(QWidget *widget);
};

} // namespace

class AccessibleSpinner : public BusyIndicator
{
public:
    using BusyIndicator::BusyIndicator;

protected:
    bool isMoving() const override { return widgetOf<LoadingWidget>(*this)->m_timer.isActive(); }
};

namespace {

const Entry entries[] = {
    {CircleProgess::staticMetaObject, newInterface<Ring>},
    {CircularLoadingWidget::staticMetaObject, newInterface<BusyIndicator>},
    {CommonLabelWidget::staticMetaObject, newShown<QAccessible::Grouping>},
    {HProgressAnime::staticMetaObject, newInterface<BusyIndicator>},
    {LoadingWidget::staticMetaObject, newInterface<AccessibleSpinner>},
    {MaskWidget::staticMetaObject, newShown<QAccessible::Graphic>},
    {ProgressBar::staticMetaObject, newInterface<Bar>},
    {RotateProgress::staticMetaObject, newInterface<BusyIndicator>},
    {ZClickLabel::staticMetaObject, newInterface<TapLabel>},
    {ZSlider::staticMetaObject, newInterface<Slider>},
    {ZSvgWidget::staticMetaObject, newShown<QAccessible::Graphic>},
    {ZTextWidget::staticMetaObject, newInterface<Document>},
    {ZToastDialog::staticMetaObject, newInterface<Toast>},
};

// Asked for the class of an object and for each class that it inherits.  Another class may have the
// same name.
QAccessibleInterface *newInterfaceFor(const QString &className, QObject *object)
{
    for (const Entry &entry : entries) {
        if (className == QLatin1String(entry.metaObject.className())
            && entry.metaObject.cast(object))
            return entry.create(static_cast<QWidget *>(object));
    }
    return nullptr;
}

// Qt forgets all factories at the end of an application, and calls this for the next one.
void installFactory()
{
    QAccessible::installFactory(newInterfaceFor);
}
Q_COREAPP_STARTUP_FUNCTION(installFactory)

} // namespace

} // namespace ZIRVOUI

#endif
