#include "controls/gauge/gauge.h"

#include "controls/complexity.h"
#include "platform/guards.h"

#include <QPainter>

#include <cmath>

namespace controls {

using common::toInteger;
using platform::skipFailures;
using recorder::VideoStandard;

namespace {

// Degrees to radians with this literal: deliberate, the recorder's needles are drawn with it too.
constexpr double DegreesPerRadian = 57.3;
// An NTSC canvas squeezes the needle so that its circle stays round on the screen.
constexpr double NtscSqueeze = 480.0 / 576.0;
// The resize rule works only between these sizes, twips.
constexpr float SmallestBox = 150;
constexpr float LargestBox = 7600;

qint32 halfInPixels(float size, float twipsPerPixel) { return toInteger<qint16>(size / twipsPerPixel / 2); }

// A pivot that was never set reads as the middle of the box.
PropertyValue centreX(const ControlValues &values, const platform::Screen &screen)
{
    const auto stored = static_cast<const GaugeValues &>(values).curCenterX;
    return stored != 0 ? stored : halfInPixels(values.box.Width, screen.tx);
}

PropertyValue centreY(const ControlValues &values, const platform::Screen &screen)
{
    const auto stored = static_cast<const GaugeValues &>(values).curCenterY;
    return stored != 0 ? stored : halfInPixels(values.box.Height, screen.ty);
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

constexpr std::array<std::string_view, 14> Serialised{
    "curVarID",      "curCenterX",        "curCenterY",      "curPointerLength", "curPointerWidth",
    "curColour",     "curMinAngle",       "curMaxAngle",     "curMin",           "curMax",
    "curDefaultVal", "curColourVariable", "curColourVarMin", "curColourVarMax"};
static_assert(refersToRows(Serialised, Rows));

// The share of the scale at which the default value stands; not limited to 0..1.
std::optional<double> fractionOfScale(const GaugeValues &values)
{
    if (values.curMax == values.curMin || values.curMaxAngle == values.curMinAngle)
        return std::nullopt;
    const double low = static_cast<double>(values.curMin);
    return (static_cast<double>(values.curDefaultVal) - low) / (static_cast<double>(values.curMax) - low);
}

void paintNeedle(QPainter &painter, const GaugeValues &values, const std::optional<Needle> &needle)
{
    if (!needle || !std::isfinite(needle->tip.x()) || !std::isfinite(needle->tip.y()))
        return;
    QPen pen(toQColor(values.curColour.packed()));
    pen.setCapStyle(Qt::RoundCap);
    if (values.curPointerWidth != 0)
        pen.setWidth(values.curPointerWidth);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.drawLine(needle->tail, needle->tip);
}

} // namespace

const PropertyTable &gaugeProperties()
{
    static constexpr PropertyTable Table{Rows, Serialised};
    return Table;
}

std::optional<Needle> designNeedle(const GaugeValues &values, QPointF pivot, VideoStandard standard)
{
    const auto fraction = fractionOfScale(values);
    if (!fraction)
        return std::nullopt;
    const double degrees = *fraction * (values.curMaxAngle - values.curMinAngle) + values.curMinAngle - 90;
    const double r = degrees / DegreesPerRadian;
    const double squeeze = standard == VideoStandard::Pal ? 1.0 : NtscSqueeze;
    return Needle{{pivot.x() - std::cos(r), pivot.y() - std::sin(r)},
                  {pivot.x() + std::cos(r) * values.curPointerLength,
                   pivot.y() + std::sin(r) * values.curPointerLength * squeeze}};
}

std::optional<Needle> previewNeedle(const GaugeValues &values, VideoStandard standard)
{
    const QPointF pivot(values.curCenterX, values.curCenterY);
    auto needle = designNeedle(values, pivot, standard);
    if (needle)
        needle->tail = pivot;
    return needle;
}

// The horizontal unit serves both directions: deliberate.
void Gauge::raiseReposition()
{
    const float frame = FrameTwips / screen().tx;
    emit Reposition(static_cast<float>(m_values.curCenterX - m_values.curPointerLength) - frame,
                    static_cast<float>(m_values.curCenterY - m_values.curPointerLength) - frame);
}

// The box of this length: it stands centred on its pivot, and the resize rule gives the same length again.
Box Gauge::centredBox() const
{
    const float side = 2.0F * m_values.curPointerLength * screen().tx + BothFrames;
    return {box().Left, box().Top, side, side};
}

void Gauge::AssignProperties()
{
    raiseReposition();
    m_values.box = centredBox();
    moveTo(box().Left, box().Top);
}

void Gauge::updatePosition()
{
    skipFailures([&] {
        m_values.curCenterX =
            toInteger<qint16>((box().Left + FrameTwips) / screen().tx + m_values.curPointerLength);
    });
    skipFailures([&] {
        m_values.curCenterY =
            toInteger<qint16>((box().Top + FrameTwips) / screen().ty + m_values.curPointerLength);
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
            toInteger<quint8>(square.Width / (2 * screen().tx) - FrameTwips / screen().tx);
    });
    updatePosition();
}

void Gauge::applyResize()
{
    skipFailures([&] {
        const int half = common::wholeDivide(box().Width, screen().tx) / 2;
        m_values.curPointerLength = toInteger<quint8>(static_cast<float>(half) - FrameTwips / screen().tx);
    });
    updatePosition();
}

// Kept square with the opposite corner fixed, as far as the canvas reaches.
Box Gauge::resizedBox(const Box &wanted, Handle handle) const
{
    Box square = wanted;
    const float canvasWidth = recorder::CanvasWidth * screen().tx;
    const float room = movesLeft(handle) ? wanted.right() : canvasWidth - wanted.Left;
    const float side = std::min(wanted.Height, room);
    square.Width = side;
    square.Height = side;
    if (movesLeft(handle))
        square.Left = wanted.right() - side;
    if (movesTop(handle))
        square.Top = wanted.bottom() - side;
    return square;
}

void Gauge::applyInitialProperties()
{
    set(GaugeValues());
    m_values.curPointerLength = toInteger<quint8>(box().Width / (2 * screen().tx));
    setBox(centredBox());
    updatePosition();
}

void Gauge::nudge(int dx, int dy)
{
    m_values.curCenterX = toInteger<qint16>(m_values.curCenterX + dx);
    m_values.curCenterY = toInteger<qint16>(m_values.curCenterY + dy);
    raiseReposition();
}

void Gauge::paintInner(QPainter &painter, const QSize &size) const
{
    if (backImage().isNull())
        painter.fillRect(QRect(QPoint(), size), toQColor(backColour()));
    else
        painter.drawImage(0, 0, backImage());
    const QPointF pivot(m_values.curPointerLength, m_values.curPointerLength);
    paintNeedle(painter, m_values, designNeedle(m_values, pivot, host().VideoType()));
}

void Gauge::paintPreview(QPainter &painter) const
{
    paintNeedle(painter, m_values, previewNeedle(m_values, host().VideoType()));
}

double Gauge::complexity() const
{
    return complexity::gauge(m_values.curPointerWidth, m_values.curPointerLength);
}

} // namespace controls
