#include "lineedit.h"

#include "widgetlook_p.h"

#include <QFocusEvent>
#include <QValidator>

namespace ZIRVOUI {

namespace {

constexpr QRgb DisabledTextColor = 0xff787878;

} // namespace

LineEdit::LineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setupStyle();
    setFocusPolicy(Qt::ClickFocus);
}

LineEdit::~LineEdit() = default;

void LineEdit::setupStyle()
{
    QPalette colors = palette();
    colors.setBrush(QPalette::All, QPalette::Base, QColor(Qt::transparent));
    colors.setBrush(QPalette::All, QPalette::Text, QColor(Qt::white));
    colors.setBrush(QPalette::Disabled, QPalette::Text, QColor(DisabledTextColor));
    setPalette(colors);
    setFrame(false);
}

void LineEdit::setFontSize(int size)
{
    setFontPixelSize(*this, size);
}

void LineEdit::fixUp()
{
    QString fixed = text();
    if (validator())
        validator()->fixup(fixed);
    setText(fixed);
}

void LineEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    Q_EMIT signal_focusIn(this);
}

void LineEdit::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    Q_EMIT signal_focusOut(this);
}

} // namespace ZIRVOUI
