#include "zimagebutton.h"

#include "affordable_p.h"
#include "buttonstate_p.h"
#include "devicepixels_p.h"
#include "flipchecked_p.h"
#include "kept_p.h"
#include "laidouttext_p.h"
#include "readablefile_p.h"
#include "stretchedpicture_p.h"
#include "svgfile_p.h"
#include "widgetlength_p.h"
#include "zsvgwidget.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QVBoxLayout>

namespace ZIRVOUI {

class ZImageButtonPrivate
{
public:
    explicit ZImageButtonPrivate(ZImageButton *owner)
        : q(owner)
    {
    }

    void init();
    void drawBackground(QPainter &painter, const QRectF &rect) const;
    void drawBackgroundPicture(QPainter &painter, const QRectF &rect);
    QPixmap readBackgroundPicture();
    void drawIcon(QPainter &painter, SvgFile &icon);

    QColor fontColor = Qt::white;
    QColor backgroundColor = Qt::white;
    QRect textRect;
    QRect iconRect;
    int borderWidth = 0; // pixels
    QColor borderColor = Qt::white;
    int radius = 0; // pixels
    QString backgroundPicture;
    ZImageButton *q;

    Kept<QPixmap, QString, QByteArray> decodedBackground;
    StretchedPicture stretchedBackground;
    Kept<QPixmap, QSize, double> renderedIcon;
    StretchedPicture stretchedIcon;
    LaidOutText laidOutText;
};

void ZImageButtonPrivate::init()
{
    q->setCheckable(true);
    textRect = q->rect();
    iconRect = q->rect();
    QObject::connect(q, &QAbstractButton::toggled, q, &ZImageButton::setSignVisible);
}

void ZImageButtonPrivate::drawBackground(QPainter &painter, const QRectF &rect) const
{
    if (borderWidth > 0)
        painter.setPen(QPen(borderColor, borderWidth));
    else
        painter.setPen(Qt::NoPen);
    painter.setBrush(backgroundColor);
    painter.drawRoundedRect(rect, radius, radius);
}

void ZImageButtonPrivate::drawBackgroundPicture(QPainter &painter, const QRectF &rect)
{
    if (backgroundPicture.isEmpty())
        return;
    stretchedBackground.draw(painter, rect, readBackgroundPicture(), q->rect());
}

QPixmap ZImageButtonPrivate::readBackgroundPicture()
{
    const QByteArray bytes = fileBytes(backgroundPicture);
    if (bytes.isEmpty()) // perhaps of a name without its suffix, which Qt finds
        return affordableBitmap(backgroundPicture);
    return decodedBackground.of({backgroundPicture, bytes}, [&] {
        // Not of the bytes: an SVG may name pictures from its folder.
        QImageReader reader(backgroundPicture);
        return isAffordable(reader) ? QPixmap::fromImageReader(&reader) : QPixmap();
    });
}

void ZImageButtonPrivate::drawIcon(QPainter &painter, SvgFile &icon)
{
    const double ratio = pixelRatio(painter);
    if (q->size().isEmpty() || !isAffordable(q->width() * ratio, q->height() * ratio))
        return;
    if (icon.animated())
        renderedIcon.forget();
    const QPixmap &picture = renderedIcon.of({q->size(), ratio}, [&] {
        QPixmap rendered(q->size() * ratio);
        rendered.setDevicePixelRatio(ratio);
        rendered.fill(Qt::transparent);
        QPainter iconPainter(&rendered);
        icon.render(&iconPainter, q->rect());
        return rendered;
    });
    stretchedIcon.draw(painter, iconRect, picture, q->rect());
}

ZImageButton::ZImageButton(QWidget *parent)
    : QPushButton(parent)
    , m_sign(new ZSvgWidget(this))
    , m_icon(new SvgFile(this))
    , d(new ZImageButtonPrivate(this))
{
    d->init();

    auto *top = new QHBoxLayout;
    top->setContentsMargins(0, 0, 0, 0);
    top->addStretch();
    top->addWidget(m_sign);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(top);
    column->addStretch();
}

ZImageButton::ZImageButton(const QString &text, QWidget *parent)
    : ZImageButton(parent)
{
    setText(text);
}

ZImageButton::ZImageButton(const QString &text, const QString &iconPath, const QString &signPath,
                           QWidget *parent)
    : ZImageButton(text, parent)
{
    loadIcoImage(iconPath);
    loadSignImage(signPath);
}

ZImageButton::~ZImageButton() = default;

void ZImageButton::setTextRect(const QRect &rect)
{
    d->textRect = rect;
}

void ZImageButton::setIcoRect(const QRect &rect)
{
    d->iconRect = rect;
}

bool ZImageButton::loadIcoImage(const QString &path)
{
    m_icon->read(path);
    d->renderedIcon.forget();
    return m_icon->isValid();
}

void ZImageButton::loadSignImage(const QString &path)
{
    m_sign->loadSvgImage(path);
}

void ZImageButton::setSignVisible(const bool &visible)
{
    m_sign->setVisible(visible);
}

void ZImageButton::setSingSize(int width, int height)
{
    m_sign->setFixedSize(widgetLength(width), widgetLength(height));
}

void ZImageButton::setBgColor(const QColor &color)
{
    d->backgroundColor = color;
}

void ZImageButton::setBorderColor(const QColor &color)
{
    d->borderColor = color;
    update();
}

void ZImageButton::setBorderWidth(int width)
{
    d->borderWidth = width;
}

void ZImageButton::setRadius(int radius)
{
    d->radius = radius;
}

void ZImageButton::setBgPicture(const QString &path)
{
    d->backgroundPicture = path;
    update();
}

void ZImageButton::setFontColor(const QColor &color)
{
    d->fontColor = color;
    update();
}

void ZImageButton::paintBackground()
{
    if (!testAttribute(Qt::WA_WState_InPaintEvent))
        return;

    QStyleOptionButton option;
    initStyleOption(&option);
    const int inset = d->borderWidth / 2;
    const QRectF background(inset, inset, width() - 2.0 * inset, height() - 2.0 * inset);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(stateOpacity(option.state));
    d->drawBackground(painter, background);
    d->drawBackgroundPicture(painter, background);
}

void ZImageButton::nextCheckState()
{
    if (flipChecked(*this))
        Q_EMIT toggled(isChecked());
}

void ZImageButton::paintEvent(QPaintEvent *)
{
    paintBackground();

    QStyleOptionButton option;
    initStyleOption(&option);
    QPainter painter(this);
    painter.setOpacity(stateOpacity(option.state));
    d->drawIcon(painter, *m_icon);
    painter.setPen(d->fontColor);
    d->laidOutText.draw(painter, d->textRect, Qt::AlignCenter, option.text);
}

} // namespace ZIRVOUI
