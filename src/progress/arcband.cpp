#include "arcband_p.h"

#include <QPolygonF>
#include <algorithm>

namespace ZIRVOUI {

namespace {

constexpr int FullCircle = 360; // degrees
constexpr int FewestPoints = 3;
constexpr float MostPoints = 64;
constexpr double PointsPerPixel = 2 * 3.14 / 6; // of a curve's longer side

QPointF mix(const QPointF &a, const QPointF &b, double t)
{
    return a * (1 - t) + b * t;
}

// As many points as Qt's path clipper makes of a curve: a finer polygon has other pixels.
void appendCurve(QPolygonF &polygon, const QPointF &a, const QPointF &b, const QPointF &c,
                 const QPointF &d)
{
    const auto [left, right] = std::minmax({a.x(), b.x(), c.x(), d.x()});
    const auto [top, bottom] = std::minmax({a.y(), b.y(), c.y(), d.y()});
    const double side = qMax(right - left, bottom - top);
    const int points = qMax(FewestPoints, int(qMin(MostPoints, float(side * PointsPerPixel))));

    for (int i = 1; i < points - 1; ++i) {
        const double t = i * (1.0 / (points - 1));
        const QPointF middle = mix(b, c, t);
        polygon << mix(mix(mix(a, b, t), middle, t), mix(middle, mix(c, d, t), t), t);
    }
    polygon << d;
}

// The curves of a path that begins at polygon's last point.
void appendCurves(QPolygonF &polygon, const QPainterPath &path)
{
    for (int i = 1; i + 2 < path.elementCount(); i += 3) {
        const QPointF begin = polygon.last();
        appendCurve(polygon, begin, path.elementAt(i), path.elementAt(i + 1),
                    path.elementAt(i + 2));
    }
}

QRectF squareAround(const QPointF &center, double radius)
{
    return {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius};
}

/*! An arc that goes clockwise, like ellipses of QPainterPath do. */
QPolygonF arcPolygon(const QRectF &square, int startAngle, int sweep)
{
    QPainterPath arc;
    arc.arcMoveTo(square, startAngle);
    QPolygonF polygon;
    polygon << arc.currentPosition();
    arc.arcTo(square, startAngle, -sweep);
    appendCurves(polygon, arc);
    return polygon;
}

double crossProduct(const QPointF &a, const QPointF &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/*! A polygon round a centre, and where a line from there to a point cuts it. */
struct Cut
{
    int edge; // begins at the polygon's point of this index
    QPointF point;
};

Cut cutTowards(const QPolygonF &polygon, const QPointF &center, const QPointF &target)
{
    const QPointF way = target - center;
    for (int i = 0; i + 1 < polygon.size(); ++i) {
        const QPointF a = polygon.at(i) - center;
        const QPointF b = polygon.at(i + 1) - center;
        const double before = crossProduct(way, a);
        const double after = crossProduct(way, b);
        const bool isAhead = QPointF::dotProduct(way, a) > 0;
        if (isAhead && (before <= 0) != (after <= 0))
            return {i, polygon.at(i) + (b - a) * (before / (before - after))};
    }
    return {0, polygon.first()};
}

} // namespace

QPainterPath arcBand(const QPointF &center, double outerRadius, double innerRadius, int startAngle,
                     int sweep)
{
    QPainterPath band;
    if (sweep == 0)
        return band;

    QPolygonF outline = arcPolygon(squareAround(center, outerRadius), startAngle, sweep);
    const QPolygonF hole = arcPolygon(squareAround(center, innerRadius), 0, FullCircle);
    if (sweep == FullCircle) {
        band.addPolygon(outline);
        band.addPolygon(hole);
        return band;
    }

    // Back along the hole, from the end of the arc to its beginning.
    const Cut end = cutTowards(hole, center, outline.last());
    const Cut begin = cutTowards(hole, center, outline.first());
    const int edges = hole.size() - 1;
    int steps = (end.edge - begin.edge + edges) % edges;
    if (steps == 0 && sweep > FullCircle / 2)
        steps = edges;

    outline << end.point;
    for (int i = 0; i < steps; ++i)
        outline << hole.at((end.edge - i + edges) % edges);
    outline << begin.point;
    band.addPolygon(outline);
    band.closeSubpath();
    return band;
}

} // namespace ZIRVOUI
