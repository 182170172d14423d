#include "lineedit.h"

#include "widgetlook_p.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QPointer>
#include <QTransform>
#include <QValidator>

namespace ZIRVOUI {

namespace {

constexpr QRgb DisabledTextColor = 0xff787878;

void tellInputMethod(const QWidget &widget)
{
    const QPoint position = widget.mapTo(widget.window(), QPoint());
    QInputMethod *method = QGuiApplication::inputMethod();
    method->setInputItemTransform(QTransform::fromTranslate(position.x(), position.y()));
    method->setInputItemRectangle(widget.rect());
    method->update(Qt::ImInputItemClipRectangle);
}

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

bool LineEdit::event(QEvent *event)
{
    if (event->type() != QEvent::FocusIn)
        return QLineEdit::event(event);

    // What QWidget does, which goes on with a widget that a slot may have deleted.
    const QPointer<LineEdit> guard(this);
    focusInEvent(static_cast<QFocusEvent *>(event));
    if (guard)
        tellInputMethod(*this);
    return true;
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
