// A window of widgets that prints a line for each of their signals: "<object name> <signal>".
#include "circlebutton.h"
#include "imageswitchbutton.h"
#include "ipvalidator.h"
#include "lineedit.h"
#include "report.h"
#include "roundedbutton.h"
#include "switchbutton.h"
#include "zbutton.h"
#include "zclicklabel.h"
#include "zscrollbar.h"
#include "zslider.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPropertyAnimation>
#include <QScrollArea>

using namespace ZIRVOUI;

namespace {

// Finds the left edge above the groove, where the handle is almost at its widest.
QString seen(ZSlider &slider)
{
    constexpr int AboveGroove = 6;
    const QImage image = slider.grab().toImage();
    int x = 0;
    while (x < image.width() && image.pixel(x, AboveGroove) == image.pixel(0, 0))
        ++x;
    return QString::asprintf("handle=%d", x);
}

QString seen(ZScrollBar &bar)
{
    return "middle=" + bar.grab().toImage().pixelColor(bar.rect().center()).name();
}

/*! Reports what is to be seen of it when an event of mouse or keys has changed that. */
template <typename Widget>
struct Watched : Widget
{
    using Widget::Widget;

    bool event(QEvent *event) override
    {
        const bool handled = Widget::event(event);
        if (dynamic_cast<const QInputEvent *>(event) && m_lastSeen != seen(*this))
            report(this, m_lastSeen = seen(*this));
        return handled;
    }

    QString m_lastSeen;
};

/*! Holds one button, which follows the finger up and down. */
struct Scroller : QWidget
{
    using QWidget::QWidget;

    void mousePressEvent(QMouseEvent *event) override
    {
        m_lastY = event->y();
        report(this, "press");
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        scroll(0, event->y() - m_lastY);
        m_lastY = event->y();
    }

    void mouseReleaseEvent(QMouseEvent *) override
    {
        report(this, QString::asprintf("release,y=%d", findChild<ZButton *>()->y()));
    }

    int m_lastY = 0;
};

struct Window : QWidget
{
    Window()
    {
        place(this, "window", {0, 0, 600, 560});
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
            connect(slide, &QPropertyAnimation::finished, toggle,
                    [toggle] { report(toggle, QString::asprintf("rest=%d", toggle->offset())); });
        });

        auto *label = place(new ZClickLabel(this), "label", {380, 120, 120, 60});
        label->installEventFilter(this);
        reportSignal(label, &ZClickLabel::signal_pressed, "pressed");
        reportSignal(label, &ZClickLabel::signal_released, "released");
        reportSignal(label, &ZClickLabel::signal_clicked, "clicked");

        placeRanges();
        placeFields();
    }

    void placeRanges()
    {
        auto *slider = place(new Watched<ZSlider>(this), "", {20, 330, 220, 20});
        slider->setRange(0, 100);
        slider->setSingleStep(10);
        reportSlider(slider, "slider");

        placeScrollArea(new QScrollBar(this), "stock bar", {260, 330, 140, 200});
        placeScrollArea(new ZScrollBar(this), "bar", {410, 330, 140, 200});
        place(new Watched<ZScrollBar>(this), "lone bar", {560, 330, 16, 200})->setValue(50);
    }

    void placeScrollArea(QScrollBar *bar, const char *name, const QRect &rect)
    {
        auto *area = place(new QScrollArea(this), "", rect);
        area->setWidget(place(new QWidget, "", {0, 0, 100, 1000}));
        area->setVerticalScrollBar(bar);
        reportSlider(bar, name);
    }

    void placeFields()
    {
        placeField(new QLineEdit(this), "field before", {20, 370, 220, 30});
        auto *address = placeField(new LineEdit(this), "address", {20, 410, 220, 30});
        auto *field = placeField(new LineEdit(this), "field", {20, 450, 220, 30});
        placeField(new QLineEdit(this), "field after", {20, 490, 220, 30});

        address->setValidator(new IPValidator(this));
        for (LineEdit *edit : {address, field}) {
            reportSignal(edit, &LineEdit::signal_focusIn, "signal_focusIn");
            reportSignal(edit, &LineEdit::signal_focusOut, "signal_focusOut");
        }
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonDblClick)
            report(watched, "doubleClick");
        return QWidget::eventFilter(watched, event);
    }

    // A press beside all widgets ends a gesture: what came before it has been handled by now.
    void mousePressEvent(QMouseEvent *event) override
    {
        if (childAt(event->pos()))
            return;
        for (const auto *button : findChildren<QAbstractButton *>()) {
            if (button->isDown())
                report(button, "stays-down");
        }
        report(this, "end");
    }
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setStyle(QStringLiteral("fusion")); // places the parts of scroll bars
    QApplication app(argc, argv);
    // Every step of the pointer has to arrive, however slow the machine; the platform sets this.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    Window window;
    window.show();
    return QApplication::exec();
}
