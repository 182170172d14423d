#include "controlpanel.h"

#include "look.h"

#include <QColor>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QStyledItemDelegate>

namespace {

constexpr int CaptionSize = 16;
constexpr int CaptionWidth = 108;
constexpr int FingerSize = 48;
constexpr int ValueWidth = 40;
constexpr int RowGap = 6;
constexpr int ColumnGap = 16;
constexpr int ButtonGap = 6;

QHBoxLayout *newRow(QWidget *parent)
{
    auto *row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(ButtonGap);
    return row;
}

QString switchText(bool on)
{
    return on ? "On" : "Off";
}

} // namespace

ControlPanel::ControlPanel(int controlsPerRow, QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
    , m_controlsPerRow(controlsPerRow)
{
    dressControls(this, "controls");
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(ColumnGap);
    m_grid->setVerticalSpacing(RowGap);
    for (int column = 0; column < controlsPerRow; ++column)
        m_grid->setColumnStretch(column, 1);
}

void ControlPanel::addNumber(const QString &caption, int from, int to, int value,
                             const std::function<void(int)> &apply)
{
    auto *number = new QWidget;
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(from, to);
    slider->setValue(value);
    auto *reading = new QLabel(QString::number(value));
    reading->setFixedWidth(ValueWidth);
    reading->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    QHBoxLayout *row = newRow(number);
    row->addWidget(slider, 1);
    row->addWidget(reading);

    connect(slider, &QSlider::valueChanged, reading, QOverload<int>::of(&QLabel::setNum));
    connect(slider, &QSlider::valueChanged, this, apply);
    addRow(caption, number);
}

void ControlPanel::addSwitch(const QString &caption, bool on,
                             const std::function<void(bool)> &apply)
{
    auto *button = new QPushButton(switchText(on));
    button->setCheckable(true);
    button->setChecked(on);
    connect(button, &QPushButton::toggled, button,
            [button](bool checked) { button->setText(switchText(checked)); });
    connect(button, &QPushButton::toggled, this, apply);
    addRow(caption, button);
}

void ControlPanel::addText(const QString &caption, const QString &text,
                           const std::function<void(const QString &)> &apply)
{
    auto *edit = new QLineEdit(text);
    connect(edit, &QLineEdit::textChanged, this, apply);
    addRow(caption, edit);
}

void ControlPanel::addColor(const QString &caption, const QStringList &names,
                            const std::function<void(const QColor &)> &apply)
{
    auto *swatches = new QWidget;
    QHBoxLayout *row = newRow(swatches);
    for (const QString &name : names) {
        auto *swatch = new QPushButton;
        swatch->setStyleSheet("background-color: " + name);
        row->addWidget(swatch);
        connect(swatch, &QPushButton::clicked, this, [=] { apply(QColor(name)); });
    }
    addRow(caption, swatches);
}

void ControlPanel::addActions(const QString &caption, const Actions &actions)
{
    auto *buttons = new QWidget;
    QHBoxLayout *row = newRow(buttons);
    for (const auto &action : actions) {
        auto *button = new QPushButton(action.first);
        connect(button, &QPushButton::clicked, this, action.second);
        row->addWidget(button);
    }
    addRow(caption, buttons);
}

void ControlPanel::addRow(const QString &caption, QWidget *control, int columns)
{
    QLabel *label = newText(caption, CaptionSize, Look::QuietInk);
    label->setFixedWidth(CaptionWidth);
    control->setFixedHeight(FingerSize);

    auto *row = new QHBoxLayout;
    row->setSpacing(ButtonGap);
    row->addWidget(label);
    row->addWidget(control, 1);
    m_grid->addLayout(row, m_count / m_controlsPerRow, m_count % m_controlsPerRow, 1, columns);
    m_count += columns;
}

void ControlPanel::addIndexedChoice(const QString &caption, const QStringList &names,
                                    const std::function<void(int)> &apply)
{
    auto *box = new QComboBox;
    box->addItems(names);
    // The delegate that a combo box brings along ignores the row height of the style sheet.
    box->setItemDelegate(new QStyledItemDelegate(box));
    connect(box, QOverload<int>::of(&QComboBox::activated), this, apply);
    addRow(caption, box);
}
