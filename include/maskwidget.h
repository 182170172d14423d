#ifndef MASKWIDGET_H
#define MASKWIDGET_H

#include "zcommonwidgets_export.h"

#include <QPixmap>
#include <QScopedPointer>
#include <QWidget>

namespace ZIRVOUI {

struct MaskWidgetPrivate;

/*!
 * A blurred picture, stretched over the whole widget: a frosted ground for other widgets.
 *
 * The picture is blurred once, when it is set, in a frame of dark gray that bleeds into its edges.
 * All other setters only store: set distance and blur radius before the picture, and call update()
 * for a new opacity.
 */
class ZCOMMONWIDGETS_EXPORT MaskWidget : public QWidget
{
    Q_OBJECT

public:
    /*! Draws nothing until it gets a picture. */
    explicit MaskWidget(QWidget *parent = nullptr);
    ~MaskWidget() override;

    /*!
     * The width of the gray frame in pixels of the picture, 100 by default.  A negative one cuts
     * as much off the picture's edges.
     */
    void setDistance(int distance);
    int distance();
    /*! From 0 (invisible) to 1, the default; what lies beyond counts as the nearer of the two. */
    void setOpacity(double opacity);
    double opacity();
    /*! In pixels of the picture, 60 by default.  Negative or not finite, it does not blur. */
    void setBlurRadius(double radius);
    double blurRadius();

    /*!
     * Blurs \a picture, and repaints.  With a distance and a radius of 0, or less in all, it is
     * shown as it is; then there is no repaint, and none for a null picture.  A picture of more
     * than 64 million pixels with its frame shows nothing, nor does one of which a negative
     * distance leaves nothing.
     */
    void setPixmap(const QPixmap &picture);
    /*! As it was set, not blurred. */
    QPixmap pixmap() const;

    /*! The size of the picture; invalid without one. */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QScopedPointer<MaskWidgetPrivate> d;
};

} // namespace ZIRVOUI

#endif
