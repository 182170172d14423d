#include "controlpanel.h"
#include "inputpage.h"
#include "ipvalidator.h"
#include "look.h"
#include "page.h"
#include "signalcounts.h"

namespace {

constexpr int TextSize = 22; // px
constexpr QRgb Green = 0xff2c6e49;
constexpr QRgb Red = 0xff7a2f3a;

QString stateText(QValidator::State state)
{
    switch (state) {
    case QValidator::Invalid:
        return "Invalid";
    case QValidator::Intermediate:
        return "Intermediate";
    case QValidator::Acceptable:
        break;
    }
    return "Acceptable";
}

QColor stateColor(QValidator::State state)
{
    if (state == QValidator::Intermediate)
        return Look::Gray;
    return state == QValidator::Acceptable ? Green : Red;
}

QValidator::State stateOf(const QValidator &validator, QString text)
{
    int cursor = text.size();
    return validator.validate(text, cursor);
}

void addJudgedText(Exhibit *exhibit, const IPValidator &validator, const QString &text,
                   const QString &reason)
{
    const QValidator::State state = stateOf(validator, text);
    Plate *plate = addPlate(exhibit, stateText(state) + ": " + reason, text);
    plate->setBrush(stateColor(state));
    plate->field()->setFontSize(TextSize);
    plate->field()->setReadOnly(true);
}

void addJudgedTexts(Exhibit *exhibit, const IPValidator &validator)
{
    addJudgedText(exhibit, validator, "10.0.0.255", "four numbers");
    addJudgedText(exhibit, validator, QString(), "empty");
    addJudgedText(exhibit, validator, "1...2", "two missing");
    addJudgedText(exhibit, validator, "256.0.0.1", "above 255");
    addJudgedText(exhibit, validator, "10.0.0.01", "leading zero");
    addJudgedText(exhibit, validator, "1.2.3.4.", "a fourth dot");
    addJudgedText(exhibit, validator, "::1", "not IPv4");
}

Plate *addAddress(Exhibit *exhibit, const IPValidator *validator)
{
    Plate *plate = addPlate(exhibit, "Type here", "192.168.");
    plate->field()->setFontSize(TextSize);
    plate->field()->setValidator(validator);
    return plate;
}

QLabel *newStateReading(Plate *plate, const IPValidator *validator)
{
    auto *reading = new QLabel;
    const auto showState = [=](const QString &text) {
        const QValidator::State state = stateOf(*validator, text);
        reading->setText(stateText(state));
        plate->setBrush(stateColor(state));
    };
    QObject::connect(plate->field(), &QLineEdit::textChanged, reading, showState);
    showState(plate->field()->text());
    return reading;
}

} // namespace

void addIPValidator(Page *page)
{
    Exhibit *exhibit
        = page->addExhibit("IPValidator", "Lets only an IPv4 address be typed", Exhibit::Full);
    auto *validator = new IPValidator(exhibit);
    Plate *live = addAddress(exhibit, validator);
    addJudgedTexts(exhibit, *validator);

    QLineEdit *field = live->field();
    auto *counts = new SignalCounts;
    counts->watch("returnPressed", field, &QLineEdit::returnPressed);
    ControlPanel *controls = exhibit->controls();
    controls->addActions(
        "Text",
        {{"Clear", [=] { field->clear(); }}, {"10.0.0.1", [=] { field->setText("10.0.0.1"); }}});
    controls->addRow("Its text is", newStateReading(live, validator));
    controls->addRow("Signals", counts);
}
