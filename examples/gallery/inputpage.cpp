#include "inputpage.h"

#include "controlpanel.h"
#include "ipvalidator.h"
#include "lineedit.h"
#include "look.h"
#include "page.h"
#include "pages.h"
#include "signalcounts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

using ZIRVOUI::LineEdit;

namespace {

constexpr QSize PlateSize(232, 56);
constexpr int PlateRadius = 12;
constexpr int PlatePadding = 14;
constexpr int LargeText = 36; // px
constexpr QRgb Red = 0xff7a2f3a;

/*! Accepts words with single spaces between them, which it makes of other texts. */
class TidyValidator : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &input, int &) const override
    {
        return input == input.simplified() ? Acceptable : Intermediate;
    }

    void fixup(QString &input) const override { input = input.simplified(); }
};

QBrush plateGradient()
{
    QLinearGradient gradient(0, 0, PlateSize.width(), 0);
    gradient.setColorAt(0, Look::Blue);
    gradient.setColorAt(1, Red);
    return gradient;
}

QBrush platePicture()
{
    const QPixmap hills(":/gallery/hills.png");
    return hills.scaled(PlateSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

LineEdit *addFields(Exhibit *exhibit)
{
    LineEdit *live = addPlate(exhibit, "On a colour", "Living room")->field();
    addPlate(exhibit, "On a gradient", "Kitchen")->setBrush(plateGradient());
    addPlate(exhibit, "On a picture", "Garden")->setBrush(platePicture());
    addPlate(exhibit, "Disabled", "Basement")->field()->setEnabled(false);

    addPlate(exhibit, "Large text", "12:45")->field()->setFontSize(LargeText);
    addPlate(exhibit, "Placeholder", QString())->field()->setPlaceholderText("Name of the room");
    LineEdit *address = addPlate(exhibit, "With an IPValidator", "192.168.0.1")->field();
    address->setValidator(new IPValidator(address));
    addPlate(exhibit, "Password", "12345678")->field()->setEchoMode(QLineEdit::Password);
    return live;
}

void addFieldControls(ControlPanel *controls, LineEdit *field)
{
    auto *reading = new QLabel;
    const auto showAcceptable
        = [=] { reading->setText(field->hasAcceptableInput() ? "Acceptable" : "Not acceptable"); };
    QObject::connect(field, &QLineEdit::textChanged, reading, showAcceptable);

    auto *tidy = new TidyValidator(field);
    field->setValidator(tidy);
    showAcceptable();
    controls->addChoice<const QValidator *>(
        "Validator",
        {{"Single spaces", tidy}, {"IP address", new IPValidator(field)}, {"None", nullptr}},
        [=](const QValidator *validator) {
            field->setValidator(validator);
            showAcceptable();
        });
    controls->addActions("Text",
                         {{"Untidy", [=] { field->setText("  Dining   room "); }},
                          {"fixUp()", [=] { field->fixUp(); }}});
    controls->addRow("Its text is", reading);
    controls->addNumber("Text size", 12, 48, field->font().pixelSize(),
                        [=](int size) { field->setFontSize(size); });
    controls->addSwitch("Enabled", true, [=](bool on) { field->setEnabled(on); });
}

void addLineEdit(Page *page)
{
    Exhibit *exhibit = page->addExhibit(
        "LineEdit", "White text without frame or background, on what the application draws",
        Exhibit::Full);
    LineEdit *live = addFields(exhibit);
    addFieldControls(exhibit->controls(), live);

    auto *counts = new SignalCounts;
    for (LineEdit *field : exhibit->findChildren<LineEdit *>()) {
        counts->watch("focusIn", field, &LineEdit::signal_focusIn);
        counts->watch("focusOut", field, &LineEdit::signal_focusOut);
    }
    exhibit->controls()->addRow("On all fields", counts);
}

} // namespace

Plate::Plate()
    : m_field(new LineEdit)
    , m_brush(QColor(Look::Gray))
{
    setFixedSize(PlateSize);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(PlatePadding, 0, PlatePadding, 0);
    row->addWidget(m_field);
}

LineEdit *Plate::field() const
{
    return m_field;
}

void Plate::setBrush(const QBrush &brush)
{
    m_brush = brush;
    update();
}

void Plate::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_brush);
    painter.drawRoundedRect(rect(), PlateRadius, PlateRadius);
}

Plate *addPlate(Exhibit *exhibit, const QString &caption, const QString &text)
{
    auto *plate = new Plate;
    plate->field()->setText(text);
    exhibit->addSpecimen(caption, plate);
    return plate;
}

void fillInputPage(Page *page)
{
    addLineEdit(page);
    addIPValidator(page);
}
