#ifndef ROTATEPROGRESS_H
#define ROTATEPROGRESS_H

#include "zcommonwidgets_export.h"

#include <QColor>
#include <QWidget>

class QVariantAnimation;

namespace ZIRVOUI {

/*!
 * Work that goes on and is then done: sixteen dots turn while an arc grows round them for 2.8
 * seconds, then the figure bursts and leaves a golden glow until it is stopped.
 *
 * The figure is 400 pixels across at rest and bursts beyond that; the widget's size only cuts it
 * and sets the width of the glow.  It asks a layout for no size: give it one.  Nothing is drawn
 * before it is started.
 */
class ZCOMMONWIDGETS_EXPORT RotateProgress : public QWidget
{
    Q_OBJECT

public:
    /*! Green, RGB (135, 245, 14), once it is started. */
    explicit RotateProgress(QWidget *parent = nullptr);
    ~RotateProgress() override;

    /*!
     * Starts from the beginning, or starts anew.  A glow that was not stopped stays until the
     * figure bursts again, and hides dots and arc meanwhile.
     */
    void startAnmition();
    /*! Ends everything at once; nothing is drawn from then on. */
    void stopAnmition();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void startPointAnmi();
    void startCircleAnmi();
    void startExpandAnmi();

    void paintPoint();
    void paintCircle();
    void paintGold();

    int expansion() const;
    double fadeOpacity() const;
    double outerRadius() const;
    QPoint center() const;

    QVariantAnimation *m_pointAnimation;
    QVariantAnimation *m_circleAnimation;
    QVariantAnimation *m_expandAnimation;
    double m_radius = 200.0; // pixels
    QColor m_color = QColor(135, 245, 14);
    int m_thickness = 12; // pixels
    bool m_running = false;
};

} // namespace ZIRVOUI

#endif
