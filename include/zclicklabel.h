#ifndef ZCLICKLABEL_H
#define ZCLICKLABEL_H

#include "zcommonwidgets_export.h"

#include <QColor>
#include <QLabel>
#include <QPixmap>
#include <QScopedPointer>

namespace ZIRVOUI {

class LaidOutText;
class StretchedPicture;
class SvgFile;

/*!
 * A text label that reports taps and paints itself: a rounded background, a picture, an SVG,
 * the text and a yellow triangle in the top-right corner, in this order.
 *
 * Text, alignment and word wrap are QLabel's.  The text is drawn as plain text, markup included,
 * in the palette's WindowText colour; QLabel's margin, indent and frame play no part.  A disabled
 * label fades everything but its background to 30 %.  Mouse events go on to the parent, as a
 * QLabel's do.
 *
 * Every setter repaints unless its description says otherwise.  A slot of any signal may delete
 * the label.
 */
class ZCOMMONWIDGETS_EXPORT ZClickLabel : public QLabel
{
    Q_OBJECT

public:
    /*! A label without text, transparent, with square corners and white text. */
    explicit ZClickLabel(QWidget *parent = nullptr);
    /*! The same with \a text in it. */
    explicit ZClickLabel(QString text, QWidget *parent = nullptr);
    ~ZClickLabel() override;

    /*! The height of the font in pixels; 0 and less leave the size as it is. */
    void setTextSize(int size);
    /*! A family that is not installed takes what QFont finds for it. */
    void setFontFamily(QString family);
    /*! 0 (thin) to 99 (black), 50 is QFont::Normal; other weights leave the font as it is. */
    void setFontWeight(int weight);
    /*!
     * Makes the font italic, whatever \a italic says, and sets its horizontal stretch in percent:
     * 1 to 4000, or 0 for any width.  Other values of \a stretch leave the stretch as it is.
     */
    void setItalic(bool italic, int stretch);
    /*! Sets the palette's WindowText brush in all colour groups. */
    void setFontColor(QColor color);

    /*! A picture stretched over the whole label, null for none. */
    void setPicture(QPixmap picture);
    QPixmap Picture();
    /*!
     * A file stretched over the whole label: an SVG if \a path contains ".svg" in any case, else
     * a bitmap, which becomes the picture.
     *
     * An SVG is drawn over the picture, and neither takes the other's place: an empty path removes
     * the picture, but an SVG goes only when another path of one comes, which need not name a file.
     *
     * The file of an SVG is read at every paint, so a rewritten file shows at the next one.  A file
     * that cannot be read draws nothing, nor does a pipe, a device or a bitmap of more than 64
     * million pixels.  The path is trusted: a large file costs its reading at every paint.
     */
    void setBgPicturePath(const QString &path);

    /*!
     * Sets the text.  An empty text also hides the label, and no later text shows it again:
     * call show() for that.
     */
    void setLabelText(QString text);
    /*! Combined with the alignment while word wrap is on; Qt::TextWordWrap by default. */
    void setTextFlag(Qt::TextFlag flag);
    Qt::TextFlag textFlag() const;

    /*! Shows the yellow triangle; its legs are 40 % of the label's height. */
    void setRightCornerLabels(bool visible);
    /*!
     * The background's corner radius in pixels, 0 by default; less is square too.  An equal value
     * does nothing.
     */
    void setRadius(int radius);
    /*! The background, transparent by default.  An equal value does nothing. */
    void setBgColor(const QColor &color);

Q_SIGNALS:
    /*! The left button went down; the second press of a double click counts too. */
    void signal_pressed();
    /*! The left button came up, wherever the pointer is by then. */
    void signal_released();
    /*! Follows every signal_released(). */
    void signal_clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QPixmap m_picture;
    QScopedPointer<StretchedPicture> m_stretchedPicture;
    bool m_rightCorner = false;
    SvgFile *m_svg;
    QString m_svgPath;
    int m_textFlag = Qt::TextWordWrap;
    int m_radius = 0;
    QColor m_bgColor = Qt::transparent;
    QScopedPointer<LaidOutText> m_laidOutText;
};

} // namespace ZIRVOUI

#endif
