#include "commonlabelwidget.h"

#include "widgetlength_p.h"
#include "zclicklabel.h"

#include <QBoxLayout>

namespace ZIRVOUI {

CommonLabelWidget::CommonLabelWidget(QWidget *parent, Qt::Orientation orientation)
    : QWidget(parent)
    , m_title(new ZClickLabel(this))
    , m_icon(new ZClickLabel(this))
    , m_text(new ZClickLabel(this))
{
    const bool isRow = orientation == Qt::Horizontal;
    m_layout = isRow ? static_cast<QBoxLayout *>(new QHBoxLayout) : new QVBoxLayout;
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addStretch();
    for (ZClickLabel *label : {m_title, m_icon, m_text})
        m_layout->addWidget(label, 0, isRow ? Qt::AlignVCenter : Qt::AlignHCenter);
    m_layout->addStretch();
    setLayout(m_layout);
}

CommonLabelWidget::~CommonLabelWidget() = default;

void CommonLabelWidget::setTitleText(const QString &text)
{
    m_title->setText(text);
}

ZClickLabel *CommonLabelWidget::titleLabel()
{
    return m_title;
}

void CommonLabelWidget::setTitleVisible(bool visible)
{
    m_title->setVisible(visible);
}

void CommonLabelWidget::setText(const QString &text)
{
    m_text->setText(text);
}

ZClickLabel *CommonLabelWidget::textLabel()
{
    return m_text;
}

void CommonLabelWidget::setTextVisible(bool visible)
{
    m_text->setVisible(visible);
}

void CommonLabelWidget::setIconSize(const QSize &size)
{
    if (size == m_iconSize)
        return;
    m_iconSize = size;
    m_icon->setFixedSize(widgetLength(size.width()), widgetLength(size.height()));
}

void CommonLabelWidget::setIcon(const QString &path)
{
    m_icon->setBgPicturePath(path);
}

void CommonLabelWidget::setIcon(const QPixmap &picture)
{
    m_icon->setPicture(picture);
}

void CommonLabelWidget::setIcoCornerVisible(bool visible)
{
    m_icon->setRightCornerLabels(visible);
}

ZClickLabel *CommonLabelWidget::icoLabel()
{
    return m_icon;
}

void CommonLabelWidget::setSpacing(int spacing)
{
    m_layout->setSpacing(qMin(spacing, QWIDGETSIZE_MAX)); // with much more Qt never ends
}

} // namespace ZIRVOUI
