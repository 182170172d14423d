#include "zresizablelabel.h"

#include "kept_p.h"
#include "laidouttext_p.h"
#include "truncated_p.h"
#include "widgetlength_p.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTextDocument>
#include <memory>

namespace ZIRVOUI {

namespace {

/*! A document that knows whether it asked for a file, of a picture or a style sheet. */
class HtmlDocument : public QTextDocument
{
public:
    bool dependsOnFiles() const { return m_dependsOnFiles; }

protected:
    QVariant loadResource(int type, const QUrl &name) override
    {
        if (name.scheme() != QLatin1String("data"))
            m_dependsOnFiles = true;
        return QTextDocument::loadResource(type, name);
    }

private:
    bool m_dependsOnFiles = false;
};

} // namespace

struct ZResizableLabelPrivate
{
    QColor backgroundColor = Qt::transparent;
    QColor fontColor = Qt::black;
    QSize minSize = QSize(70, 30);
    QSize maxSize = QSize(1190, 768);

    LaidOutText laidOutText;
    Kept<QSize, QString, QFont, QSize, QSize> hint;
    Kept<std::unique_ptr<HtmlDocument>, QString, int, QFont, QPalette> document;
};

namespace {

constexpr int HeightStep = 50; // pixels

/*! The boxes that a text is tried in, one after the other. */
struct Box
{
    QRect rect() const { return {0, 0, truncated(width), truncated(double(height))}; }

    void grow()
    {
        height += HeightStep;
        width += widthStep; // added up, since its rounding decides some pixels
    }

    qint64 height;
    double width;
    double widthStep;
};

Box firstBox(const QSize &min, const QSize &max)
{
    const qint64 steps = (qint64(max.height()) - min.height()) / HeightStep;
    const double room = double(max.width()) - min.width();
    return {min.height(), double(min.width()), steps > 0 ? room / double(steps) : 0};
}

QRect textBounds(const Box &box, const QFontMetrics &metrics, const QString &text)
{
    return metrics.boundingRect(box.rect(), Qt::TextWordWrap, text);
}

// Boxes that widen make a text lower: the first that is high enough can be searched for.
Box firstHighEnough(Box box, int maxHeight, const QFontMetrics &metrics, const QString &text)
{
    const auto isTooLow = [&](const Box &tried) {
        return textBounds(tried, metrics, text).height() > tried.height;
    };
    qint64 count = (maxHeight - box.height) / HeightStep + 1; // of boxes from box on
    while (count > 0) {
        Box middle = box;
        for (qint64 i = count / 2; i > 0; --i)
            middle.grow();
        if (isTooLow(middle)) {
            middle.grow();
            box = middle;
            count -= count / 2 + 1;
        } else {
            count /= 2;
        }
    }
    return box;
}

// The next box that may hold the text, which was too large for this one.
Box nextBox(Box box, const QRect &bounds, int maxHeight, const QFontMetrics &metrics)
{
    const int width = box.rect().width();
    const int longestWord = bounds.width() - metrics.height(); // at least, if it is too long
    const auto isTooSmall = [&] {
        const int newWidth = box.rect().width();
        if (newWidth == width)
            return !box.rect().contains(bounds);
        if (newWidth < width && bounds.height() > box.height)
            return true;
        return longestWord > width && longestWord > newWidth;
    };
    do {
        box.grow();
    } while (box.height <= maxHeight && isTooSmall());
    return box;
}

QSize fittingSize(const QSize &min, const QSize &max, const QFontMetrics &metrics,
                  const QString &text)
{
    Box box = firstBox(min, max);
    if (box.widthStep > 0)
        box = firstHighEnough(box, max.height(), metrics, text);
    while (box.height <= max.height()) {
        const QRect bounds = textBounds(box, metrics, text);
        if (box.rect().contains(bounds))
            return QRectF(QPointF(), min).contains(bounds) ? min : bounds.size();
        box = nextBox(box, bounds, max.height(), metrics);
    }
    return max;
}

std::unique_ptr<HtmlDocument> newDocument(const QString &html, int width)
{
    auto document = std::make_unique<HtmlDocument>();
    document->setTextWidth(width);
    document->setHtml(html);
    document->setDocumentMargin(0);
    return document;
}

} // namespace

ZResizableLabel::ZResizableLabel(QWidget *parent)
    : QLabel(parent)
    , d(new ZResizableLabelPrivate)
{
    setMinSize(d->minSize);
    setMaxSize(d->maxSize);
    setWordWrap(true);
}

ZResizableLabel::ZResizableLabel(const QString &text, QWidget *parent)
    : ZResizableLabel(parent)
{
    setText(text);
}

ZResizableLabel::~ZResizableLabel() = default;

void ZResizableLabel::setMinSize(const QSize &size)
{
    setMinimumSize(widgetLength(size.width()), widgetLength(size.height()));
    d->minSize = size;
}

void ZResizableLabel::setMaxSize(const QSize &size)
{
    setMaximumSize(widgetLength(size.width()), widgetLength(size.height()));
    d->maxSize = size;
}

void ZResizableLabel::setFontColor(const QColor &color)
{
    d->fontColor = color;
}

void ZResizableLabel::setBackgroundColor(const QColor &color)
{
    d->backgroundColor = color;
}

QSize ZResizableLabel::sizeHint() const
{
    if (d->maxSize.height() < d->minSize.height())
        return size();
    return d->hint.of({text(), font(), d->minSize, d->maxSize}, [this] {
        return fittingSize(d->minSize, d->maxSize, fontMetrics(), text());
    });
}

void ZResizableLabel::paintNormalText()
{
    if (!testAttribute(Qt::WA_WState_InPaintEvent))
        return;
    QPainter painter(this);
    painter.setPen(d->fontColor);
    d->laidOutText.draw(painter, rect(), int(alignment()) | Qt::TextWordWrap, text());
}

void ZResizableLabel::paintRichText()
{
    if (!testAttribute(Qt::WA_WState_InPaintEvent))
        return;
    // Links, and colours that a style names by their role, are the application's.
    const auto &document
        = d->document.of({text(), width(), QGuiApplication::font(), QGuiApplication::palette()},
                         [this] { return newDocument(text(), width()); });
    QPainter painter(this);
    document->drawContents(&painter, rect());
    if (document->dependsOnFiles()) // which may be others at the next paint
        d->document.forget();
}

void ZResizableLabel::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), d->backgroundColor);
    if (textFormat() == Qt::RichText)
        paintRichText();
    else
        paintNormalText();
}

} // namespace ZIRVOUI
