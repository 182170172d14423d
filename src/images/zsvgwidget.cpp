#include "zsvgwidget.h"

#include "affordable_p.h"
#include "devicepixels_p.h"
#include "svgfile_p.h"

#include <QIcon>
#include <QPainter>
#include <QPropertyAnimation>

namespace ZIRVOUI {

namespace {

constexpr double DisabledOpacity = 0.3;
constexpr int BlinkPeriod = 1000; // ms

// The size hint counts these; a pixel ratio is given to what was painted alone.
QPixmap inOwnPixels(QPixmap pixmap)
{
    pixmap.setDevicePixelRatio(1);
    return pixmap;
}

void turn(QPainter &painter, const QPoint &center, double degrees)
{
    painter.translate(center);
    painter.rotate(degrees);
    painter.translate(-center);
}

} // namespace

ZSvgWidget::ZSvgWidget(QWidget *parent)
    : QWidget(parent)
    , m_svg(new SvgFile(this))
{
}

ZSvgWidget::ZSvgWidget(const QString &path, QWidget *parent)
    : ZSvgWidget(parent)
{
    loadSvgImage(path);
}

ZSvgWidget::~ZSvgWidget()
{
    delete m_blinkAnimation;
}

void ZSvgWidget::loadSvgImage(const QString &path)
{
    if (isSvgPath(path)) {
        m_svgPath = path;
    } else {
        m_pixmap = inOwnPixels(affordableBitmap(path));
        m_svgPath.clear();
    }
    update();
}

void ZSvgWidget::setmPixmap(const QPixmap &pixmap)
{
    m_pixmap = inOwnPixels(pixmap);
    update();
}

double ZSvgWidget::opacity() const
{
    return m_opacity;
}

void ZSvgWidget::setOpacity(double opacity)
{
    if (opacity == m_opacity)
        return;
    m_opacity = opacity;
    update();
}

void ZSvgWidget::startBlinking()
{
    if (!m_blinkAnimation)
        initAnimation();
    m_blinkAnimation->start(QAbstractAnimation::KeepWhenStopped);
}

void ZSvgWidget::stopBlinking()
{
    if (!m_blinkAnimation)
        initAnimation();
    m_blinkAnimation->stop();
    m_opacity = 1.0;
}

double ZSvgWidget::rotateAngle() const
{
    return m_rotateAngle;
}

void ZSvgWidget::setRotateAngle(double angle)
{
    m_rotateAngle = angle;
    update();
}

QSize ZSvgWidget::getSvgSize(const QString &path) const
{
    SvgFile file;
    file.read(path);
    return file.defaultSize();
}

QSize ZSvgWidget::sizeHint() const
{
    if (!m_svgPath.isEmpty()) {
        m_svg->read(m_svgPath);
        return m_svg->defaultSize();
    }
    if (m_pixmap.isNull())
        return QWidget::sizeHint();
    return m_pixmap.size() / m_pixmap.devicePixelRatioF();
}

void ZSvgWidget::initAnimation()
{
    m_blinkAnimation = new QPropertyAnimation(this, "opacity");
    m_blinkAnimation->setDuration(BlinkPeriod);
    m_blinkAnimation->setKeyValueAt(0.0, 1.0);
    m_blinkAnimation->setKeyValueAt(0.5, 0.0);
    m_blinkAnimation->setKeyValueAt(1.0, 1.0);
    m_blinkAnimation->setEasingCurve(QEasingCurve::InOutQuad);
    m_blinkAnimation->setLoopCount(-1);
}

void ZSvgWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_rotateAngle != 0 && qIsFinite(m_rotateAngle))
        turn(painter, {width() / 2, height() / 2}, m_rotateAngle);
    painter.setOpacity(isEnabled() ? m_opacity : DisabledOpacity);

    if (!m_svgPath.isEmpty()) {
        m_svg->read(m_svgPath);
        m_svg->render(&painter, rect());
    } else if (!m_pixmap.isNull()) {
        fitPixmap(pixelRatio(painter));
        drawPixmap(painter);
    }
}

void ZSvgWidget::fitPixmap(double ratio)
{
    if (!isAffordable(width() * ratio, height() * ratio))
        return;
    m_pixmap = m_pixmap.scaled(size() * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    m_pixmap.setDevicePixelRatio(ratio);
}

void ZSvgWidget::drawPixmap(QPainter &painter) const
{
    // QIcon::paint() would draw a high-resolution pixmap at its low resolution.
    if (isEnabled())
        painter.drawPixmap(rect(), m_pixmap);
    else
        painter.drawPixmap(rect(), QIcon(m_pixmap).pixmap(m_pixmap.size(), QIcon::Disabled));
}

} // namespace ZIRVOUI
