#ifndef ROUNDEDBUTTON_H
#define ROUNDEDBUTTON_H

#include "zcommonwidgets_export.h"

#include <QPainterPath>
#include <QPixmap>
#include <QPushButton>
#include <QScopedPointer>

namespace ZIRVOUI {
class KeptShape;
class LaidOutText;
class StretchedPicture;
} // namespace ZIRVOUI

/*!
 * A push button with rounded corners: filled with a colour or covered by a picture, with an
 * optional border and centred text.
 *
 * The background is the palette's Window colour and the text its WindowText colour.  A disabled
 * button is filled with the gray of its colour, one that is down with a lighter colour; a picture
 * stays as it is.  An icon is not drawn, and neither a check nor the focus is seen.
 *
 * The button's own signals report every mouse button, and come before released() and clicked() of
 * the base class.  A slot of any signal may delete the button, but in a QButtonGroup not one of
 * toggled(): there Qt goes on with it.
 */
class ZCOMMONWIDGETS_EXPORT RoundedButton : public QPushButton
{
    Q_OBJECT

public:
    /*! A transparent button with white text, square corners and no border. */
    explicit RoundedButton(QWidget *parent = nullptr);
    ~RoundedButton() override;

    /*! The radius of all corners in pixels, 0 by default, not limited.  Repaints if it is new. */
    void setRadius(int radius);
    int radius();
    /*!
     * Sets the palette's Window brush in all colour groups, and repaints.  Of a gradient or a
     * pattern only the brush's colour is drawn.
     */
    void setBackgroundColor(const QBrush &brush);
    /*!
     * A picture stretched over the button in place of its colour, null for none.  Repaints unless
     * it is the very picture that the button has.
     */
    void setBackgroundImage(const QPixmap &image);
    /*! The border's width in pixels, and repaints.  0 (the default) and less draw none. */
    void setBorderWidth(int width);
    /*! The border's colour, and repaints.  Until it is set the border is black. */
    void setBorderColor(QColor color);
    /*! The height of the font in pixels, and repaints; 0 and less leave the size as it is. */
    void setFontSize(int size);
    /*! Sets the palette's WindowText brush in all colour groups, and repaints. */
    void setFontColor(QColor color);

Q_SIGNALS:
    /*! A mouse button went down; the second press of a double click counts too. */
    void signal_mousePressed();
    /*! A mouse button came up, wherever the pointer is by then. */
    void signal_mouseReleased();
    /*! Follows signal_mouseReleased() if the pointer never left the button since the press. */
    void signal_clicked();

protected:
    /*!
     * The outline of \a rect, along its outer pixel edges, with corners of the button's radius:
     * each a quadratic curve whose control point is the corner.
     */
    QPainterPath getDrawPath(const QRect &rect);

    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void nextCheckState() override;

private:
    void drawBackground(QPainter &painter);
    void drawBorder(QPainter &painter);

    int m_radius = 0;
    QPixmap m_backgroundImage;
    int m_borderWidth = 0;
    QColor m_borderColor;
    bool m_movedOut = false;
    QScopedPointer<ZIRVOUI::KeptShape> m_background;
    QScopedPointer<ZIRVOUI::KeptShape> m_border;
    QScopedPointer<ZIRVOUI::StretchedPicture> m_stretchedImage;
    QScopedPointer<ZIRVOUI::LaidOutText> m_laidOutText;
};

#endif
