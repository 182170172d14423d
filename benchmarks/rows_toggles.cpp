#include "row.h"

#include <QAbstractAnimation>
#include <QCheckBox>
#include <QRadioButton>
#include <switchbutton.h>
#include <zradiobutton.h>

using ZIRVOUI::SwitchButton;
using ZIRVOUI::ZRadioButton;

namespace {

constexpr QSize SwitchSize(119, 68);
constexpr int KnobDiameter = 52;
constexpr int KnobMargin = 8;
constexpr QRgb OnColor = 0xff399efb;
constexpr QRgb OffColor = 0x4c797b81;
constexpr QRgb DashColor = 0xff1f81dd;
constexpr double DashLength = 7;
constexpr double DashWidth = 2;
constexpr double TextMargin = 4;
constexpr int TextSize = 10; // points
constexpr double CircleThickness = 2;
constexpr QRgb CircleColor = 0xff979797;
constexpr double DotGap = 0.2; // of the radius
constexpr int Spacing = 30;

const QString OnText = QStringLiteral("ON");
const QString OffText = QStringLiteral("OFF");
const QString Label = QStringLiteral("Every day");
const QString SwitchSheet = QStringLiteral(
    "QCheckBox { color: white; } QCheckBox::indicator { width: 119px; height: 68px; "
    "border-radius: 34px; background: #4c797b; } "
    "QCheckBox::indicator:checked { background: #399efb; }");
const QString RadioSheet = QStringLiteral(
    "QRadioButton { color: white; spacing: 30px; } QRadioButton::indicator { width: 36px; "
    "height: 36px; border-radius: 20px; border: 2px solid #979797; } "
    "QRadioButton::indicator:checked { background: #979797; }");

SwitchButton *newSwitch(Qt::CheckState state)
{
    auto *button = new SwitchButton;
    button->setCheckText(OnText);
    button->setNoCheckText(OffText);
    button->setCheckState(state);
    for (auto *animation : button->findChildren<QAbstractAnimation *>())
        animation->setCurrentTime(animation->duration());
    return button;
}

QCheckBox *newCheckBox(Qt::CheckState state)
{
    auto *box = new QCheckBox(state == Qt::Unchecked ? OffText : OnText);
    box->setTristate(state == Qt::PartiallyChecked);
    box->setCheckState(state);
    return box;
}

void drawDash(QPainter &painter, const QPointF &center)
{
    const QPointF half(DashLength / 2, 0);
    painter.setPen({QColor(DashColor), DashWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin});
    painter.drawLine(center - half, center + half);
}

void drawSwitch(QPainter &painter, const QSize &size, Qt::CheckState state)
{
    const bool isOff = state == Qt::Unchecked;
    const double left = isOff ? KnobMargin : size.width() - KnobMargin - KnobDiameter;
    const QRectF knob(left, KnobMargin, KnobDiameter, KnobDiameter);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isOff ? QColor::fromRgba(OffColor) : QColor(OnColor));
    painter.drawRoundedRect(wholeOf(size), size.height() / 2, size.height() / 2);
    painter.setBrush(Qt::white);
    painter.drawEllipse(knob);
    if (state == Qt::PartiallyChecked)
        drawDash(painter, knob.center());

    painter.setFont(QFont(QStringLiteral("Arial"), TextSize));
    painter.setPen(Qt::white);
    painter.drawText(wholeOf(size).adjusted(TextMargin, 0, -TextMargin, 0),
                     int(Qt::AlignVCenter | (isOff ? Qt::AlignRight : Qt::AlignLeft)),
                     isOff ? OffText : OnText);
}

Row switchRow(const QString &name, Qt::CheckState state)
{
    return {name,
            SwitchSize,
            [=] { return newSwitch(state); },
            [=](QPainter &painter, const QSize &size, int) { drawSwitch(painter, size, state); },
            [=] { return newCheckBox(state); },
            SwitchSheet};
}

template <typename Button>
Button *newRadio(bool isChecked)
{
    auto *button = new Button(Label);
    button->setChecked(isChecked);
    return button;
}

QRectF circleAround(double center, double radius)
{
    return {center - radius, center - radius, 2 * radius, 2 * radius};
}

void drawRadio(QPainter &painter, const QSize &size, bool isChecked)
{
    const double center = size.height() / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        {QColor(CircleColor), CircleThickness, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin});
    painter.setBrush(Qt::transparent);
    painter.drawEllipse(circleAround(center, center - CircleThickness));
    if (isChecked) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(CircleColor));
        painter.drawEllipse(circleAround(center, center - DotGap * center - CircleThickness));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::white);
    painter.drawText(wholeOf(size).adjusted(size.height() + Spacing, 0, 0, 0), Qt::AlignVCenter,
                     Label);
}

Row radio(const QString &name, bool isChecked)
{
    const auto bare
        = [=](QPainter &painter, const QSize &size, int) { drawRadio(painter, size, isChecked); };
    return {name,
            {220, 40},
            [=] { return newRadio<ZRadioButton>(isChecked); },
            bare,
            [=] { return newRadio<QRadioButton>(isChecked); },
            RadioSheet};
}

} // namespace

Rows toggleRows()
{
    return {switchRow(QStringLiteral("SwitchButton, off"), Qt::Unchecked),
            switchRow(QStringLiteral("SwitchButton, on"), Qt::Checked),
            switchRow(QStringLiteral("SwitchButton, between"), Qt::PartiallyChecked),
            radio(QStringLiteral("ZRadioButton"), false),
            radio(QStringLiteral("ZRadioButton, checked"), true)};
}
