#include "surface/canvas_rules.h"

#include "common/rounding.h"

#include <algorithm>
#include <cmath>

namespace surface {

namespace {

constexpr double DeadZonePixels = 5;
constexpr float SmallestSide = 180;  // twips: two pixels of content
constexpr double SmallestBand = 100; // twips

float snapped(float value, const Grid &grid)
{
    if (!grid.snaps)
        return value;
    return static_cast<float>(SnapXY({static_cast<double>(value), 0}, grid.spacing).x());
}

// One axis of a resize: the edges of the box, the pointer, the canvas' end.
struct Edges
{
    float low;
    float high;
};

Edges draggedEdges(Edges edges, bool movesLow, bool movesHigh, float pointer, float canvasEnd,
                   const Grid &grid)
{
    if (movesLow) {
        const float wanted = snapped(std::min(edges.low + pointer, edges.high - SmallestSide), grid);
        edges.low = std::min(std::max(wanted, 0.0F), edges.high - SmallestSide);
    }
    if (movesHigh) {
        const float wanted = snapped(std::max(edges.low + pointer, edges.low + SmallestSide), grid);
        edges.high = std::max(std::min(wanted, canvasEnd), edges.low + SmallestSide);
    }
    return edges;
}

} // namespace

QPointF SnapXY(QPointF place, int spacing)
{
    if (spacing <= 0)
        return place;
    return {std::floor(place.x() / spacing) * spacing, std::floor(place.y() / spacing) * spacing};
}

bool insideDeadZone(QPointF start, QPointF now, const platform::Screen &screen)
{
    const QPointF reach = screen.toTwips(QPointF(DeadZonePixels, DeadZonePixels));
    return std::fabs(now.x() - start.x()) <= reach.x() && std::fabs(now.y() - start.y()) <= reach.y();
}

Box clampedToCanvas(const Box &box, const QMarginsF &overhang, const CanvasRules &rules)
{
    const auto pulled = [](float place, float size, float canvas, double before, double after) {
        const float last = canvas + static_cast<float>(after) - size;
        return std::max(std::min(place, last), static_cast<float>(0 - before));
    };
    Box clamped = box;
    clamped.Left = pulled(box.Left, box.Width, rules.width(), overhang.left(), overhang.right());
    clamped.Top = pulled(box.Top, box.Height, rules.height(), overhang.top(), overhang.bottom());
    return clamped;
}

Box movedBox(const Box &box, const QMarginsF &overhang, QPointF start, QPointF now, const CanvasRules &rules)
{
    const QPointF shift = now - start;
    Box moved = box;
    moved.Left = snapped(box.Left + static_cast<float>(shift.x()), rules.grid);
    moved.Top = snapped(box.Top + static_cast<float>(shift.y()), rules.grid);
    return clampedToCanvas(moved, overhang, rules);
}

Box resizedBox(const Box &box, controls::Handle handle, QPointF now, const CanvasRules &rules)
{
    const Edges x = draggedEdges({box.Left, box.right()}, movesLeft(handle), movesRight(handle),
                                 static_cast<float>(now.x()), rules.width(), rules.grid);
    const Edges y = draggedEdges({box.Top, box.bottom()}, movesTop(handle), movesBottom(handle),
                                 static_cast<float>(now.y()), rules.height(), rules.grid);
    return {x.low, y.low, x.high - x.low, y.high - y.low};
}

bool isSelectingBand(QPointF start, QPointF end)
{
    return std::fabs(end.x() - start.x()) > SmallestBand && std::fabs(end.y() - start.y()) > SmallestBand;
}

bool bandHolds(QPointF start, QPointF end, const Box &box)
{
    const auto between = [](double a, double b, float value) {
        return static_cast<double>(value) >= std::min(a, b) && static_cast<double>(value) <= std::max(a, b);
    };
    return between(start.x(), end.x(), box.Left) && between(start.y(), end.y(), box.Top);
}

qsizetype stepInRing(qsizetype count, qsizetype from, bool forward)
{
    if (count == 0)
        return -1;
    if (from < 0)
        return forward ? 0 : count - 1;
    return (from + (forward ? 1 : count - 1)) % count;
}

QString positionText(QPointF twips, const platform::Screen &screen)
{
    const QPointF pixels = screen.toPixels(twips);
    return QStringLiteral("Pos (x, y) : %1, %2")
        .arg(common::toIntegerClamped<int>(pixels.x()))
        .arg(common::toIntegerClamped<int>(pixels.y()));
}

} // namespace surface
