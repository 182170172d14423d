#ifndef PROGRESSTEST_H
#define PROGRESSTEST_H

#include "widgettest.h"

constexpr double Huge = std::numeric_limits<double>::max();

/*! Compares what \a widget draws with what \a draw(painter, size) does, at each of \a sizes. */
template <typename Draw>
void comparePictures(QWidget &widget, std::initializer_list<QSize> sizes, Draw draw)
{
    for (const QSize size : sizes) {
        const QImage expected = reference(size, [&](QPainter &painter) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            draw(painter, size);
        });
        COMPARE_PICTURES(snapshot(widget, size), expected);
    }
}

/*! Whether the animation of \a widget paints it while it shows, and no more once it is hidden. */
inline bool paintsOnlyWhenShown(QWidget &widget)
{
    const bool paintsWhenShown = repaints(widget, [] { QTest::qWait(100); });
    widget.hide();
    PaintCounter paints(widget);
    QTest::qWait(60);
    return paintsWhenShown && paints.take() == 0;
}

/*! The properties and methods that a class adds to those of its base, in their order. */
inline QByteArray ownMembers(const QMetaObject &meta)
{
    QByteArrayList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        names << meta.property(i).name();
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names << meta.method(i).methodSignature();
    return names.join(' ');
}

#endif
