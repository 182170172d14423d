#include "displaypage.h"

#include "clock.h"
#include "look.h"
#include "parts.h"

#include <MaskWidget>
#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QSettings>
#include <SwitchButton>
#include <ZRadioButton>
#include <ZSlider>
#include <ZSvgWidget>

using namespace ZIRVOUI;

namespace {

const char BrightnessKey[] = "display/brightness";
const char BlurKey[] = "display/blur";

constexpr int LowestBrightness = 10; // percent; less could not be undone
constexpr int MostBlur = 40; // px
constexpr int DefaultBlur = 12; // px
constexpr int SunSize = 40;
constexpr int PercentWidth = 72;
constexpr int RadioHeight = 36;
constexpr int RadioSpacing = 16;
constexpr int RadioLine = 3;
constexpr int BlurStretch = 4;

/*! A choice that takes taps on the whole of its row, where the style wants its own circle hit. */
class RowRadio : public ZRadioButton
{
public:
    using ZRadioButton::ZRadioButton;

protected:
    bool hitButton(const QPoint &position) const override { return rect().contains(position); }
};

ZRadioButton *newRadio(Look *look, const QString &name)
{
    auto *radio = new RowRadio(name);
    radio->setFixedHeight(RadioHeight);
    radio->setSpacing(RadioSpacing);
    radio->setThickness(RadioLine);
    QFont font = radio->font();
    font.setPixelSize(Parts::TextSize);
    radio->setFont(font);
    return look->dress<ZRadioButton>(radio, [name](ZRadioButton *radio, const Theme &theme) {
        radio->setChecked(theme.name == name);
        radio->setTextColor(theme.ink);
        radio->setExternalCircleLineColor(theme.quietInk);
        radio->setInternalCircleFillColor(theme.accent);
    });
}

void blur(MaskWidget *mask, int radius)
{
    mask->setBlurRadius(radius);
    mask->setPixmap(mask->pixmap());
    mask->update(); // a picture that is not blurred does not repaint
}

} // namespace

DisplayPage::DisplayPage(Look *look, Clock *clock, QWidget *parent)
    : QWidget(parent)
    , m_look(look)
    , m_clock(clock)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Parts::Gap);
    row->addWidget(newAppearance(), 2);
    row->addWidget(newWallpaper(), 3);

    QBoxLayout *column = Parts::newPage(this, tr("Display"));
    column->addWidget(newBrightness());
    column->addLayout(row, 1);
}

int DisplayPage::brightness()
{
    const int kept = QSettings().value(BrightnessKey, FullBrightness).toInt();
    return qBound(LowestBrightness, kept, FullBrightness);
}

int DisplayPage::wallpaperBlur()
{
    return qBound(0, QSettings().value(BlurKey, DefaultBlur).toInt(), MostBlur);
}

QWidget *DisplayPage::newBrightness()
{
    auto *sun = new ZSvgWidget(":/panel/sun.svg");
    sun->setFixedSize(SunSize, SunSize);
    auto *percent = Parts::newText(tr("%1 %").arg(brightness()));
    percent->setFixedWidth(PercentWidth);
    percent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    ZSlider *slider = Parts::newSlider(m_look, LowestBrightness, FullBrightness, brightness());
    slider->setObjectName("brightness");
    connect(slider, &ZSlider::valueChanged, this, [=](int value) {
        percent->setText(tr("%1 %").arg(value));
        QSettings().setValue(BrightnessKey, value);
        Q_EMIT brightnessChanged(value);
    });

    auto *row = new QHBoxLayout;
    row->setSpacing(Parts::Gap);
    row->addWidget(sun);
    row->addWidget(slider, 1);
    row->addWidget(percent);
    return Parts::newCard(m_look, row);
}

QWidget *DisplayPage::newAppearance()
{
    SwitchButton *hours = Parts::newSwitch(m_look, m_clock->has24Hours());
    hours->setObjectName("24 hours");
    connect(hours, &SwitchButton::stateChanged, m_clock,
            [this](int state) { m_clock->set24Hours(state == Qt::Checked); });

    auto *column = new QVBoxLayout;
    column->setSpacing(Parts::Gap);
    column->addWidget(Parts::newCaption(m_look, tr("Theme")));
    addThemes(column);
    column->addStretch();
    column->addWidget(Parts::newCaption(m_look, tr("Time")));
    column->addLayout(Parts::newRow(tr("24-hour clock"), hours));
    return Parts::newCard(m_look, column);
}

void DisplayPage::addThemes(QBoxLayout *column)
{
    auto *group = new QButtonGroup(this);
    for (const Theme &theme : Look::themes()) {
        ZRadioButton *radio = newRadio(m_look, theme.name);
        radio->setObjectName(QString("theme ") + theme.name);
        group->addButton(radio);
        column->addWidget(radio);
        connect(radio, &ZRadioButton::clicked, m_look, [=] { m_look->setTheme(radio->text()); });
    }
}

QWidget *DisplayPage::newWallpaper()
{
    auto *preview = new MaskWidget;
    preview->setObjectName("wallpaper");
    preview->setDistance(0);
    preview->setBlurRadius(wallpaperBlur());
    preview->setPixmap(QPixmap(":/panel/dusk.png"));
    preview->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    ZSlider *slider = Parts::newSlider(m_look, 0, MostBlur, wallpaperBlur());
    slider->setObjectName("blur");
    connect(slider, &ZSlider::valueChanged, preview, [=](int radius) {
        QSettings().setValue(BlurKey, radius);
        blur(preview, radius);
    });

    auto *column = new QVBoxLayout;
    column->setSpacing(Parts::Gap);
    column->addWidget(Parts::newCaption(m_look, tr("Wallpaper of the lock screen")));
    column->addWidget(preview, 1);
    QBoxLayout *row = Parts::newRow(tr("Blur"), slider);
    row->setStretchFactor(slider, BlurStretch);
    column->addLayout(row);
    return Parts::newCard(m_look, column);
}
