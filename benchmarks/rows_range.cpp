#include "row.h"

#include <QPainterPath>
#include <QScrollBar>
#include <QSlider>
#include <QStyleOptionSlider>
#include <zscrollbar.h>
#include <zslider.h>

using ZIRVOUI::ZScrollBar;
using ZIRVOUI::ZSlider;

namespace {

constexpr QSize SliderSize(240, 40);
constexpr int Value = 60;
constexpr int Maximum = 100;
constexpr int GrooveHeight = 6;
constexpr double DisabledOpacity = 0.3;
constexpr QRgb GrooveColor = 0xff797979;
constexpr QRgb SlippedColor = 0xff0f70e2;
constexpr QRgb DisabledHandle = 0xff797b81;

const QString SliderSheet = QStringLiteral(
    "QSlider::groove:horizontal { height: 6px; background: #797979; } "
    "QSlider::sub-page:horizontal { background: #0f70e2; margin: 17px 0; } "
    "QSlider::handle:horizontal { width: 40px; margin: -17px 0; border-radius: 20px; "
    "background: white; }");

ZSlider *newSlider(bool isEnabled, bool isDown)
{
    auto *slider = new ZSlider;
    slider->QWidget::setFixedSize(SliderSize);
    slider->setRange(0, Maximum);
    slider->setValue(Value);
    slider->setEnabled(isEnabled);
    slider->setSliderDown(isDown);
    return slider;
}

QSlider *newStockSlider(bool isEnabled, bool isDown)
{
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, Maximum);
    slider->setValue(Value);
    slider->setEnabled(isEnabled);
    slider->setSliderDown(isDown);
    return slider;
}

void drawSlider(QPainter &painter, const QSize &size, bool isEnabled, const QColor &handle)
{
    const double left = double(Value) / Maximum * (size.width() - size.height());
    const int top = (size.height() - GrooveHeight) / 2;
    QLinearGradient groove(0, 0, size.width() - 1, 0);
    groove.setColorAt(1, QColor(GrooveColor));

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled ? 1 : DisabledOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(groove);
    painter.drawRoundedRect(QRectF(1, top, size.width() - 2, size.height() - 2 * top), 0, 0);
    painter.setBrush(QColor(SlippedColor));
    painter.drawRoundedRect(QRectF(1, top, int(size.height() / 2 + left), size.height() - 2 * top),
                            0, 0);
    painter.setOpacity(1);
    painter.setBrush(handle);
    painter.drawEllipse(int(left), 0, size.height(), size.height());
}

Row slider(const QString &name, const QColor &handle, bool isEnabled, bool isDown)
{
    const auto bare = [=](QPainter &painter, const QSize &size, int) {
        drawSlider(painter, size, isEnabled, handle);
    };
    return {name,
            SliderSize,
            [=] { return newSlider(isEnabled, isDown); },
            bare,
            [=] { return newStockSlider(isEnabled, isDown); },
            SliderSheet};
}

// ---- scroll bar

constexpr QSize BarSize(16, 240);
constexpr int TrackMargin = 2;
constexpr double TrackRadius = 3;
constexpr double HandleRadius = 8;
constexpr QRgb TrackColor = 0xff25292f;
constexpr QRgb HandleColor = 0xff717582;

const QString BarSheet = QStringLiteral(
    "QScrollBar:vertical { background: #25292f; width: 16px; } QScrollBar::handle:vertical { "
    "background: #717582; border-radius: 6px; margin: 2px; } "
    "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }");

struct HandleFinder : QScrollBar
{
    using QScrollBar::QScrollBar;
    QRect handle() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider,
                                       this);
    }
};

template <typename Bar>
Bar *newBar()
{
    auto *bar = new Bar(Qt::Vertical);
    bar->QWidget::setFixedSize(BarSize);
    bar->setRange(0, Maximum);
    bar->setPageStep(Maximum / 2);
    bar->setValue(Value);
    return bar;
}

ZScrollBar *newScrollBar()
{
    auto *bar = newBar<ZScrollBar>();
    bar->setBackGroudColor(TrackColor);
    return bar;
}

void drawBar(QPainter &painter, const QSize &size, const QRect &handle)
{
    const QRectF track
        = wholeOf(size).adjusted(TrackMargin, TrackMargin, -TrackMargin, -TrackMargin);
    QPainterPath clip;
    clip.addRoundedRect(track, TrackRadius, TrackRadius);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(wholeOf(size), QPalette().window());
    painter.setClipPath(clip);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(TrackColor));
    painter.drawRect(track);
    painter.setBrush(QColor(HandleColor));
    painter.drawRoundedRect(handle, HandleRadius, HandleRadius);
}

Row scrollBar()
{
    const QScopedPointer<HandleFinder> finder(newBar<HandleFinder>());
    const QRect handle = finder->handle();
    return {QStringLiteral("ZScrollBar"),
            BarSize,
            newScrollBar,
            [=](QPainter &painter, const QSize &size, int) { drawBar(painter, size, handle); },
            newBar<QScrollBar>,
            BarSheet};
}

} // namespace

Rows rangeRows()
{
    return {slider(QStringLiteral("ZSlider"), Qt::white, true, false),
            slider(QStringLiteral("ZSlider, down"), SlippedColor, true, true),
            slider(QStringLiteral("ZSlider, disabled"), DisabledHandle, false, false), scrollBar()};
}
