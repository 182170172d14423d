#ifndef ZIMAGEBUTTON_H
#define ZIMAGEBUTTON_H

#include "zcommonwidgets_export.h"

#include <QPushButton>
#include <QScopedPointer>

namespace ZIRVOUI {

class SvgFile;
class ZImageButtonPrivate;
class ZSvgWidget;

/*!
 * A checkable tile: a rounded, bordered background, an SVG icon and a text in rectangles of the
 * caller's choosing, and a sign in the top-right corner that shows while the tile is checked.
 *
 * A new tile's rectangles are those it has when it is constructed.  They do not follow its size,
 * and its size hint, a stock button's, does not follow them: set them and a size.  Before it is
 * toggled for the first time the sign shows.  A disabled tile is drawn at 30 %, one that is down at
 * 60 % but for its sign.
 *
 * Paths are trusted: a large picture costs its reading at every paint, its decoding when it
 * changes.
 */
class ZCOMMONWIDGETS_EXPORT ZImageButton : public QPushButton
{
    Q_OBJECT

public:
    /*! A white tile with white text. */
    explicit ZImageButton(QWidget *parent = nullptr);
    /*! The same with \a text on it. */
    explicit ZImageButton(const QString &text, QWidget *parent = nullptr);
    /*! See loadIcoImage() and loadSignImage() for the two paths. */
    explicit ZImageButton(const QString &text, const QString &iconPath, const QString &signPath,
                          QWidget *parent = nullptr);
    ~ZImageButton() override;

    /*! Where the text is centred, in pixels from the tile's top-left corner.  Only stores. */
    void setTextRect(const QRect &rect);
    /*! Where the icon is drawn, stretched, in the same pixels.  Only stores. */
    void setIcoRect(const QRect &rect);

    /*!
     * Loads an SVG, which shows at the next repaint.  Returns whether it could be loaded; if not,
     * the tile has no icon.
     */
    bool loadIcoImage(const QString &path);
    /*! See ZSvgWidget::loadSvgImage(). */
    void loadSignImage(const QString &path);
    /*! Until the tile is toggled, which shows the sign with a check and hides it without. */
    void setSignVisible(const bool &visible);
    /*! Fixes the sign's size in pixels; by default it is the natural size of its file. */
    void setSingSize(int width, int height);

    /*! White by default.  Only stores. */
    void setBgColor(const QColor &color);
    /*! White by default; repaints. */
    void setBorderColor(const QColor &color);
    /*! The border's width in pixels; 0 (the default) and less draw none.  Only stores. */
    void setBorderWidth(int width);
    /*! The background's corner radius in pixels, 0 by default; less is square too.  Only stores. */
    void setRadius(int radius);
    /*!
     * A picture file stretched over the background, corners included, empty for none; repaints.
     * It is read at every paint, so a rewritten file shows at the next one.  One that cannot be
     * read, a pipe, a device, or one of more than 64 million pixels draws nothing.
     */
    void setBgPicture(const QString &path);
    /*! White by default; repaints. */
    void setFontColor(const QColor &color);

protected:
    /*! Draws the background; outside a paint event it does nothing. */
    void paintBackground();

    void paintEvent(QPaintEvent *event) override;
    void nextCheckState() override;

private:
    ZSvgWidget *m_sign;
    SvgFile *m_icon;
    QScopedPointer<ZImageButtonPrivate> d;
};

} // namespace ZIRVOUI

#endif
