#include "snippets.h"

#include <CircleButton>
#include <ImageSwitchButton>
#include <QTimer>
#include <RoundedButton>
#include <SwitchButton>
#include <ZButton>
#include <ZClickLabel>
#include <ZImageButton>
#include <ZRadioButton>
#include <ZSlider>
#include <functional>

using namespace ZIRVOUI;

bool deviceAgrees = true;
int timesToldDevice = 0;

namespace {

/*! Stands for a device that takes a moment to answer. */
void tellDevice(QObject *asker, bool, const std::function<void(bool)> &answer)
{
    ++timesToldDevice;
    QTimer::singleShot(0, asker, [answer] { answer(deviceAgrees); });
}

} // namespace

void zButton(QBoxLayout *page)
{
    //! [ZButton]
    auto *start = new ZButton("Start");
    start->setFixedHeight(64);
    start->setFontSize(24);
    start->setRadius(32);
    start->setMouseEventToParent(true); // a list can be dragged by its buttons
    QObject::connect(start, &ZButton::clicked, start, [=] { start->setText("Started"); });
    page->addWidget(start);
    //! [ZButton]
}

void roundedButton(QBoxLayout *page)
{
    //! [RoundedButton]
    auto *scene = new RoundedButton;
    scene->setText("Evening");
    scene->setFixedSize(200, 96);
    scene->setRadius(24);
    scene->setBackgroundImage(QPixmap(":/icons/hills.png"));
    scene->setBorderWidth(3);
    scene->setBorderColor("#ebc232");
    page->addWidget(scene);
    //! [RoundedButton]
}

void circleButton(QBoxLayout *page)
{
    auto *volume = new ZSlider;
    page->addWidget(volume);
    //! [CircleButton]
    auto *louder = new CircleButton(":/icons/plus.svg");
    louder->setFixedSize(96, 96);
    louder->setBackgroundColor("#1f5fae");
    louder->setLongPressDelayMS(500);
    louder->setLongPressRepeat(true);
    louder->setLongPressIntervalMS(100);
    const auto step = [=] { volume->setValue(volume->value() + 1); };
    QObject::connect(louder, &CircleButton::clicked, volume, step); // a tap, and the end of a hold
    QObject::connect(louder, &CircleButton::signal_longPressed, volume, step); // ten times a second
    page->addWidget(louder);
    //! [CircleButton]
}

void imageSwitchButton(QBoxLayout *page)
{
    //! [ImageSwitchButton]
    auto *sound = new ImageSwitchButton(":/icons/speaker_on.svg", ":/icons/speaker_off.svg");
    sound->setFixedSize(96, 96);
    sound->setBackgroundColor("#1f5fae");
    sound->setOpenState(true);
    QObject::connect(sound, &ImageSwitchButton::signal_clicked, sound,
                     [=](bool open) { sound->setBackgroundColor(open ? "#1f5fae" : "#434a54"); });
    page->addWidget(sound);
    //! [ImageSwitchButton]
}

void namedSwitch(QBoxLayout *page)
{
    //! [named switch]
    auto *sound = new ImageSwitchButton(":/icons/speaker_on.svg", ":/icons/speaker_off.svg");
    sound->setFixedSize(96, 96);
    sound->setAccessibleName("Sound, off");
    QObject::connect(sound, &ImageSwitchButton::signal_clicked, sound, [=](bool open) {
        sound->setAccessibleName(open ? "Sound, on" : "Sound, off");
    });
    page->addWidget(sound);
    //! [named switch]
}

void zImageButton(QBoxLayout *page)
{
    //! [ZImageButton]
    auto *lamp = new ZImageButton("Lamp", ":/icons/lamp.svg", ":/icons/check.svg");
    lamp->setFixedSize(160, 120);
    lamp->setIcoRect({52, 16, 56, 56}); // the rectangles do not follow the size
    lamp->setTextRect({0, 76, 160, 36});
    lamp->setBgColor("#434a54");
    lamp->setRadius(16);
    lamp->setSingSize(32, 32);
    lamp->setSignVisible(lamp->isChecked());
    page->addWidget(lamp);
    //! [ZImageButton]
}

void zRadioButton(QBoxLayout *page)
{
    //! [ZRadioButton]
    for (const char *time : {"Morning", "Noon", "Evening"}) {
        auto *choice = new ZRadioButton(time);
        choice->setMinimumSize(160, 40);
        choice->setSpacing(12);
        choice->setInternalCircleFillColor("#4da3ff");
        page->addWidget(choice); // those of one parent exclude each other
    }
    //! [ZRadioButton]
}

void switchButton(QBoxLayout *page)
{
    auto *heating = new ZClickLabel("Off");
    page->addWidget(heating);
    //! [SwitchButton]
    auto *onOff = new SwitchButton;
    onOff->setCheckText("On");
    onOff->setNoCheckText("Off");
    onOff->setCheckedBackground("#2c9e63");
    QObject::connect(onOff, &SwitchButton::stateChanged, heating, [=](int state) {
        heating->setText(state == Qt::Unchecked ? "Off" : "Heating");
    });
    page->addWidget(onOff);
    //! [SwitchButton]
}

void confirmedSwitch(QBoxLayout *page)
{
    //! [confirmed switch]
    auto *pump = new SwitchButton(nullptr, false); // a tap asks, and does not move the knob
    QObject::connect(pump, &SwitchButton::toggled, pump, [=](bool on) {
        pump->setEnabled(false);
        tellDevice(pump, on, [=](bool isDone) {
            pump->setEnabled(true);
            if (isDone) {
                pump->setCheckState(on ? Qt::Checked : Qt::Unchecked); // the knob slides
            } else {
                const QSignalBlocker blocker(pump); // nothing is asked anew
                pump->setChecked(!on);
            }
        });
    });
    page->addWidget(pump);
    //! [confirmed switch]
}
