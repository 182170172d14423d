#ifndef ZBUTTON_H
#define ZBUTTON_H

#include "zcommonwidgets_export.h"

#include <QPushButton>
#include <QScopedPointer>

namespace ZIRVOUI {

struct ZButtonPrivate;

/*!
 * A push button for touch screens: a rounded rectangle in one colour with centred text, or its
 * icon stretched over the whole button with the text on top.
 *
 * A press that moves more than 20 pixels up or down, the button moving along or not, or leaves the
 * button, has become a drag: its release neither clicks nor emits released().  A disabled button is
 * drawn at 30 %, one that is down at 60 %.  Neither a check nor the focus is seen.
 *
 * The setters of colours and radius only store: set them before the button is shown, or call
 * update().
 */
class ZCOMMONWIDGETS_EXPORT ZButton : public QPushButton
{
    Q_OBJECT

public:
    /*! A blue button in the size of a stock one. */
    explicit ZButton(QWidget *parent = nullptr);
    /*! The same with \a text on it. */
    explicit ZButton(const QString &text, QWidget *parent = nullptr);
    ~ZButton() override;

    /*! RGB (49, 106, 255) by default; not drawn behind an icon. */
    void setBackgroundColor(const QColor &color);
    /*! The text's colour, white by default. */
    void setFontColor(const QColor &color);
    /*!
     * The corner radius in pixels, 10 by default, from 0 (square) to half the button's width or
     * height; what lies beyond counts as the nearer of the two.
     */
    void setRadius(const int &radius);
    /*! The height of the font in pixels, and repaints; 0 and less leave the size as it is. */
    void setFontSize(int size);
    /*!
     * Passes every mouse press, move and release on to the parent once the button has handled it,
     * so that a parent can be scrolled from its buttons.  Off by default; counts from the next
     * event on.
     */
    void setMouseEventToParent(bool enabled);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void nextCheckState() override;

private:
    void passToParent(QMouseEvent *event) const;

    QScopedPointer<ZButtonPrivate> d;
    bool m_mouseEventToParent = false;
    bool m_moved = false;
    QPoint m_pressPosition; // in the button
    QPoint m_pressOrigin; // of the button, in its window
};

} // namespace ZIRVOUI

#endif
