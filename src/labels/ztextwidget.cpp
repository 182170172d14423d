#include "ztextwidget.h"

#include <QPainter>

namespace ZIRVOUI {

ZTextWidget::ZTextWidget(QWidget *parent)
    : QWidget(parent)
{
    setMouseTracking(true);
}

ZTextWidget::~ZTextWidget() = default;

void ZTextWidget::setHtml(QString html)
{
    m_document.setHtml(html);
    update();
}

QTextDocument *ZTextWidget::textDocument()
{
    return &m_document;
}

void ZTextWidget::clearText()
{
    m_document.clear();
}

void ZTextWidget::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
}

void ZTextWidget::paintEvent(QPaintEvent *event)
{
    // Setting it lays the whole document out, even if it is the same.
    if (m_document.pageSize() != QSizeF(width(), -1))
        m_document.setTextWidth(width());

    QPainter painter(this);
    painter.fillRect(rect(), m_backgroundColor);
    m_document.drawContents(&painter, rect());
    QWidget::paintEvent(event);
}

} // namespace ZIRVOUI
