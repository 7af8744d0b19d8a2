#pragma once

#include "controls/geometry.h"
#include "recorder/recorder_settings.h"

#include <QMarginsF>
#include <QPointF>
#include <QRectF>
#include <QString>

namespace surface {

using controls::Box;

// The grid: a spacing in twips (0 or less: no dots and no snapping).
struct Grid
{
    int spacing = 80;
    bool shown = true;
    bool snaps = true;
};

// What the rules of the canvas depend on.
struct CanvasRules
{
    platform::Screen screen;
    recorder::VideoStandard standard = recorder::VideoStandard::Pal;
    Grid grid;

    float width() const { return screen.toTwipsX(recorder::CanvasWidth); }
    float height() const { return screen.toTwipsY(static_cast<float>(recorder::canvasHeight(standard))); }
};

// Down to the grid point at or before the place, never to the nearest one: deliberate, so that a drag by less
// than a step leaves a control where it is.
QPointF SnapXY(QPointF place, int spacing);

// Small jitter of a click: at most five pixels in both directions.
bool insideDeadZone(QPointF start, QPointF now, const platform::Screen &screen);

// The box with its corner pulled so that it lies on the canvas, but for what may hang over (twips); a box
// larger than the canvas begins at its edge.
Box clampedToCanvas(const Box &box, const QMarginsF &overhang, const CanvasRules &rules);

// Where a drag from `start` to `now` (twips within the control) takes the box: snapped, then clamped.
Box movedBox(const Box &box, const QMarginsF &overhang, QPointF start, QPointF now, const CanvasRules &rules);

// Where a drag of a grip to `now` (twips within the control) takes the box: at least 180 twips each way,
// moving edges snapped, inside the canvas.
Box resizedBox(const Box &box, controls::Handle handle, QPointF now, const CanvasRules &rules);

// A rubber band between two canvas points selects only when it is over 100 twips both ways.
bool isSelectingBand(QPointF start, QPointF end);
// Only the top-left corner of a control counts; edges are inside.
bool bandHolds(QPointF start, QPointF end, const Box &box);

// The next or previous of `count` things that stand in a ring; from none (-1) to the first or last. -1 when
// there are none.
qsizetype stepInRing(qsizetype count, qsizetype from, bool forward);

// "Pos (x, y) : " with whole pixels.
QString positionText(QPointF twips, const platform::Screen &screen);

} // namespace surface
