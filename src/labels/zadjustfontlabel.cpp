#include "zadjustfontlabel.h"

#include "kept_p.h"

#include <QImage>
#include <QPainter>
#include <QTextOption>

namespace ZIRVOUI {

struct ZAdjustFontLabelPrivate
{
    int minimum = 0; // pixels
    int maximum = 0;
    Kept<int, QString, QFont, QSize, int, int> fittingSize;
};

namespace {

// No font has lines of less than an eighth of its size: what is larger cannot fit.
constexpr int LargestSizePerHeight = 8;
// How far hinting may keep the height of a text from growing with its font.
constexpr int HintingNoise = 2;

// Whatever has a width has one at this size.
constexpr int ProbeSize = 64;

class TextMeasure
{
public:
    TextMeasure(const QString &text, const QFont &font, const QSize &size)
        : m_painter(&m_canvas)
        , m_text(text)
        , m_font(font)
        , m_rect(QPointF(), size)
    {
        m_option.setWrapMode(QTextOption::WrapAnywhere);
    }

    int height() const { return int(m_rect.height()); }

    QRectF bounds(int size)
    {
        m_font.setPixelSize(size);
        m_painter.setFont(m_font);
        return m_painter.boundingRect(m_rect, m_text, m_option);
    }

    bool hasNoWidth()
    {
        m_font.setPixelSize(ProbeSize);
        return QFontMetricsF(m_font).horizontalAdvance(m_text) <= 0;
    }
    bool isTooHigh(int size) { return bounds(size).height() > m_rect.height(); }
    bool fits(int size) { return m_rect.contains(bounds(size)); }

private:
    QImage m_canvas = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter m_painter;
    QString m_text;
    QFont m_font;
    QRectF m_rect;
    QTextOption m_option = QTextOption(Qt::AlignCenter);
};

// In steps that grow, since a long text costs much and fits at small sizes only.
int largestOfHeight(TextMeasure &measure, int minimum, int maximum)
{
    int fits = minimum - 1;
    int step = 1;
    while (fits + step <= maximum && !measure.isTooHigh(fits + step)) {
        fits += step;
        step *= 2;
    }
    int tooHigh = qMin(fits + step, maximum + 1);
    while (tooHigh - fits > 1) {
        const int middle = fits + (tooHigh - fits) / 2;
        (measure.isTooHigh(middle) ? tooHigh : fits) = middle;
    }
    return fits;
}

// The width of a wrapped text may exceed the label's by a hair at one size and not at a larger one:
// only the height can be searched for.
int fittingSize(TextMeasure &measure, int minimum, int maximum)
{
    const int from = qMax(minimum, 1);
    const int to = qMin(maximum, LargestSizePerHeight * measure.height());
    if (to < from || measure.hasNoWidth())
        return minimum;
    int size = qMin(largestOfHeight(measure, from, to) + HintingNoise, to);
    while (size >= from && !measure.fits(size))
        --size;
    return qMax(size, minimum);
}

} // namespace

ZAdjustFontLabel::ZAdjustFontLabel(QWidget *parent)
    : ZClickLabel(parent)
    , d(new ZAdjustFontLabelPrivate)
{
}

ZAdjustFontLabel::ZAdjustFontLabel(QString text, QWidget *parent)
    : ZClickLabel(text, parent)
    , d(new ZAdjustFontLabelPrivate)
{
}

ZAdjustFontLabel::~ZAdjustFontLabel() = default;

void ZAdjustFontLabel::setFontSizeRange(int minimum, int maximum)
{
    d->minimum = minimum;
    d->maximum = maximum;
}

void ZAdjustFontLabel::setTextSize(int size)
{
    if (font().pixelSize() != size)
        ZClickLabel::setTextSize(size);
}

void ZAdjustFontLabel::calcFontSize()
{
    QFont fittedFont = font();
    fittedFont.setPixelSize(1); // the present size plays no part
    const int size
        = d->fittingSize.of({text(), fittedFont, this->size(), d->minimum, d->maximum}, [&] {
              TextMeasure measure(text(), fittedFont, this->size());
              return fittingSize(measure, d->minimum, d->maximum);
          });
    if (size > 0)
        setTextSize(size);
}

void ZAdjustFontLabel::paintEvent(QPaintEvent *event)
{
    calcFontSize();
    ZClickLabel::paintEvent(event);
}

} // namespace ZIRVOUI
