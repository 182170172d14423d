#ifndef ZSCROLLLABEL_H
#define ZSCROLLLABEL_H

#include "zcommonwidgets_export.h"

#include <QLabel>
#include <QScopedPointer>

namespace ZIRVOUI {

struct ZScrollLabelPrivate;

/*! Where the text of a ZScrollLabel goes. */
enum ScrollDirection : int {
    ScrollHorizontal = 0, //!< The text moves leftwards.
    ScrollVertical = 1 //!< The text moves upwards, half a step at a time.
};

/*!
 * A label whose text runs through it, over and over, when it does not fit; one that fits stands
 * still.
 *
 * The text is drawn as plain text in one line, a line more for each line feed.  Alignment, indent,
 * margin and frame play no part.  Whether it fits is decided when the text is set, when the label
 * is resized, and by upateLabelRollingState(); it then starts from its beginning.  Upwards that is
 * decided by the height that it would have if it were wrapped.  A hidden label keeps its place.
 *
 * It has no meta object of its own: to qobject_cast(), style sheets and Qt Designer it is a QLabel.
 */
class ZCOMMONWIDGETS_EXPORT ZScrollLabel : public QLabel
{
public:
    /*! An empty label, white on nothing. */
    explicit ZScrollLabel(QWidget *parent = nullptr);
    /*! The same with \a text in it. */
    explicit ZScrollLabel(const QString &text, QWidget *parent = nullptr);
    ~ZScrollLabel() override;

    /*! Hides QLabel::setText(), which does not see whether the text fits.  Repaints. */
    void setText(const QString &text);
    /*! Pixels per tick, 1 by default; with a negative one the text leaves for good.  Repaints. */
    void setStep(int step);
    /*! Pixels between the text and its copy that follows, 72 by default.  Repaints. */
    void setSpacing(int spacing);
    /*! White by default.  Repaints. */
    void setFontColor(const QColor &color);

    /*! ScrollHorizontal by default.  Takes effect with the next decision whether the text fits. */
    void setScrollDirection(ScrollDirection direction);
    /*!
     * Milliseconds from tick to tick, 10 by default.  With 0 it ticks as fast as the event loop
     * turns, and a negative interval does not move the text.  Takes effect with the next decision
     * whether the text fits.
     */
    void setTimerMsc(int interval);
    /*!
     * Whether the text may move at all, true by default.  Takes effect with the next decision
     * whether it fits.
     */
    void setNeedScroll(bool need);
    /*! Decides whether the text fits, and starts from its beginning.  Does not repaint. */
    void upateLabelRollingState();

protected:
    void timerEvent(QTimerEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QScopedPointer<ZScrollLabelPrivate> d;
};

} // namespace ZIRVOUI

#endif
