#include "row.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QLabel>
#include <QTextDocument>
#include <QTextEdit>
#include <QTimerEvent>
#include <zresizablelabel.h>
#include <zscrolllabel.h>
#include <ztextwidget.h>

using ZIRVOUI::ScrollDirection;
using ZIRVOUI::ZResizableLabel;
using ZIRVOUI::ZScrollLabel;
using ZIRVOUI::ZTextWidget;

namespace {

constexpr QSize ParagraphSize(300, 100);
constexpr QRgb Ground = 0xff25292f;
constexpr QRgb Ink = 0xfff1f3f5;
constexpr int Never = 19000; // ms: only the row ticks
constexpr int Step = 3; // pixels
constexpr int Spacing = 72; // pixels

const QString Sheet = QStringLiteral("background: #25292f; color: #f1f3f5; border: none;");
const QString Paragraph = QStringLiteral("The door of the cellar has been open for ten minutes. "
                                         "Close it, or turn the alarm off.");
const QString Html = QStringLiteral("<h3>Cellar</h3><p>The door has been open for <b>ten</b> "
                                    "minutes.</p><ul><li>Close it, or</li><li>turn the alarm "
                                    "<i>off</i>.</li></ul>");
const QString RunningText = QStringLiteral("A title that is longer than the label that shows it");

ZResizableLabel *newResizable(const QString &text)
{
    auto *label = new ZResizableLabel(text);
    label->setBackgroundColor(Ground);
    label->setFontColor(Ink);
    return label;
}

QLabel *newWrapped(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

Row resizablePlain()
{
    return {QStringLiteral("ZResizableLabel, plain"),
            ParagraphSize,
            [] { return newResizable(Paragraph); },
            [](QPainter &painter, const QSize &size, int) {
                painter.fillRect(wholeOf(size), QColor(Ground));
                painter.setPen(QColor(Ink));
                painter.drawText(wholeOf(size),
                                 int(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextWordWrap,
                                 Paragraph);
            },
            [] { return newWrapped(Paragraph); },
            Sheet};
}

void drawDocument(QPainter &painter, const QSize &size, double margin)
{
    painter.fillRect(wholeOf(size), QColor(Ground));
    QTextDocument document;
    document.setDocumentMargin(margin);
    document.setHtml(Html);
    document.setTextWidth(size.width());
    document.drawContents(&painter, wholeOf(size));
}

Row resizableRich()
{
    const auto library = [] {
        ZResizableLabel *label = newResizable(Html);
        label->setTextFormat(Qt::RichText);
        return label;
    };
    return {QStringLiteral("ZResizableLabel, rich"),
            ParagraphSize,
            library,
            [](QPainter &painter, const QSize &size, int) { drawDocument(painter, size, 0); },
            [] { return newWrapped(Html); },
            Sheet};
}

Row textWidget()
{
    const auto library = [] {
        auto *widget = new ZTextWidget;
        widget->setBackgroundColor(Ground);
        widget->setHtml(Html);
        return widget;
    };
    const auto bare = [](QPainter &painter, const QSize &size, int) {
        drawDocument(painter, size, QTextDocument().documentMargin());
    };
    const auto stock = [] {
        auto *edit = new QTextEdit(Html);
        edit->setReadOnly(true);
        return edit;
    };
    return {QStringLiteral("ZTextWidget"), ParagraphSize, library, bare, stock, Sheet};
}

ZScrollLabel *newMarquee(const QString &text, ScrollDirection direction = ZIRVOUI::ScrollHorizontal)
{
    auto *label = new ZScrollLabel;
    label->setTimerMsc(Never);
    label->setStep(Step);
    label->setScrollDirection(direction);
    label->setText(text);
    return label;
}

void tick(QWidget &label, int)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&label);
    if (timers.isEmpty())
        qFatal("The marquee stands still");
    QTimerEvent event(timers.first().timerId);
    QCoreApplication::sendEvent(&label, &event);
}

Row marqueeStanding()
{
    const QString text = QStringLiteral("A short title");
    return {QStringLiteral("ZScrollLabel, standing"),
            {220, 30},
            [=] { return newMarquee(text); },
            [=](QPainter &painter, const QSize &size, int) {
                painter.setPen(Qt::white);
                painter.drawText(wholeOf(size), Qt::AlignVCenter, text);
            },
            [=] { return new QLabel(text); },
            QStringLiteral("color: white;")};
}

// Where the text is after as many steps; it starts over when its copy has come to its place.
int offsetAfter(int steps, int length)
{
    return steps % ((length + Spacing) / Step + 1) * Step;
}

// What the text takes along its way, upwards the height that it would have if it were wrapped.
int lengthOf(const QFontMetrics &metrics, const QSize &size, ScrollDirection direction)
{
    const int width = metrics.horizontalAdvance(RunningText);
    if (direction == ZIRVOUI::ScrollHorizontal)
        return width;
    return (width + size.width() - 1) / size.width() * metrics.height();
}

void drawMarquee(QPainter &painter, const QSize &size, int frame, ScrollDirection direction)
{
    const int length = lengthOf(painter.fontMetrics(), size, direction);
    const auto rectFrom = [&](int edge) {
        const bool isRow = direction == ZIRVOUI::ScrollHorizontal;
        return wholeOf(size).adjusted(isRow ? edge : 0, isRow ? 0 : edge, 0, 0);
    };
    const int offset = offsetAfter(frame, length);
    const QRectF copy = rectFrom(length + Spacing - offset);
    painter.setPen(Qt::white);
    painter.drawText(rectFrom(-offset), Qt::AlignVCenter, RunningText);
    if (copy.isValid())
        painter.drawText(copy, Qt::AlignVCenter, RunningText);
}

Row marquee(const QString &name, ScrollDirection direction)
{
    return {name,
            {220, 30},
            [=] { return newMarquee(RunningText, direction); },
            [=](QPainter &painter, const QSize &size, int frame) {
                drawMarquee(painter, size, frame, direction);
            },
            [] { return new QLabel(RunningText); },
            QStringLiteral("color: white;"),
            tick};
}

} // namespace

Rows textRows()
{
    return {resizablePlain(),
            resizableRich(),
            textWidget(),
            marqueeStanding(),
            marquee(QStringLiteral("ZScrollLabel, moving"), ZIRVOUI::ScrollHorizontal),
            marquee(QStringLiteral("ZScrollLabel, rising"), ZIRVOUI::ScrollVertical)};
}
