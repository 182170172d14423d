#ifndef PROGRESSBAR_H
#define PROGRESSBAR_H

#include "zcommonwidgets_export.h"

#include <QBrush>
#include <QScopedPointer>
#include <QWidget>

namespace ZIRVOUI {

class KeptShape;

/*!
 * A horizontal bar that is filled from the left as far as its value is on the way from the minimum
 * to the maximum.  It draws no text, and asks a layout for no size: give it a height.
 *
 * Every setter but setValue(int) only stores, the property m_curValue included: call update() to
 * show a change.
 */
class ZCOMMONWIDGETS_EXPORT ProgressBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double m_minValue READ getMinValue WRITE setMinValue)
    Q_PROPERTY(double m_maxValue READ getMaxValue WRITE setMaxValue)
    Q_PROPERTY(double m_curValue READ getValue WRITE setValue)
    Q_PROPERTY(bool m_percent READ getPercent WRITE setPercent)
    Q_PROPERTY(int m_padding READ getPadding WRITE setPadding)
    Q_PROPERTY(int m_radius READ getRadius WRITE setRadius)
    Q_PROPERTY(QBrush m_valueBrush READ getValueBrush WRITE setValueBrush)
    Q_PROPERTY(QColor m_valueColor READ getValueColor WRITE setValueColor)
    Q_PROPERTY(QColor m_bgColor READ getBgColor WRITE setBgColor)
    Q_PROPERTY(QColor m_tipColor READ getTipColor WRITE setTipColor)
    Q_PROPERTY(QColor m_textColor READ getTextColor WRITE setTextColor)

public:
    /*! An empty bar from 0 to 100, blue on dark gray. */
    explicit ProgressBar(QWidget *parent = nullptr);
    ~ProgressBar() override;

    double getMinValue() const;
    double getMaxValue() const;
    double getValue() const;
    bool getPercent() const;
    int getPadding() const;
    int getRadius() const;
    QBrush getValueBrush() const;
    QColor getValueColor() const;
    QColor getBgColor() const;
    QColor getTipColor() const;
    QColor getTextColor() const;

Q_SIGNALS:
    /*! The value was set, to \a value within the range; it need not be new. */
    void valueChanged(double value);

public Q_SLOTS:
    /*! The value stays as it is until it is set again.  An empty range draws no fill. */
    void setRange(double minValue, double maxValue);
    void setRange(int minValue, int maxValue);
    /*! The value of an empty bar, 0 by default.  The value stays as it is. */
    void setMinValue(double minValue);
    /*! The value of a full bar, 100 by default.  The value stays as it is. */
    void setMaxValue(double maxValue);
    /*!
     * Limits the value to the range; in an inverted range the minimum counts.  NaN draws no fill.
     */
    void setValue(double value);
    /*! Limits the value to the range, whose ends lose their fraction, and repaints. */
    void setValue(int value);
    /*! Stored for the application; nothing is drawn by it.  False by default. */
    void setPercent(bool percent);
    /*!
     * A full bar ends twice these pixels before the right edge; 0 by default, a negative padding
     * lengthens it.
     */
    void setPadding(int padding);
    /*!
     * The corner radius of background and fill in pixels, 0 by default; less is square too, and
     * half of the height or width of each is the most.
     */
    void setRadius(int radius);
    /*! The fill, solid blue by default.  An empty brush leaves it to the value colour. */
    void setValueBrush(const QBrush &valueBrush);
    /*! The fill while the value brush is empty; invalid, which draws black, by default. */
    void setValueColor(const QColor &valueColor);
    /*! Dark gray by default. */
    void setBgColor(const QColor &bgColor);
    /*! Stored for the application; nothing is drawn in it.  Invalid by default. */
    void setTipColor(const QColor &tipColor);
    /*! Stored for the application; nothing is drawn in it.  Invalid by default. */
    void setTextColor(const QColor &textColor);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int fillLength() const;

    double m_minValue = 0.0;
    double m_maxValue = 100.0;
    double m_curValue = 0.0;
    bool m_percent = false;
    int m_padding = 0;
    int m_radius = 0;
    QBrush m_valueBrush;
    QColor m_valueColor;
    QColor m_bgColor;
    QColor m_tipColor;
    QColor m_textColor;
    QScopedPointer<KeptShape> m_background;
    QScopedPointer<KeptShape> m_bar;
};

} // namespace ZIRVOUI

#endif
