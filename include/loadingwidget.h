#ifndef LOADINGWIDGET_H
#define LOADINGWIDGET_H

#include "zcommonwidgets_export.h"

#include <QBrush>
#include <QPair>
#include <QTimer>
#include <QVector>
#include <QWidget>

namespace ZIRVOUI {

/*!
 * An endless spinner: a ring in a conical gradient with a round head, turning clockwise by 2
 * degrees every 6 milliseconds from its construction on.
 *
 * It is as large as the widget allows, in its middle; it asks a layout for no size: give it one.
 * It is painted once in 16 milliseconds at most, at the same time as all other spinners of its
 * window.  A hidden spinner keeps turning without painting.
 */
class ZCOMMONWIDGETS_EXPORT LoadingWidget : public QWidget
{
    Q_OBJECT

public:
    /*! A spinner in RGB (49, 106, 255) whose tail fades to white. */
    explicit LoadingWidget(QWidget *parent = nullptr);
    ~LoadingWidget() override;

    /*! Turns the spinner by one step, as the timer does, and repaints. */
    void updateRotate();
    /*! Goes on from where it was stopped, or counts its 6 milliseconds anew. */
    void start();
    /*! The spinner stays as it is until start(). */
    void stop();

    /*!
     * The width of the ring and its head in pixels, 10 by default.  With 0 the ring is one pixel
     * wide and has no head, with less there is no ring.  Repaints if it is new.
     */
    void setWidth(int width);
    /*!
     * Adds colours to the ring, at positions from 0, the head, counter-clockwise to 1, and gives
     * the head the first of them.  Shows at the next repaint.
     *
     * A colour at a position that has one replaces it; other positions are left out, of which
     * QGradient warns.  An empty list changes nothing.  The colours need to live during the call
     * only.
     */
    void addGradientColor(const QVector<QPair<double, const QColor &>> &colors);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    friend class AccessibleSpinner;

    void turn();
    void tick();
    void drawRing(QPainter &painter, int radius);
    void drawHead(QPainter &painter, int radius);

    int m_angle = 0; // degrees
    QTimer m_timer;
    QConicalGradient m_gradient = QConicalGradient(0, 0, 0);
    int m_width = 10; // pixels
    QColor m_headColor;
    bool m_isBehind = false; // it has turned since it was painted
    qint64 m_frame = 0; // that it was painted for by the timer
};

} // namespace ZIRVOUI

#endif
