#include "zradiobutton.h"

#include "flipchecked_p.h"
#include "keptshape_p.h"
#include "laidouttext_p.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace ZIRVOUI {

struct ZRadioButtonPrivate
{
    int spacing = 30; // pixels
    int thickness = 2; // pixels
    QColor externalCircleLineColor = QColor(151, 151, 151);
    QColor externalCircleFillColor = QColor(0, 0, 0, 0);
    QColor internalCircleFillColor = QColor(151, 151, 151);
    QColor textColor = Qt::white;
    LaidOutText laidOutText;
    KeptShape circle;
    KeptShape dot;
};

namespace {

constexpr double DisabledOpacity = 0.4;
constexpr double DotGap = 0.2; // of the radius

QRectF circleAround(double center, double radius)
{
    return {center - radius, center - radius, 2 * radius, 2 * radius};
}

void drawCircle(QPainter &painter, int center, ZRadioButtonPrivate &d)
{
    painter.setPen({d.externalCircleLineColor, double(d.thickness), Qt::SolidLine, Qt::SquareCap,
                    Qt::BevelJoin});
    painter.setBrush(d.externalCircleFillColor);
    d.circle.drawEllipse(painter, circleAround(center, double(center) - d.thickness));
}

void drawDot(QPainter &painter, int center, ZRadioButtonPrivate &d)
{
    const double radius = center - DotGap * center - d.thickness;
    if (radius <= 0)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(d.internalCircleFillColor);
    d.dot.drawEllipse(painter, circleAround(center, radius));
}

void drawLabel(QPainter &painter, const QSize &size, const QString &text, ZRadioButtonPrivate &d)
{
    const double left = double(d.spacing) + size.height();
    painter.setPen(d.textColor);
    const QRectF rect(left, 0, size.width() - left, size.height());
    d.laidOutText.draw(painter, rect, Qt::AlignVCenter, text);
}

} // namespace

ZRadioButton::ZRadioButton(QWidget *parent)
    : QRadioButton(parent)
    , d(new ZRadioButtonPrivate)
{
}

ZRadioButton::ZRadioButton(const QString &text, QWidget *parent)
    : ZRadioButton(parent)
{
    setText(text);
}

ZRadioButton::~ZRadioButton() = default;

void ZRadioButton::setSpacing(const int &spacing)
{
    d->spacing = spacing;
}

void ZRadioButton::setThickness(const int &thickness)
{
    d->thickness = thickness;
}

void ZRadioButton::setExternalCircleLineColor(const QColor &color)
{
    d->externalCircleLineColor = color;
}

void ZRadioButton::setExternalCircleFillColor(const QColor &color)
{
    d->externalCircleFillColor = color;
}

void ZRadioButton::setInternalCircleFillColor(const QColor &color)
{
    d->internalCircleFillColor = color;
}

void ZRadioButton::setTextColor(const QColor &color)
{
    d->textColor = color;
}

void ZRadioButton::nextCheckState()
{
    if (flipChecked(*this))
        Q_EMIT toggled(isChecked());
}

void ZRadioButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const int center = qMin(width(), height()) / 2;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : DisabledOpacity);
    drawCircle(painter, center, *d);
    if (isChecked())
        drawDot(painter, center, *d);

    painter.setOpacity(1.0);
    painter.setRenderHint(QPainter::Antialiasing, false);
    drawLabel(painter, size(), option.text, *d);
}

} // namespace ZIRVOUI
