// What the widgets print, and helpers that place them.
#ifndef REPORT_H
#define REPORT_H

#include <QAbstractSlider>
#include <QWidget>
#include <cstdio>

inline void report(const QObject *who, const QString &what)
{
    std::puts(qPrintable(who->objectName() + ' ' + what));
    std::fflush(stdout);
}

// The format may show the values that come with the signal.
template <typename Sender, typename Class, typename... Values>
void reportSignal(Sender *sender, void (Class::*signal)(Values...), const char *format)
{
    QObject::connect(sender, signal, sender, [sender, format](Values... values) {
        report(sender, QString::asprintf(format, values...));
    });
}

template <typename Widget>
Widget *place(Widget *widget, const char *name, const QRect &rect)
{
    widget->setObjectName(name);
    widget->setGeometry(rect);
    return widget;
}

// Reports the signals of the base class as well.
template <typename Button>
Button *placeButton(Button *button, const char *name, const QRect &rect)
{
    reportSignal(button, &Button::pressed, "pressed");
    reportSignal(button, &Button::released, "released");
    reportSignal(button, &Button::clicked, "clicked");
    return place(button, name, rect);
}

template <typename Field>
Field *placeField(Field *field, const char *name, const QRect &rect)
{
    QObject::connect(field, &Field::textEdited, field, [field](const QString &text) {
        report(field, "text=" + text + (field->hasAcceptableInput() ? ",good" : ""));
    });
    return place(field, name, rect);
}

inline void reportSlider(QAbstractSlider *slider, const char *name)
{
    slider->setObjectName(name);
    reportSignal(slider, &QAbstractSlider::sliderPressed, "sliderPressed");
    reportSignal(slider, &QAbstractSlider::sliderMoved, "sliderMoved=%d");
    reportSignal(slider, &QAbstractSlider::valueChanged, "valueChanged=%d");
    reportSignal(slider, &QAbstractSlider::sliderReleased, "sliderReleased");
}

#endif
