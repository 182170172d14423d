#include "ipvalidator.h"

#include <QRegExp>
#include <QStringList>

namespace {

constexpr QLatin1Char Separator('.');
constexpr int PartCount = 4;

bool hasLeadingZero(const QString &part)
{
    return part.size() > 1 && part.startsWith(QLatin1Char('0'));
}

} // namespace

IPValidator::IPValidator(QObject *parent)
    : QValidator(parent)
{
}

IPValidator::~IPValidator() = default;

QValidator::State IPValidator::validate(QString &input, int &) const
{
    if (input.count(Separator) >= PartCount)
        return Invalid;

    // Of the two classes for this it is the older one whose \d are the digits of all scripts.
    const QRegExp number(QStringLiteral("^(?:[01]?\\d{1,2}|2[0-4]\\d|25[0-5])$"));
    int found = 0;
    const QStringList parts = input.split(Separator);
    for (const QString &part : parts) {
        if (part.isEmpty())
            continue;
        if (!number.exactMatch(part) || hasLeadingZero(part))
            return Invalid;
        ++found;
    }
    return found == PartCount ? Acceptable : Intermediate;
}
