#include "exhibit.h"

#include "controlpanel.h"
#include "look.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

namespace {

constexpr int Padding = 16;
constexpr int Gap = 8;
constexpr int CornerRadius = 16;
constexpr int TitleSize = 24;
constexpr int TextSize = 16;
constexpr int SpecimensInHalf = 2;
constexpr int SpecimensInFull = 4;
constexpr int ControlsInHalf = 1;
constexpr int ControlsInFull = 3;

} // namespace

Exhibit::Exhibit(const QString &name, const QString &description, Width width, QWidget *parent)
    : QWidget(parent)
    , m_name(name)
    , m_stage(new QWidget)
    , m_specimens(new QGridLayout(m_stage))
    , m_controls(new ControlPanel(width == Half ? ControlsInHalf : ControlsInFull))
    , m_specimensPerRow(width == Half ? SpecimensInHalf : SpecimensInFull)
{
    m_specimens->setContentsMargins(0, Gap, 0, Gap);
    m_specimens->setVerticalSpacing(2 * Gap);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(Padding, Padding - Gap / 2, Padding, Padding);
    column->setSpacing(Gap / 2);
    column->addWidget(newText(name, TitleSize, Look::Ink));
    column->addWidget(newText(description, TextSize, Look::QuietInk));
    column->addWidget(m_stage, 1);
    column->addWidget(m_controls);
}

QString Exhibit::name() const
{
    return m_name;
}

ControlPanel *Exhibit::controls() const
{
    return m_controls;
}

void Exhibit::addSpecimen(const QString &caption, QWidget *specimen, int columns)
{
    const bool isFirst = m_count == 0;
    QLabel *label = newText(isFirst ? QString::fromUtf8("\u25cf ") + caption : caption, TextSize,
                            isFirst ? Look::Accent : Look::QuietInk);

    auto *cell = new QVBoxLayout;
    cell->setSpacing(Gap / 2);
    cell->addWidget(specimen, 0, Qt::AlignCenter);
    cell->addWidget(label, 0, Qt::AlignHCenter);

    const int column = m_count % m_specimensPerRow;
    m_specimens->addLayout(cell, m_count / m_specimensPerRow, column, 1, columns, Qt::AlignCenter);
    for (int i = column; i < column + columns; ++i)
        m_specimens->setColumnStretch(i, 1);
    m_count += columns;
}

void Exhibit::setStill(const std::function<void()> &still)
{
    m_still = still;
}

void Exhibit::standStill()
{
    if (m_still)
        m_still();
}

QPixmap Exhibit::grabSpecimens()
{
    // The stage is transparent: the card behind it belongs to the picture.
    return grab(m_stage->geometry());
}

void Exhibit::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Look::Card));
    painter.drawRoundedRect(rect(), CornerRadius, CornerRadius);
}
