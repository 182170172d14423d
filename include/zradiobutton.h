#ifndef ZRADIOBUTTON_H
#define ZRADIOBUTTON_H

#include "zcommonwidgets_export.h"

#include <QRadioButton>
#include <QScopedPointer>

namespace ZIRVOUI {

struct ZRadioButtonPrivate;

/*!
 * A radio button for dark screens: a circle, with a dot in it while the button is checked, and the
 * text at its right.
 *
 * The circle hugs the top-left corner and is as large as the widget allows.  A disabled button
 * fades its circle to 40 %, not its text.
 *
 * The setters only store: set them before the button is shown, or call update().
 */
class ZCOMMONWIDGETS_EXPORT ZRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    /*!
     * Exclusive among the radio buttons of its parent.  Its size hint is that of a stock one, too
     * narrow for text: give it a width.
     */
    explicit ZRadioButton(QWidget *parent = nullptr);
    /*! The same with \a text at its right. */
    explicit ZRadioButton(const QString &text, QWidget *parent = nullptr);
    ~ZRadioButton() override;

    /*! Pixels between the text and a square as wide as the widget is high, 30 by default. */
    void setSpacing(const int &spacing);
    /*!
     * The width of the circle's line in pixels, 2 by default, and what both circles keep clear of
     * the widget's edge.  From 0.4 of the widget's shorter side on no dot is drawn.
     */
    void setThickness(const int &thickness);
    /*! RGB (151, 151, 151) by default. */
    void setExternalCircleLineColor(const QColor &color);
    /*! Transparent by default. */
    void setExternalCircleFillColor(const QColor &color);
    /*! The dot, RGB (151, 151, 151) by default. */
    void setInternalCircleFillColor(const QColor &color);
    /*! White by default. */
    void setTextColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void nextCheckState() override;

private:
    QScopedPointer<ZRadioButtonPrivate> d;
};

} // namespace ZIRVOUI

#endif
