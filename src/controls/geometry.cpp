#include "controls/geometry.h"

#include "common/rounding.h"

namespace controls {

namespace {

using common::toIntegerClamped;

// The far edge of a grip; a box read from a damaged store may be as wide as floats go.
qint32 gripEnd(qint32 start) { return toIntegerClamped<qint32>(start + double{FrameTwips}); }

bool belongs(Handle handle, GripSet set)
{
    const bool corner =
        (movesLeft(handle) || movesRight(handle)) && (movesTop(handle) || movesBottom(handle));
    return set == GripSet::All || (set == GripSet::Corners && corner);
}

} // namespace

QRect pixelRect(const Box &box, const platform::Screen &screen)
{
    return {toIntegerClamped<qint16>(screen.toPixelsX(box.Left)),
            toIntegerClamped<qint16>(screen.toPixelsY(box.Top)),
            toIntegerClamped<qint16>(screen.toPixelsX(box.Width)),
            toIntegerClamped<qint16>(screen.toPixelsY(box.Height))};
}

float innerWidth(const Box &box, const platform::Screen &screen)
{
    return screen.toPixelsX(box.Width - BothFrames);
}

float innerHeight(const Box &box, const platform::Screen &screen)
{
    return screen.toPixelsY(box.Height - BothFrames);
}

Box shrunk(const Box &box, const QMarginsF &margins)
{
    const QRectF inner = QRectF(box.Left, box.Top, box.Width, box.Height).marginsRemoved(margins);
    return {static_cast<float>(inner.x()), static_cast<float>(inner.y()), static_cast<float>(inner.width()),
            static_cast<float>(inner.height())};
}

Box framed(const QRectF &content, const platform::Screen &screen)
{
    return {screen.toTwipsX(static_cast<float>(content.x())) - FrameTwips,
            screen.toTwipsY(static_cast<float>(content.y())) - FrameTwips,
            screen.toTwipsX(static_cast<float>(content.width())) + BothFrames,
            screen.toTwipsY(static_cast<float>(content.height())) + BothFrames};
}

QPointF pulledInto(QPointF place, const Box &box, float frame, recorder::VideoStandard standard,
                   const platform::Screen &screen)
{
    return {pulledInto(static_cast<float>(place.x()), screen.toPixelsX(box.Width), screen.toPixelsX(frame),
                       recorder::CanvasWidth),
            pulledInto(static_cast<float>(place.y()), screen.toPixelsY(box.Height), screen.toPixelsY(frame),
                       static_cast<float>(recorder::canvasHeight(standard)))};
}

QPointF keptOnCanvas(QPointF place, const Box &box, float frame, recorder::VideoStandard standard,
                     const platform::Screen &screen)
{
    const QPointF corner = pulledInto(place, box, frame, standard, screen);
    return {std::max(corner.x(), std::min(place.x(), 0.0)), std::max(corner.y(), std::min(place.y(), 0.0))};
}

Box withSize(const Box &box, Handle handle, float width, float height)
{
    return {movesLeft(handle) ? box.right() - width : box.Left,
            movesTop(handle) ? box.bottom() - height : box.Top, width, height};
}

HandleTable handleTable(float width, float height, GripSet set)
{
    HandleTable table;
    for (std::size_t slot = 0; slot < table.size(); ++slot) {
        const auto handle = static_cast<Handle>(slot);
        if (!belongs(handle, set))
            continue;
        const float x = movesLeft(handle) ? 0 : (width - FrameTwips) / (movesRight(handle) ? 1.0F : 2.0F);
        const float y = movesTop(handle) ? 0 : (height - FrameTwips) / (movesBottom(handle) ? 1.0F : 2.0F);
        const auto left = toIntegerClamped<qint32>(x);
        const auto top = toIntegerClamped<qint32>(y);
        table[slot] = {left, top, gripEnd(left), gripEnd(top)};
    }
    return table;
}

std::optional<Handle> handleAt(const HandleTable &table, QPointF point)
{
    for (std::size_t slot = 0; slot < table.size(); ++slot) {
        const GripBox &grip = table[slot];
        if (grip.isFilled() && point.x() >= grip.Left && point.x() <= grip.Right && point.y() >= grip.Top &&
            point.y() <= grip.Bottom)
            return static_cast<Handle>(slot);
    }
    return std::nullopt;
}

} // namespace controls
