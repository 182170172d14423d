#include "ztextwidget.h"

#include <QPainter>
#include <QTextFormat>
#include <algorithm>

namespace ZIRVOUI {

namespace {

// What it stands for may have got another size, which only a layout asks for.
bool isObject(const QTextFormat &format)
{
    const int type = format.objectType();
    return type == QTextFormat::ImageObject || type >= QTextFormat::UserObject;
}

bool holdsObjects(const QTextDocument &document)
{
    const auto formats = document.allFormats();
    return std::any_of(formats.begin(), formats.end(), isObject);
}

} // namespace

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
    if (m_document.pageSize() != QSizeF(width(), -1) || holdsObjects(m_document))
        m_document.setTextWidth(width());

    QPainter painter(this);
    painter.fillRect(rect(), m_backgroundColor);
    m_document.drawContents(&painter, rect());
    QWidget::paintEvent(event);
}

} // namespace ZIRVOUI
