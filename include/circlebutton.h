#ifndef CIRCLEBUTTON_H
#define CIRCLEBUTTON_H

#include "zcommonwidgets_export.h"

#include <QPushButton>
#include <QScopedPointer>
#include <QTimer>

class QHBoxLayout;

namespace ZIRVOUI {

class KeptShape;
class ZSvgWidget;

/*!
 * A round button, an ellipse that fills the widget, with an SVG icon in its middle and optional
 * text behind that, which reports long presses.
 *
 * A disabled button is filled with the gray of its colour, one that is down with a lighter colour.
 * The text is drawn in the palette's WindowText colour.  Its size hint is a stock button's, neither
 * round nor as large as the icon: give it a size.
 *
 * A long press does not replace the click.  A slot of any signal may delete the button.
 */
class ZCOMMONWIDGETS_EXPORT CircleButton : public QPushButton
{
    Q_OBJECT

public:
    /*!
     * A transparent button with the SVG at \a path as its icon, at the natural size of that file.
     * A bitmap, or a file that cannot be read, gives an icon of no size, which nothing changes
     * later.  See ZSvgWidget::loadSvgImage().
     *
     * It cannot be checked.  A click gives it the focus, the Tab key does not.
     */
    explicit CircleButton(const QString &path, QWidget *parent = nullptr);
    ~CircleButton() override;

    /*! The outline, transparent by default.  Only stores. */
    void setBorderColor(QColor color);
    /*!
     * The outline's width in pixels; 0, the default, is one pixel, and less draws none round an
     * ellipse that reaches beyond the widget.  Only stores.
     */
    void setBorderWidth(int width);
    /*! The ellipse, transparent by default.  Repaints. */
    void setBackgroundColor(QColor color);
    /*! Shows another icon, scaled into the size that the first one had. */
    void loadSvg(const QString &path);

    /*! Reports again and again while the button stays down; off by default. */
    void setLongPressRepeat(bool repeat);
    /*! The milliseconds from a press to the first report, 0 by default and at least. */
    void setLongPressDelayMS(int ms);
    /*!
     * The milliseconds between two reports, 0 by default and at least: then they come as fast as
     * the event loop turns, so set it before repeating.
     */
    void setLongPressIntervalMS(int ms);

    /*! The height of the font in pixels, and repaints; 0 and less leave the size as it is. */
    void setFontSize(int size);
    /*! Sets the palette's WindowText brush in all colour groups, and repaints. */
    void setFontColor(QColor color);

Q_SIGNALS:
    /*!
     * A press of any mouse button has lasted the delay, or it lasts on and an interval is over.
     * Repeats end when the button is up, disabled or hidden.
     */
    void signal_longPressed();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void buildConnect();
    void reportLongPress();
    void repeatLongPress();
    void drawEllipse(QPainter &painter);

    QColor m_borderColor = Qt::transparent;
    QColor m_backgroundColor = Qt::transparent;
    int m_borderWidth = 0;
    QHBoxLayout *m_layout;
    ZSvgWidget *m_icon;
    QTimer m_delayTimer;
    QTimer m_repeatTimer;
    bool m_longPressRepeat = false;
    QScopedPointer<KeptShape> m_disc;
};

} // namespace ZIRVOUI

#endif
