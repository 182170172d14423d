// A window of buttons that prints a line for each of their signals: "<object name> <signal>".
#include "circlebutton.h"
#include "imageswitchbutton.h"
#include "roundedbutton.h"
#include "switchbutton.h"
#include "zbutton.h"
#include "zclicklabel.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPropertyAnimation>
#include <QWindow>
#include <cstdio>

using namespace ZIRVOUI;

namespace {

void report(const QObject *who, const QString &what)
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

/*! Holds one button, which follows the finger up and down. */
struct Scroller : QWidget
{
    using QWidget::QWidget;

    void mousePressEvent(QMouseEvent *event) override
    {
        m_lastY = event->y();
        m_moves = 0;
        report(this, "press");
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        scroll(0, event->y() - m_lastY);
        m_lastY = event->y();
        ++m_moves;
    }

    void mouseReleaseEvent(QMouseEvent *) override
    {
        const int y = findChild<ZButton *>()->y();
        report(this, QString::asprintf("release,moves=%d,y=%d", m_moves, y));
    }

    int m_lastY = 0;
    int m_moves = 0;
};

struct Window : QWidget
{
    Window()
    {
        place(this, "window", {0, 0, 600, 320})->setWindowFlags(Qt::FramelessWindowHint);
        winId();
        windowHandle()->installEventFilter(this);

        placeButton(new ZButton(this), "zbutton", {20, 20, 200, 60});

        auto *scroller = place(new Scroller(this), "scroller", {20, 100, 200, 200});
        placeButton(new ZButton(scroller), "scroller button", {20, 100, 160, 60})
            ->setMouseEventToParent(true);

        auto *rounded = placeButton(new RoundedButton(this), "rounded", {240, 20, 120, 60});
        reportSignal(rounded, &RoundedButton::signal_mousePressed, "signal_mousePressed");
        reportSignal(rounded, &RoundedButton::signal_mouseReleased, "signal_mouseReleased");
        reportSignal(rounded, &RoundedButton::signal_clicked, "signal_clicked");

        const QString noIcon = QStringLiteral("missing.svg");
        auto *circle = placeButton(new CircleButton(noIcon, this), "circle", {380, 20, 80, 80});
        circle->setLongPressDelayMS(300);
        circle->setLongPressIntervalMS(100);
        circle->setLongPressRepeat(true);
        reportSignal(circle, &CircleButton::signal_longPressed, "signal_longPressed");

        auto *image
            = place(new ImageSwitchButton(noIcon, noIcon, this), "image", {480, 20, 80, 80});
        reportSignal(image, &ImageSwitchButton::signal_clicked, "signal_clicked=%d");

        auto *toggle = place(new SwitchButton(this), "switch", {240, 120, 119, 68});
        reportSignal(toggle, &SwitchButton::toggled, "toggled=%d");
        reportSignal(toggle, &SwitchButton::stateChanged, "stateChanged=%d");
        connect(toggle, &SwitchButton::stateChanged, toggle, [toggle] {
            // A slide that another one cuts short does not finish.
            const auto *slide = toggle->findChildren<QPropertyAnimation *>().constLast();
            connect(slide, &QPropertyAnimation::finished, toggle, [toggle] {
                report(toggle,
                       QString::asprintf("rest=%d,checked=%d,state=%d", toggle->offset(),
                                         toggle->isChecked(), toggle->checkState()));
            });
        });

        auto *label = place(new ZClickLabel(this), "label", {380, 120, 120, 60});
        label->installEventFilter(this);
        reportSignal(label, &ZClickLabel::signal_pressed, "pressed");
        reportSignal(label, &ZClickLabel::signal_released, "released");
        reportSignal(label, &ZClickLabel::signal_clicked, "clicked");
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched->isWidgetType() && event->type() == QEvent::MouseButtonDblClick)
            report(watched, "doubleClick");
        if (event->type() == QEvent::Expose && windowHandle()->isExposed()) {
            windowHandle()->removeEventFilter(this);
            report(this, "ready");
        }
        return QWidget::eventFilter(watched, event);
    }

    // A press beside all widgets ends a gesture: what came before it has been handled by now.
    void mousePressEvent(QMouseEvent *event) override
    {
        if (childAt(event->pos()))
            return;
        const auto buttons = findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            if (button->isDown())
                report(button, "stays-down");
        }
        report(this, "end");
    }
};

} // namespace

int main(int argc, char *argv[])
{
    // Every step of the pointer has to arrive, however slow the machine.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    QApplication app(argc, argv);
    Window window;
    window.show();
    return QApplication::exec();
}
