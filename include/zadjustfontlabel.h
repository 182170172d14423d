#ifndef ZADJUSTFONTLABEL_H
#define ZADJUSTFONTLABEL_H

#include "zclicklabel.h"

#include <QScopedPointer>

namespace ZIRVOUI {

struct ZAdjustFontLabelPrivate;

/*!
 * A ZClickLabel whose font is as large as its text allows: of a range of sizes it takes the largest
 * at which the whole text fits into the label, or the smallest if none does.
 *
 * The fit is that of centred text that wraps anywhere, inside words too, whatever the label draws
 * with: text of several lines needs setWordWrap(true) and setTextFlag(Qt::TextWrapAnywhere).  The
 * font is fitted at each paint, but measured only when text, size, range or font have changed.
 *
 * A layout takes the size of the text in the present font for the least that the label may have:
 * setMinimumSize(1, 1) lets it become smaller again.
 */
class ZCOMMONWIDGETS_EXPORT ZAdjustFontLabel : public ZClickLabel
{
    Q_OBJECT

public:
    /*! Keeps its font until it gets a range of sizes. */
    explicit ZAdjustFontLabel(QWidget *parent = nullptr);
    /*! The same with \a text in it. */
    explicit ZAdjustFontLabel(QString text, QWidget *parent = nullptr);
    ~ZAdjustFontLabel() override;

    /*!
     * The sizes to choose from, in pixels, 0 to 0 by default, which leaves the font as it is.  A
     * minimum above the maximum is always taken; one of 0 and less is not, so that the size stays
     * when nothing fits.  Only stores.
     */
    void setFontSizeRange(int minimum, int maximum);
    /*! As ZClickLabel::setTextSize(), until the next paint fits the font. */
    void setTextSize(int size);
    /*! Fits the font now, without waiting for the next paint. */
    void calcFontSize();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QScopedPointer<ZAdjustFontLabelPrivate> d;
};

} // namespace ZIRVOUI

#endif
