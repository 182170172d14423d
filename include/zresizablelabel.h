#ifndef ZRESIZABLELABEL_H
#define ZRESIZABLELABEL_H

#include "zcommonwidgets_export.h"

#include <QLabel>
#include <QScopedPointer>

namespace ZIRVOUI {

struct ZResizableLabelPrivate;

/*!
 * A word-wrapped label that grows with its text from a minimum size towards a maximum size.
 *
 * Its preferred size is that of the text in the first box that holds it: 50 pixels higher each, and
 * wider in proportion.  A text that fits into the minimum prefers the minimum, one that fits
 * nowhere the maximum.  An empty one prefers no width and the height of a line, so that a layout
 * gives it the minimum.  Markup counts as text there.
 *
 * Text of the format Qt::RichText is drawn as HTML in the application's font, anything else as it
 * stands in the label's font and alignment.  HTML is trusted: what it names is loaded, and its
 * layout takes as long as it takes, once for each new text or width.  HTML that names files, of
 * pictures or style sheets, is read and laid out at each paint, so a rewritten file shows at the
 * next one.
 */
class ZCOMMONWIDGETS_EXPORT ZResizableLabel : public QLabel
{
    Q_OBJECT

public:
    /*! An empty label with word wrap on. */
    explicit ZResizableLabel(QWidget *parent = nullptr);
    /*! The same with \a text in it. */
    explicit ZResizableLabel(const QString &text, QWidget *parent = nullptr);
    ~ZResizableLabel() override;

    /*! Also the widget's minimum size, 70 × 30 by default. */
    void setMinSize(const QSize &size);
    /*!
     * Also the widget's maximum size, 1190 × 768 by default.  With one lower than the minimum the
     * label prefers the size that it has.
     */
    void setMaxSize(const QSize &size);
    /*! The colour of text that is not HTML, black by default.  Only stores. */
    void setFontColor(const QColor &color);
    /*! Transparent by default.  Only stores. */
    void setBackgroundColor(const QColor &color);

    /*! What the text asks for between the two sizes; see above. */
    QSize sizeHint() const override;

    /*! Draws the text as it stands, for use in a paintEvent(); elsewhere it draws nothing. */
    void paintNormalText();
    /*! Draws the text as HTML, for use in a paintEvent(); elsewhere it draws nothing. */
    void paintRichText();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QScopedPointer<ZResizableLabelPrivate> d;
};

} // namespace ZIRVOUI

#endif
