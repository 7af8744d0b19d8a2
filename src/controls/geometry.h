#pragma once

#include "platform/screen.h"
#include "recorder/recorder_settings.h"

#include <QMarginsF>
#include <QPointF>
#include <QRect>

#include <algorithm>
#include <array>
#include <optional>

namespace controls {

// The editing frame on each side of a control: hatch and grips. Twips.
inline constexpr float FrameTwips = 75.0F;
inline constexpr float BothFrames = 2 * FrameTwips;

// A control's outer rectangle on the canvas, in twips.
struct Box
{
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;

    float right() const { return Left + Width; }
    float bottom() const { return Top + Height; }
    bool operator==(const Box &) const = default;
};

// The widget's rectangle: each edge position rounded like the positions in a layout file.
QRect pixelRect(const Box &box, const platform::Screen &screen);

// The extent of what lies within the frame, canvas pixels.
float innerWidth(const Box &box, const platform::Screen &screen);
float innerHeight(const Box &box, const platform::Screen &screen);
// The box less these margins, twips; negative ones enlarge it.
Box shrunk(const Box &box, const QMarginsF &margins);
// The box of a control whose content stands here, canvas pixels.
Box framed(const QRectF &content, const platform::Screen &screen);

// Grips in slot order.
enum class Handle : quint8 {
    TopLeft,
    TopMiddle,
    TopRight,
    LeftMiddle,
    RightMiddle,
    BottomLeft,
    BottomMiddle,
    BottomRight
};

constexpr bool movesLeft(Handle h)
{
    return h == Handle::TopLeft || h == Handle::LeftMiddle || h == Handle::BottomLeft;
}
constexpr bool movesRight(Handle h)
{
    return h == Handle::TopRight || h == Handle::RightMiddle || h == Handle::BottomRight;
}
constexpr bool movesTop(Handle h)
{
    return h == Handle::TopLeft || h == Handle::TopMiddle || h == Handle::TopRight;
}
constexpr bool movesBottom(Handle h)
{
    return h == Handle::BottomLeft || h == Handle::BottomMiddle || h == Handle::BottomRight;
}

// One axis of the rule that keeps a control on the canvas: where it begins, `frame` within its box, once it
// does not end beyond it. All in pixels.
constexpr float pulledInto(float position, float outerSize, float frame, float canvas)
{
    return position + outerSize - frame > canvas ? canvas - outerSize + frame : position;
}

// The same for both axes of a box that begins `frame` twips before `place`, on a canvas of this standard.
// Canvas pixels.
QPointF pulledInto(QPointF place, const Box &box, float frame, recorder::VideoStandard standard,
                   const platform::Screen &screen);
// The same, but a box that is larger than the canvas is not pushed out at the other side.
QPointF keptOnCanvas(QPointF place, const Box &box, float frame, recorder::VideoStandard standard,
                     const platform::Screen &screen);

// One axis of a nudge by `step` that the rule above would stop at `stopped`: it does not lead beyond, and
// never backwards.
constexpr double nudged(double place, int step, double stopped)
{
    return step > 0 ? std::max(place, stopped) : place + step;
}

// The box at another size: the edges that the grip moves give way, the others stand.
Box withSize(const Box &box, Handle handle, float width, float height);

enum class GripSet { None, Corners, All };

// Grip boxes, 75 twips square, relative to the control. Slots that the set leaves out stay all zero.
struct GripBox
{
    qint32 Left = 0;
    qint32 Top = 0;
    qint32 Right = 0;
    qint32 Bottom = 0;

    bool isFilled() const { return Right > Left && Bottom > Top; }
    bool operator==(const GripBox &) const = default;
};
using HandleTable = std::array<GripBox, 8>;

HandleTable handleTable(float width, float height, GripSet set);

// The first slot that holds the point (twips within the control); far edges count as inside.
std::optional<Handle> handleAt(const HandleTable &table, QPointF point);

} // namespace controls
