#ifndef IPVALIDATOR_H
#define IPVALIDATOR_H

#include "zcommonwidgets_export.h"

#include <QValidator>

/*!
 * Lets only an IPv4 address be typed: four numbers from 0 to 255 without leading zeros, with dots
 * between them.
 *
 * Fewer numbers are Intermediate, the empty text included, and so are dots without a number between
 * them as long as there are at most three; everything else is Invalid.  The text and the cursor are
 * never changed, and fixup() does nothing.
 *
 * A digit is what QChar::isDigit() takes for one, so that digits of other scripts pass where any
 * digit may stand: accept the text only for what QHostAddress or the like makes of it.
 */
class ZCOMMONWIDGETS_EXPORT IPValidator : public QValidator
{
    Q_OBJECT

public:
    /*! \a parent owns the validator; the line edit that uses it does not. */
    explicit IPValidator(QObject *parent = nullptr);
    ~IPValidator() override;

    /*! Changes neither \a input nor \a pos, and does not look at the latter. */
    State validate(QString &input, int &pos) const override;
};

#endif
