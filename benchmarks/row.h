#ifndef ROW_H
#define ROW_H

#include "canvas.h"

#include <QPainterPath>
#include <QVector>

using Make = std::function<QWidget *()>;
using Advance = std::function<void(QWidget &widget, int frame)>;

/*! A widget in one of its states, and what its cost is compared with. */
struct Row
{
    QString name;
    QSize size;

    Make library;
    /*! Its picture by the obvious calls, with all that it takes made anew. */
    Draw bare;
    /*! What an application would take without the library. */
    Make stock;
    QString sheet; // gives the stock widget a similar look

    /*! Called once for each frame, from 1 on, for a widget of the library that moves. */
    Advance advance = {};
    Advance advanceStock = {};

    bool hasSvg = false;
    /*! Advancing is what an application does for a paint, and so a part of its cost. */
    bool isAdvanceMeasured = false;
    /*! If valid, a child is there, and is what is repainted. */
    QRect child = {};
};

using Rows = QVector<Row>;

Rows labelRows();
Rows textRows();
Rows imageRows();
Rows maskRows();
Rows dialogRows();
Rows buttonRows();
Rows picturedButtonRows();
Rows toggleRows();
Rows progressRows();
Rows turnRows();
Rows rangeRows();
Rows inputRows();

Rows allRows();
Row rowNamed(const QString &name);

/*! Style and font of the whole application, the same on every platform. */
void setLook();

// ---- what rows have in common

constexpr int FrameTime = 16; // ms

inline QString samplePath(const char *name)
{
    return QStringLiteral(":/gallery/") + QLatin1String(name);
}

inline QRectF wholeOf(const QSize &size)
{
    return {QPointF(), size};
}

/*! The outline of a dialog or button: its corners are quadratic curves. */
QPainterPath outlineOf(const QRectF &rect, double radius);

/*! Where the layout of \a widget places its children at \a size, in the order of their creation. */
QVector<QRect> childPlaces(QWidget &widget, const QSize &size);

/*! A stock progress bar that is busy, which is all that there is for what turns and runs. */
QWidget *newBusyBar();

/*! The animations of \a widget itself, paused, for a row to set their time. */
void pauseAnimations(QWidget &widget);
void resumeAnimations(QWidget &widget);
void setAnimationTime(QWidget &widget, int ms);

#endif
