#ifndef COMMONLABELWIDGET_H
#define COMMONLABELWIDGET_H

#include "zcommonwidgets_export.h"

#include <QWidget>

class QBoxLayout;

namespace ZIRVOUI {

class ZClickLabel;

/*!
 * A title, an icon and a text in a row or a column, in the middle of the widget.
 *
 * The three labels belong to the widget; reach for them to change their fonts and colours, or to
 * learn of taps.
 */
class ZCOMMONWIDGETS_EXPORT CommonLabelWidget : public QWidget
{
    Q_OBJECT

public:
    /*! Three empty labels from top to bottom, or with Qt::Horizontal from left to right. */
    explicit CommonLabelWidget(QWidget *parent = nullptr,
                               Qt::Orientation orientation = Qt::Vertical);
    ~CommonLabelWidget() override;

    /*! An empty title keeps its place, as an empty text does. */
    void setTitleText(const QString &text);
    /*! The first label. */
    ZClickLabel *titleLabel();
    /*! A hidden title leaves its place to the others.  Visible by default. */
    void setTitleVisible(bool visible);

    /*! Shown after the icon; one that is empty keeps its place. */
    void setText(const QString &text);
    /*! The last label. */
    ZClickLabel *textLabel();
    /*! A hidden text leaves its place to the others.  Visible by default. */
    void setTextVisible(bool visible);

    /*!
     * Fixes the size of the icon's label, in pixels.  Until the first size other than 20 × 20 the
     * layout decides it.
     */
    void setIconSize(const QSize &size);
    /*!
     * A file, as ZClickLabel::setBgPicturePath() takes it, or a picture, null for none.  An SVG
     * stays over a picture set later.
     */
    void setIcon(const QString &path);
    void setIcon(const QPixmap &picture);
    /*! The yellow triangle of ZClickLabel::setRightCornerLabels() on the icon. */
    void setIcoCornerVisible(bool visible);
    /*! The label in the middle. */
    ZClickLabel *icoLabel();

    /*! The gaps between the labels in pixels; with less than 0, at first, the style decides. */
    void setSpacing(int spacing);

private:
    ZClickLabel *m_title;
    ZClickLabel *m_icon;
    ZClickLabel *m_text;
    QSize m_iconSize = QSize(20, 20);
    QBoxLayout *m_layout;
};

} // namespace ZIRVOUI

#endif
