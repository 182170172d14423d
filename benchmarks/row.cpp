#include "row.h"

#include <QAbstractAnimation>
#include <QApplication>
#include <QLayout>
#include <QProgressBar>
#include <QStyleFactory>

namespace {

constexpr int FontSize = 14; // pixels

// Not the members of a group: they follow it.
QList<QAbstractAnimation *> animationsOf(const QWidget &widget)
{
    return widget.findChildren<QAbstractAnimation *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

Rows allRows()
{
    return labelRows() + textRows() + imageRows() + maskRows() + dialogRows() + buttonRows()
        + picturedButtonRows() + toggleRows() + progressRows() + turnRows() + rangeRows()
        + inputRows();
}

Row rowNamed(const QString &name)
{
    const Rows rows = allRows();
    const auto found
        = std::find_if(rows.begin(), rows.end(), [&](const Row &row) { return row.name == name; });
    if (found == rows.end())
        qFatal("There is no row %s", qPrintable(name));
    return *found;
}

void setLook()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font = QApplication::font();
    font.setPixelSize(FontSize);
    QApplication::setFont(font);
}

QPainterPath outlineOf(const QRectF &rect, double radius)
{
    const QPointF right(radius, 0);
    const QPointF down(0, radius);
    QPainterPath path(rect.topLeft() + down);
    path.quadTo(rect.topLeft(), rect.topLeft() + right);
    path.lineTo(rect.topRight() - right);
    path.quadTo(rect.topRight(), rect.topRight() + down);
    path.lineTo(rect.bottomRight() - down);
    path.quadTo(rect.bottomRight(), rect.bottomRight() - right);
    path.lineTo(rect.bottomLeft() + right);
    path.quadTo(rect.bottomLeft(), rect.bottomLeft() - down);
    path.closeSubpath();
    return path;
}

QVector<QRect> childPlaces(QWidget &widget, const QSize &size)
{
    widget.QWidget::setFixedSize(size);
    widget.layout()->activate();
    QVector<QRect> places;
    for (const auto *child : widget.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        places << child->geometry();
    return places;
}

QWidget *newBusyBar()
{
    auto *bar = new QProgressBar;
    bar->setRange(0, 0);
    return bar;
}

void pauseAnimations(QWidget &widget)
{
    for (auto *animation : animationsOf(widget)) {
        if (animation->state() == QAbstractAnimation::Running)
            animation->pause();
    }
}

void resumeAnimations(QWidget &widget)
{
    for (auto *animation : animationsOf(widget)) {
        if (animation->state() == QAbstractAnimation::Paused)
            animation->resume();
    }
}

void setAnimationTime(QWidget &widget, int ms)
{
    for (auto *animation : animationsOf(widget)) {
        if (animation->state() == QAbstractAnimation::Paused)
            animation->setCurrentTime(ms);
    }
}
