#include "trial.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QStyleFactory>
#include <QTouchDevice>

namespace {

// Within the widget as a rule; touch panels report wild positions at times.
int position(int length, Values &values)
{
    constexpr int Wild = 32; // of 256
    constexpr int Furthest = 1 << 30; // Qt rounds positions, and the last ints overflow then
    constexpr int Screen = 4096;
    const int share = values.byte();
    if (share < Wild)
        return qBound(-Furthest, values.take<int>(), Furthest);
    return share * qBound(0, length, Screen) / 255;
}

QPoint position(const QWidget &widget, Values &values)
{
    const int x = position(widget.width(), values);
    return {x, position(widget.height(), values)};
}

template <QEvent::Type Type>
void mouse(QWidget &widget, Values &values)
{
    const QPoint place = position(widget, values);
    const auto button = values.below(4) == 0 ? Qt::RightButton : Qt::LeftButton;
    const bool isMove = Type == QEvent::MouseMove;
    const auto held = Type == QEvent::MouseButtonRelease || (isMove && values.below(2))
        ? Qt::MouseButtons()
        : Qt::MouseButtons(button);
    QMouseEvent event(Type, place, widget.mapToGlobal(place), isMove ? Qt::NoButton : button, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void key(QWidget &widget, Values &values)
{
    constexpr int Keys[]
        = {Qt::Key_Space,     Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,    Qt::Key_Left,
           Qt::Key_Right,     Qt::Key_Home,   Qt::Key_End,    Qt::Key_PageUp, Qt::Key_A,
           Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_1};
    const int code = Keys[values.below(int(std::size(Keys)))];
    const auto type = values.below(2) ? QEvent::KeyRelease : QEvent::KeyPress;
    const auto modifiers = values.below(4) ? Qt::NoModifier : Qt::ControlModifier;
    const QString text = code < Qt::Key_Escape ? QString(QChar(code)) : QString();
    QKeyEvent event(type, code, modifiers, text, values.below(4) == 0);
    QCoreApplication::sendEvent(&widget, &event);
}

void wheel(QWidget &widget, Values &values)
{
    const QPoint place = position(widget, values);
    const QPoint turned(0, values.take<int>());
    QWheelEvent event(place, widget.mapToGlobal(place), {}, turned, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

template <QEvent::Type Type>
void touch(QWidget &widget, Values &values)
{
    static QTouchDevice *device = new QTouchDevice;
    QTouchEvent::TouchPoint point(values.below(2));
    point.setPos(position(widget, values));
    const auto state = Type == QEvent::TouchBegin ? Qt::TouchPointPressed : Qt::TouchPointMoved;
    point.setState(state);
    QTouchEvent event(Type, device, Qt::NoModifier, state, {point});
    QCoreApplication::sendEvent(&widget, &event);
}

template <QEvent::Type Type>
void focus(QWidget &widget, Values &values)
{
    QFocusEvent event(Type, Qt::FocusReason(values.below(Qt::NoFocusReason)));
    QCoreApplication::sendEvent(&widget, &event);
}

template <QEvent::Type Type>
void plain(QWidget &widget, Values &)
{
    QEvent event(Type);
    QCoreApplication::sendEvent(&widget, &event);
}

void hover(QWidget &widget, Values &values)
{
    const QPoint place = position(widget, values);
    QHoverEvent event(QEvent::HoverMove, place, position(widget, values));
    QCoreApplication::sendEvent(&widget, &event);
}

void compose(QWidget &widget, Values &values)
{
    QInputMethodEvent event(values.take<QString>(), {});
    event.setCommitString(values.take<QString>());
    QCoreApplication::sendEvent(&widget, &event);
}

void foreignTimer(QWidget &widget, Values &values)
{
    QTimerEvent event(1 + values.byte()); // 0 is the timer of a stock slider that waits for none
    QCoreApplication::sendEvent(&widget, &event);
}

void resize(QWidget &widget, Values &values)
{
    const int side = values.byte();
    if (side < 8)
        widget.setGeometry(values.geometry());
    else
        widget.resize(side % 90, values.below(70));
}

void changePalette(QWidget &widget, Values &values)
{
    QPalette palette;
    const auto role = QPalette::ColorRole(values.below(QPalette::NColorRoles - 1));
    palette.setBrush(role, values.take<QBrush>());
    widget.setPalette(palette);
}

void changeStyle(QWidget &widget, Values &values)
{
    static QStyle *const other = QStyleFactory::create(QStringLiteral("Windows"));
    widget.setStyle(values.below(2) ? other : nullptr);
}

void changeStyleSheet(QWidget &widget, Values &values)
{
    const char *const sheets[] = {"", "* { color: red; border: 3px solid blue; padding: 5px }",
                                  "QWidget { font-size: 9px; min-width: 90px; background: #123 }"};
    widget.setStyleSheet(QLatin1String(sheets[values.below(3)]));
}

void changeDirection(QWidget &widget, Values &values)
{
    widget.setLayoutDirection(values.below(2) ? Qt::RightToLeft : Qt::LeftToRight);
}

} // namespace

const std::vector<Happening> &happenings()
{
    static const std::vector<Happening> list = {
        {mouse<QEvent::MouseButtonPress>, Origin::Pointer},
        {mouse<QEvent::MouseButtonRelease>, Origin::Pointer},
        {mouse<QEvent::MouseButtonDblClick>, Origin::Pointer},
        {mouse<QEvent::MouseMove>, Origin::Pointer},
        {key, Origin::Event},
        {wheel, Origin::Event},
        {touch<QEvent::TouchBegin>, Origin::Event},
        {touch<QEvent::TouchUpdate>, Origin::Event},
        {touch<QEvent::TouchEnd>, Origin::Event},
        {focus<QEvent::FocusIn>, Origin::Event},
        {focus<QEvent::FocusOut>, Origin::Event},
        {plain<QEvent::Enter>, Origin::Event},
        {plain<QEvent::Leave>, Origin::Event},
        {hover, Origin::Event},
        {compose, Origin::Event},
        {foreignTimer, Origin::Event},
        {resize, Origin::Stock},
        {call<QWidget>(&QWidget::setEnabled), Origin::Stock},
        {call<QWidget>(&QWidget::setVisible), Origin::Stock},
        {call<QWidget>(&QWidget::setFont), Origin::Stock},
        {changePalette, Origin::Stock},
        {changeStyle, Origin::Stock},
        {changeStyleSheet, Origin::Stock},
        {changeDirection, Origin::Stock},
        {plain<QEvent::LanguageChange>, Origin::Event},
        {plain<QEvent::LayoutRequest>, Origin::Event},
        {call<QWidget>(&QWidget::close), Origin::Stock},
    };
    return list;
}
