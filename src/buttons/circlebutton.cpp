#include "circlebutton.h"

#include "buttonstate_p.h"
#include "keptshape_p.h"
#include "widgetlength_p.h"
#include "widgetlook_p.h"
#include "zsvgwidget.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionButton>

namespace ZIRVOUI {

namespace {

constexpr int DownLightness = 135; // percent

} // namespace

CircleButton::CircleButton(const QString &path, QWidget *parent)
    : QPushButton(parent)
    , m_layout(new QHBoxLayout(this))
    , m_icon(new ZSvgWidget(path, this))
    , m_disc(new KeptShape)
{
    setFocusPolicy(Qt::ClickFocus);
    setCheckable(false);

    const QSize iconSize = m_icon->getSvgSize(path);
    m_icon->setFixedSize(widgetLength(iconSize.width()), widgetLength(iconSize.height()));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setAlignment(Qt::AlignCenter);
    m_layout->addWidget(m_icon);

    m_delayTimer.setSingleShot(true);
    buildConnect();
}

CircleButton::~CircleButton() = default;

void CircleButton::buildConnect()
{
    connect(&m_delayTimer, &QTimer::timeout, this, &CircleButton::reportLongPress);
    connect(&m_repeatTimer, &QTimer::timeout, this, &CircleButton::repeatLongPress);
}

void CircleButton::setBorderColor(QColor color)
{
    m_borderColor = color;
}

void CircleButton::setBorderWidth(int width)
{
    m_borderWidth = width;
}

void CircleButton::setBackgroundColor(QColor color)
{
    m_backgroundColor = color;
    update();
}

void CircleButton::loadSvg(const QString &path)
{
    m_icon->loadSvgImage(path);
}

void CircleButton::setLongPressRepeat(bool repeat)
{
    m_longPressRepeat = repeat;
}

void CircleButton::setLongPressDelayMS(int ms)
{
    m_delayTimer.setInterval(qMax(0, ms));
}

void CircleButton::setLongPressIntervalMS(int ms)
{
    m_repeatTimer.setInterval(qMax(0, ms));
}

void CircleButton::setFontSize(int size)
{
    setFontPixelSize(*this, size);
}

void CircleButton::setFontColor(QColor color)
{
    setPaletteBrush(*this, QPalette::WindowText, color);
}

void CircleButton::mousePressEvent(QMouseEvent *event)
{
    const QPointer<CircleButton> guard(this);
    QAbstractButton::mousePressEvent(event);
    if (guard && !m_delayTimer.isActive())
        m_delayTimer.start();
}

void CircleButton::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<CircleButton> guard(this);
    QAbstractButton::mouseReleaseEvent(event);
    if (!guard)
        return;
    m_repeatTimer.stop();
    m_delayTimer.stop();
}

void CircleButton::reportLongPress()
{
    const QPointer<CircleButton> guard(this);
    Q_EMIT signal_longPressed();
    if (guard && m_longPressRepeat)
        m_repeatTimer.start();
}

void CircleButton::repeatLongPress()
{
    const bool wasHidden = !isVisible() && testAttribute(Qt::WA_WState_Created);
    if (isDown() && isEnabled() && !wasHidden)
        Q_EMIT signal_longPressed();
    else
        m_repeatTimer.stop();
}

void CircleButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawEllipse(painter);

    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, text());
}

void CircleButton::drawEllipse(QPainter &painter)
{
    QStyleOptionButton option;
    initStyleOption(&option);

    const double width = m_borderWidth;
    painter.setPen({m_borderColor, width, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin});
    painter.setBrush(stateColor(m_backgroundColor, option.state, DownLightness));
    const QRectF disc(width / 2, width / 2, this->width() - width, height() - width);
    m_disc->drawEllipse(painter, disc);
}

} // namespace ZIRVOUI
