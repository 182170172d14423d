#ifndef ZBASEDIALOG_H
#define ZBASEDIALOG_H

#include "zcommonwidgets_export.h"

#include <QColor>
#include <QDialog>
#include <QPainterPath>

namespace ZIRVOUI {

/*!
 * A frameless, translucent dialog that draws its own body: a rectangle with rounded corners in a
 * band of shadow.
 *
 * The band lies inside the widget's rectangle.  setLayout() keeps the content out of it, and the
 * fixed-size functions add it to the size they are given; both use the width that the shadow has
 * when they are called, so set that first.  The setters only store: call update() to show a
 * change in an open dialog.
 *
 * A dialog with a parent is a child widget drawn inside that parent, and stays hidden until it is
 * shown itself.  One without a parent is a window of its own, and is shown with the layout it may
 * be put into later.
 *
 * \par Modality
 *
 * Qt's modality works between windows.  While a dialog with a parent runs exec(), the rest of the
 * parent's window still takes taps.  For a truly modal window construct the dialog without a
 * parent, or turn it back into a window before it is shown:
 * \code
 * dialog.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
 * \endcode
 *
 * \par Placement
 *
 * QDialog centres a dialog on its parent when it is shown, in the screen's coordinates.  These are
 * the parent's own only if it fills the screen; elsewhere call move() before show().
 */
class ZCOMMONWIDGETS_EXPORT ZBaseDialog : public QDialog
{
    Q_OBJECT

public:
    /*! Which corners are rounded; a value that is not listed rounds none. */
    enum RadiusType : int {
        NoRadius,
        TopLeftRadius,
        TopRightRadius,
        BottomLeftRadius,
        BottomRightRadius,
        TopRadius, //!< Both at the top, and so on.
        BottomRadius,
        LeftRadius,
        RightRadius,
        AllRadius
    };

    /*! A dialog with all corners rounded. */
    explicit ZBaseDialog(QWidget *parent = nullptr);
    ~ZBaseDialog() override;

    /*! Pixels on each side, 8 by default.  A negative width draws no shadow and a larger body. */
    void setShadowEffectWidth(const int &width);
    /*!
     * The shadow at the body's edge, black at alpha 120 by default.  It fades outwards by whole
     * steps of alpha: one that is wider in pixels than its alpha does not fade.
     */
    void setShadowEffectColor(const QColor &color);
    /*! The body, opaque RGB (60, 60, 68) by default. */
    void setBackGroundColor(const QColor &color);
    /*! The radius of every rounded corner in pixels, 20 by default.  It is not limited. */
    void setRadius(const int &radius);
    /*! AllRadius by default. */
    void setRadiusType(const RadiusType &type);

    /*!
     * Installs \a layout within a margin of the shadow's width.  The dialog takes ownership.
     *
     * A dialog that has a layout keeps it, and \a layout stays the caller's.  Null does nothing.
     * A layout that is constructed with the dialog as its parent has the style's margins instead.
     */
    void setLayout(QLayout *layout);
    /*!
     * The size of the body, in pixels; the widget is larger by the shadow, which QWidget's other
     * functions for its size count in.
     */
    void setFixedSize(const QSize &size);
    void setFixedSize(int width, int height);
    /*! The width of the body alone, as setFixedSize(). */
    void setFixedWidth(int width);
    /*! The height of the body alone, as setFixedSize(). */
    void setFixedHeight(int height);

protected:
    /*!
     * The outline of \a rect, along its outer pixel edges, with the corners of \a type rounded by
     * the dialog's radius: each a quadratic curve whose control point is the corner.
     */
    QPainterPath getDrawPath(const QRect &rect, const RadiusType &type);

    void paintEvent(QPaintEvent *event) override;

private:
    int withShadow(int length) const;
    QRect insetRect(int by) const;
    void drawShadow(QPainter &painter, const QRect &exposed);
    void drawBody(QPainter &painter, const QRect &exposed);

    int m_shadowWidth = 8;
    int m_radius = 20;
    QColor m_shadowColor = QColor(0, 0, 0, 120);
    QColor m_backgroundColor = QColor(60, 60, 68);
    RadiusType m_radiusType = AllRadius;
};

} // namespace ZIRVOUI

#endif
