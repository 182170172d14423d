#include "stills.h"

#include <QAbstractAnimation>
#include <QWidget>

void freeze(QWidget *widget, int ms)
{
    // Not the members of a group: they follow it.
    const Qt::FindChildOption own = Qt::FindDirectChildrenOnly;
    for (auto *animation : widget->findChildren<QAbstractAnimation *>(QString(), own)) {
        if (animation->state() == QAbstractAnimation::Running) {
            animation->pause();
            animation->setCurrentTime(ms);
        }
    }
}

QString instantText(int ms)
{
    return QString("At %1 ms").arg(ms);
}

QPixmap miniature(QWidget &widget, const QSize &size)
{
    QPixmap picture(widget.size());
    picture.fill(Qt::transparent);
    widget.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
