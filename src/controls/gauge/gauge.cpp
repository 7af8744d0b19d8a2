#include "controls/gauge/gauge.h"

#include "controls/complexity.h"
#include "platform/guards.h"

#include <algorithm>
#include <cmath>

namespace controls {

using common::toInteger;
using platform::skipFailures;
using recorder::VideoStandard;

namespace {

// Degrees to radians with this literal: deliberate, the recorder's needles are drawn with it too.
constexpr double DegreesPerRadian = 57.3;
// An NTSC canvas squeezes the needle so that its circle stays round on the screen.
constexpr double NtscSqueeze = double{common::NtscHeight} / common::PalHeight;
// The resize rule works only between these sizes, twips.
constexpr float SmallestBox = 150;
constexpr float LargestBox = 7600;
constexpr float LongestNeedle = 255; // pixels, when dragged by a grip

qint32 orHalf(qint16 stored, float pixels) { return stored != 0 ? stored : toInteger<qint16>(pixels / 2); }

PropertyValue centreX(const ControlValues &values, const platform::Screen &screen)
{
    return pivot(static_cast<const GaugeValues &>(values), screen).x();
}

PropertyValue centreY(const ControlValues &values, const platform::Screen &screen)
{
    return pivot(static_cast<const GaugeValues &>(values), screen).y();
}

// The corner, in canvas pixels, of a box that stands centred on the pivot. The horizontal unit serves both
// directions: deliberate.
QPointF cornerOf(const GaugeValues &values, const platform::Screen &screen)
{
    const double inset = static_cast<double>(values.curPointerLength + screen.toPixelsX(FrameTwips));
    return pivot(values, screen) - QPointF(inset, inset);
}

// A pivot a step on. It passes over 0, which would read as the middle of the box.
qint16 stepped(int place, int step)
{
    return toInteger<qint16>(place + step != 0 ? place + step : std::clamp(step, -1, 1));
}

using V = GaugeValues;
constexpr std::array Rows{
    property<&V::curVarID>("curVarID", "newVarID"),
    property<&V::curCenterX>("curCenterX", "newCenterX").readBy(&centreX),
    property<&V::curCenterY>("curCenterY", "newCenterY").readBy(&centreY),
    property<&V::curPointerLength>("curPointerLength", "newPointerLength"),
    property<&V::curPointerWidth>("curPointerWidth", "newPointerWidth"),
    property<&V::curColour>("curColour", "newColour"),
    property<&V::curMinAngle>("curMinAngle", "newMinAngle"),
    property<&V::curMaxAngle>("curMaxAngle", "newMaxAngle"),
    property<&V::curMin>("curMin", "newMin"),
    property<&V::curMax>("curMax", "newMax"),
    property<&V::curDefaultVal>("curDefaultVal", "newDefaultVal"),
    property<&V::curColourVariable>("curColourVariable", "newColourVariable"),
    property<&V::curColourVarMin>("curColourVarMin", "newColourVarMin"),
    property<&V::curColourVarMax>("curColourVarMax", "newColourVarMax"),
};

// The share of the scale at which the default value stands; not limited to 0..1.
std::optional<double> fractionOfScale(const GaugeValues &values)
{
    if (values.curMax == values.curMin || values.curMaxAngle == values.curMinAngle)
        return std::nullopt;
    const double low = static_cast<double>(values.curMin);
    return (static_cast<double>(values.curDefaultVal) - low) / (static_cast<double>(values.curMax) - low);
}

} // namespace

const PropertyTable &gaugeProperties()
{
    static constexpr PropertyTable Table{Rows};
    return Table;
}

QPoint pivot(const GaugeValues &values, const platform::Screen &screen)
{
    return {orHalf(values.curCenterX, screen.toPixelsX(values.box.Width)),
            orHalf(values.curCenterY, screen.toPixelsY(values.box.Height))};
}

GaugeValues withPivot(GaugeValues values, const platform::Screen &screen)
{
    const QPoint centre = pivot(values, screen);
    values.curCenterX = toInteger<qint16>(centre.x());
    values.curCenterY = toInteger<qint16>(centre.y());
    return values;
}

GaugeValues placed(GaugeValues values, const platform::Screen &screen)
{
    // A box of this size gives the same length again by the resize rule.
    const float side = screen.toTwipsX(2.0F * values.curPointerLength) + BothFrames;
    values.box.Width = side;
    values.box.Height = side;
    values = withPivot(values, screen);
    const QPointF corner = cornerOf(values, screen);
    values.box.Left = screen.toTwipsX(static_cast<float>(corner.x()));
    values.box.Top = screen.toTwipsY(static_cast<float>(corner.y()));
    return values;
}

std::optional<Needle> needleOf(const GaugeValues &values, VideoStandard standard,
                               const platform::Screen &screen)
{
    const auto fraction = fractionOfScale(values);
    if (!fraction)
        return std::nullopt;
    const double degrees = *fraction * (values.curMaxAngle - values.curMinAngle) + values.curMinAngle - 90;
    const double r = degrees / DegreesPerRadian;
    if (!std::isfinite(r))
        return std::nullopt;
    const double squeeze = standard == VideoStandard::Pal ? 1.0 : NtscSqueeze;
    const QPointF from = pivot(values, screen);
    return Needle{from, from - QPointF(std::cos(r), std::sin(r)),
                  from + QPointF(std::cos(r) * values.curPointerLength,
                                 std::sin(r) * values.curPointerLength * squeeze)};
}

void paintNeedle(const GaugeValues &values, VideoStandard standard, const platform::Screen &screen,
                 Composition &onto)
{
    const auto needle = needleOf(values, standard, screen);
    if (!needle)
        return;
    QPen pen(toQColor(values.curColour.packed()));
    pen.setCapStyle(Qt::RoundCap);
    if (values.curPointerWidth != 0)
        pen.setWidth(values.curPointerWidth);
    CompositionPainter painter(onto);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.drawLine(onto.drawing == Drawing::Designed ? needle->tail : needle->pivot, needle->tip);
}

QRect needleArea(const GaugeValues &values, VideoStandard standard, const platform::Screen &screen)
{
    const auto needle = needleOf(values, standard, screen);
    if (!needle)
        return {};
    const int margin = values.curPointerWidth / 2 + 2;
    const QRectF line = QRectF(needle->tail, needle->tip).normalized();
    return line.toAlignedRect().adjusted(-margin, -margin, margin, margin);
}

void Gauge::settle() { m_values = withPivot(m_values, screen()); }

void Gauge::raiseReposition() { host().Reposition(*this, cornerOf(m_values, screen())); }

void Gauge::AssignProperties()
{
    m_values = placed(m_values, screen());
    moveTo(box().Left, box().Top);
    raiseReposition();
}

void Gauge::updatePosition()
{
    skipFailures([&] {
        m_values.curCenterX =
            toInteger<qint16>(screen().toPixelsX(box().Left + FrameTwips) + m_values.curPointerLength);
    });
    skipFailures([&] {
        m_values.curCenterY =
            toInteger<qint16>(screen().toPixelsY(box().Top + FrameTwips) + m_values.curPointerLength);
    });
}

void Gauge::sizeChanged()
{
    Box square = box();
    const auto inRange = [](float size) { return size > SmallestBox && size < LargestBox; };
    if (!inRange(square.Width) || !inRange(square.Height))
        return;
    square.Width = square.Height; // height decides
    m_values.box = square;
    skipFailures([&] {
        m_values.curPointerLength =
            toInteger<quint8>(screen().toPixelsX(square.Width) / 2 - screen().toPixelsX(FrameTwips));
    });
    updatePosition();
}

void Gauge::applyResize()
{
    skipFailures([&] {
        const int half = screen().wholePixelsX(box().Width) / 2;
        m_values.curPointerLength =
            toInteger<quint8>(static_cast<float>(half) - screen().toPixelsX(FrameTwips));
    });
    updatePosition();
}

// Kept square with the opposite corner fixed, as far as the canvas and the needle reach.
Box Gauge::resizedBox(const Box &wanted, Handle handle) const
{
    const float canvasWidth = screen().toTwipsX(recorder::CanvasWidth);
    const float room = movesLeft(handle) ? wanted.right() : canvasWidth - wanted.Left;
    const float side = std::min({wanted.Height, room, screen().toTwipsX(2 * LongestNeedle) + BothFrames});
    return withSize(wanted, handle, side, side);
}

// Square at once: the resize rule lets a box be that is still too wide for it.
void Gauge::fitCanvasHeight(float height)
{
    if (box().Height > height)
        setBox({box().Left, box().Top, height, height});
    OverlayControl::fitCanvasHeight(height);
}

void Gauge::applyInitialProperties()
{
    set(GaugeValues());
    m_values.curPointerLength = toInteger<quint8>(screen().toPixelsX(box().Width) / 2);
    const Box sized = placed(m_values, screen()).box;
    setBox({box().Left, box().Top, sized.Width, sized.Height});
    updatePosition();
}

void Gauge::nudge(int dx, int dy)
{
    const QPoint from = pivot(m_values, screen());
    m_values.curCenterX = stepped(from.x(), dx);
    m_values.curCenterY = stepped(from.y(), dy);
    raiseReposition();
}

void Gauge::paint(Composition &onto) const { paintNeedle(m_values, host().VideoType(), screen(), onto); }

// A needle fills little of its box, and may be wider.
QRect Gauge::drawnArea() const { return needleArea(m_values, host().VideoType(), screen()); }

double Gauge::complexity() const
{
    return complexity::gauge(m_values.curPointerWidth, m_values.curPointerLength);
}

} // namespace controls
