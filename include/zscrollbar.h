#ifndef ZSCROLLBAR_H
#define ZSCROLLBAR_H

#include "zcommonwidgets_export.h"

#include <QScopedPointer>
#include <QScrollBar>

namespace ZIRVOUI {

class KeptShape;

/*!
 * A scroll bar that works as a stock one and is placed by the style, and draws itself: a rounded
 * track and a rounded handle that darkens under the pointer, and more so while it is pressed.
 *
 * The whole bar is filled with its palette's window colour first; one of 4 pixels across or less
 * shows nothing else.  Where the style has arrow buttons, they work and are not seen.
 */
class ZCOMMONWIDGETS_EXPORT ZScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    /*! A vertical scroll bar. */
    explicit ZScrollBar(QWidget *parent = nullptr);
    /*! Vertical or horizontal. */
    explicit ZScrollBar(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~ZScrollBar() override;

    /*! The track, transparent by default.  Repaints. */
    void setBackGroudColor(const QColor &color);
    /*! The handle as it rests, "#717582" by default.  Repaints. */
    void setSliderColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QRect handleRect() const;
    QColor handleColor() const;

    QColor m_backgroundColor = Qt::transparent;
    QColor m_sliderColor = QColor(0x71, 0x75, 0x82);
    bool m_hovered = false; // at the last move without a press
    bool m_pressed = false;
    bool m_onHandle = false; // at the last press, release or move without a press
    QScopedPointer<KeptShape> m_track;
    QScopedPointer<KeptShape> m_handle;
};

} // namespace ZIRVOUI

#endif
