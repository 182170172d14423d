#ifndef CANVAS_H
#define CANVAS_H

#include <QPainter>
#include <QWidget>
#include <functional>

/*! Draws the picture of a \a size that a widget shows in a frame, with a painter as it gets it. */
using Draw = std::function<void(QPainter &painter, const QSize &size, int frame)>;

/*! How many pixels of the screen a pixel of the painter's takes. */
inline double pixelRatio(const QPainter &painter)
{
    return painter.device()->devicePixelRatioF();
}

/*! A widget that has nothing but its painter calls. */
class Canvas : public QWidget
{
public:
    explicit Canvas(Draw draw, QWidget *parent = nullptr)
        : QWidget(parent)
        , m_draw(std::move(draw))
    {
    }

    void setFrame(int frame) { m_frame = frame; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_draw(painter, size(), m_frame);
    }

private:
    Draw m_draw;
    int m_frame = 0;
};

#endif
