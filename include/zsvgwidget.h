#ifndef ZSVGWIDGET_H
#define ZSVGWIDGET_H

#include "zcommonwidgets_export.h"

#include <QPixmap>
#include <QWidget>

class QPropertyAnimation;

namespace ZIRVOUI {

class SvgFile;

/*!
 * An icon, SVG or bitmap, stretched over the widget, which can blink and be turned.
 *
 * The icon is drawn at opacity() while the widget is enabled and at 30 % while it is not; a
 * disabled bitmap is shown in the style's disabled look as well.
 */
class ZCOMMONWIDGETS_EXPORT ZSvgWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double opacity READ opacity WRITE setOpacity)

public:
    /*! A widget that draws nothing until it gets an icon. */
    explicit ZSvgWidget(QWidget *parent = nullptr);
    /*! The same with the icon at \a path; see loadSvgImage(). */
    explicit ZSvgWidget(const QString &path, QWidget *parent = nullptr);
    ~ZSvgWidget() override;

    /*!
     * Shows the file at \a path and repaints: an SVG if \a path contains ".svg" in any case, else
     * a bitmap.  A file that cannot be read shows nothing, nor does a pipe, a device or a bitmap of
     * more than 64 million pixels.
     *
     * The file of an SVG is read at every paint, so a rewritten file shows at the next one; that
     * of a bitmap is read now.  The path is trusted: a large file costs its reading each time.
     */
    void loadSvgImage(const QString &path);
    /*!
     * Stores a bitmap, null for none, and repaints.  A loaded SVG keeps being shown instead of it.
     */
    void setmPixmap(const QPixmap &pixmap);

    double opacity() const;
    /*!
     * 0 (invisible) to 1 (opaque, the default), what lies beyond counts as the nearer of the two;
     * repaints if the value is new.
     */
    void setOpacity(double opacity);

    /*!
     * Fades the icon out and in again once a second until stopBlinking().
     *
     * Blinking writes the opacity property, also while the widget is hidden.
     */
    void startBlinking();
    /*! Ends blinking and makes the icon opaque, which shows at the next repaint. */
    void stopBlinking();

    double rotateAngle() const;
    /*!
     * Turns the icon about the widget's centre, clockwise and in degrees, 0 by default, and
     * repaints.  What is turned out of the widget is not seen.  An angle that is not finite turns
     * nothing.
     */
    void setRotateAngle(double angle);

    /*! The natural size of the SVG file at \a path, invalid if it cannot be read. */
    QSize getSvgSize(const QString &path) const;

    /*!
     * The natural size of the SVG, whose file is read for it, or the size of the bitmap in its own
     * pixels, also where a name like "icon@2x.png" promises more of them.
     *
     * Every paint scales the stored bitmap itself to the widget's size.  From then on this is its
     * size hint, and what was lost by making it small does not come back.
     */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void initAnimation();
    void fitPixmap(double ratio);
    void drawPixmap(QPainter &painter) const;

    SvgFile *m_svg;
    QPixmap m_pixmap;
    QString m_svgPath;
    double m_opacity = 1.0;
    QPropertyAnimation *m_blinkAnimation = nullptr;
    double m_rotateAngle = 0.0;
};

} // namespace ZIRVOUI

#endif
