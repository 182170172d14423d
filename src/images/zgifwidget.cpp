#include "zgifwidget.h"

#include "affordable_p.h"
#include "readablefile_p.h"
#include "widgetlength_p.h"

#include <QMovie>

namespace ZIRVOUI {

ZGifWidget::ZGifWidget(const QString &path, QWidget *parent)
    : QLabel(parent)
    , m_movie(new QMovie)
{
    if (isReadableFile(path) && isAffordable(QImageReader(path))) {
        m_movie->setFileName(path);
        m_movie->start();
    }
    setMovie(m_movie.data());
}

ZGifWidget::~ZGifWidget() = default;

void ZGifWidget::setSize(const int &width, const int &height)
{
    if (isAffordable(width, height))
        m_movie->setScaledSize({width, height});
}

void ZGifWidget::toDefaultSize()
{
    const QSize size = m_movie->frameRect().size();
    setFixedSize(widgetLength(size.width()), widgetLength(size.height()));
}

} // namespace ZIRVOUI
