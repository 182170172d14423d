#include "zclicklabel.h"

#include "affordable_p.h"
#include "laidouttext_p.h"
#include "stretchedpicture_p.h"
#include "svgfile_p.h"
#include "widgetlook_p.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>

namespace ZIRVOUI {

namespace {

constexpr double DisabledOpacity = 0.3;
constexpr double CornerShare = 0.4; // of the label's height
constexpr QRgb CornerColor = 0xffebc232;
constexpr int MaxWeight = 99;
constexpr int MaxStretch = 4000;

void drawBackground(QPainter &painter, const QRectF &rect, int radius, const QColor &color)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(rect, radius, radius);
    painter.restore();
}

void drawCorner(QPainter &painter, const QSize &size, int radius)
{
    const double right = size.width();
    const int leg = int(CornerShare * size.height());

    QPainterPath triangle({right - leg, 0});
    if (radius != 0)
        triangle.cubicTo({right - radius, 0}, {right, 0}, {right, double(radius)});
    else
        triangle.lineTo(right, 0);
    triangle.lineTo(right, leg);
    triangle.lineTo(right - leg, 0);
    painter.fillPath(triangle, QColor(CornerColor));
}

} // namespace

ZClickLabel::ZClickLabel(QWidget *parent)
    : QLabel(parent)
    , m_stretchedPicture(new StretchedPicture)
    , m_svg(new SvgFile(this))
    , m_laidOutText(new LaidOutText)
{
    setFontColor(Qt::white);
}

ZClickLabel::ZClickLabel(QString text, QWidget *parent)
    : ZClickLabel(parent)
{
    setText(text);
}

ZClickLabel::~ZClickLabel() = default;

void ZClickLabel::setTextSize(int size)
{
    setFontPixelSize(*this, size);
}

void ZClickLabel::setFontFamily(QString family)
{
    QFont newFont = font();
    newFont.setFamily(family);
    setFont(newFont);
}

void ZClickLabel::setFontWeight(int weight)
{
    QFont newFont = font();
    if (weight >= 0 && weight <= MaxWeight)
        newFont.setWeight(weight);
    setFont(newFont);
}

void ZClickLabel::setItalic(bool, int stretch)
{
    QFont newFont = font();
    newFont.setStyle(QFont::StyleItalic);
    if (stretch >= QFont::AnyStretch && stretch <= MaxStretch)
        newFont.setStretch(stretch);
    setFont(newFont);
}

void ZClickLabel::setFontColor(QColor color)
{
    setPaletteBrush(*this, QPalette::WindowText, color);
}

void ZClickLabel::setPicture(QPixmap picture)
{
    m_picture = picture;
    update();
}

QPixmap ZClickLabel::Picture()
{
    return m_picture;
}

void ZClickLabel::setBgPicturePath(const QString &path)
{
    if (isSvgPath(path))
        m_svgPath = path;
    else
        setPicture(affordableBitmap(path));
    update();
}

void ZClickLabel::setLabelText(QString text)
{
    if (text.isEmpty())
        hide();
    setText(text);
    update();
}

void ZClickLabel::setTextFlag(Qt::TextFlag flag)
{
    m_textFlag = flag;
    update();
}

Qt::TextFlag ZClickLabel::textFlag() const
{
    return Qt::TextFlag(m_textFlag);
}

void ZClickLabel::setRightCornerLabels(bool visible)
{
    m_rightCorner = visible;
    update();
}

void ZClickLabel::setRadius(int radius)
{
    if (radius == m_radius)
        return;
    m_radius = radius;
    update();
}

void ZClickLabel::setBgColor(const QColor &color)
{
    if (color == m_bgColor)
        return;
    m_bgColor = color;
    update();
}

void ZClickLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);

    drawBackground(painter, rect(), m_radius, m_bgColor);

    painter.setOpacity(isEnabled() ? 1.0 : DisabledOpacity);
    painter.setPen(palette().color(QPalette::WindowText)); // of a bitmap too
    m_stretchedPicture->draw(painter, rect(), m_picture, rect());
    if (!m_svgPath.isEmpty()) {
        m_svg->read(m_svgPath);
        m_svg->render(&painter, rect());
    }

    const int flags = int(alignment()) | (wordWrap() ? m_textFlag : 0);
    m_laidOutText->draw(painter, rect(), flags, text());
    if (m_rightCorner)
        drawCorner(painter, size(), m_radius);
}

void ZClickLabel::mousePressEvent(QMouseEvent *event)
{
    const QPointer<ZClickLabel> guard(this);
    if (event->button() == Qt::LeftButton)
        Q_EMIT signal_pressed();
    if (guard)
        QLabel::mousePressEvent(event);
}

void ZClickLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<ZClickLabel> guard(this);
    if (event->button() == Qt::LeftButton) {
        Q_EMIT signal_released();
        if (guard)
            Q_EMIT signal_clicked();
    }
    if (guard)
        QLabel::mouseReleaseEvent(event);
}

} // namespace ZIRVOUI
