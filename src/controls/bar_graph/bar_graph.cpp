#include "controls/bar_graph/bar_graph.h"

#include "controls/complexity.h"
#include "platform/guards.h"

#include <algorithm>
#include <cmath>

namespace controls {

using common::toInteger;
using platform::skipFailures;

namespace {

constexpr float LargestBar = 255; // length and thickness in pixels, when dragged by a grip

PropertyValue readWidth(const ControlValues &values, const platform::Screen &screen)
{
    return innerWidth(values.box, screen);
}

PropertyValue readHeight(const ControlValues &values, const platform::Screen &screen)
{
    return innerHeight(values.box, screen);
}

using V = BarGraphValues;
constexpr std::array Rows{
    property<&V::curVarID>("curVarID", "newVarID"),
    property<&V::curBarWidth>("curBarWidth", "newBarWidth"),
    property<&V::curColour>("curColour", "newColour"),
    property<&V::curMin>("curMin", "newMin"),
    property<&V::curMax>("curMax", "newMax"),
    property<&V::curDefaultVal>("curDefaultVal", "newDefaultVal"),
    property<&V::curBarType>("curBarType", "newBarType"),
    property<&V::curLeft>("curLeft", "newLeft").notSerialised(),
    property<&V::curTop>("curTop", "newTop").notSerialised(),
    computed("curWidth", &readWidth),
    computed("curHeight", &readHeight),
    property<&V::curAlfa>("curAlfa", "newAlfa"),
    property<&V::curColourVariable>("curColourVariable", "newColourVariable"),
    property<&V::curColourVarMin>("curColourVarMin", "newColourVarMin"),
    property<&V::curColourVarMax>("curColourVarMax", "newColourVarMax"),
};

// The outer corner, in canvas pixels, of a bar that stands at its Left and Top.
QPointF cornerOf(const BarGraphValues &values, const platform::Screen &screen)
{
    return screen.toPixels(QPointF(values.curLeft - FrameTwips, values.curTop - FrameTwips));
}

} // namespace

const PropertyTable &barGraphProperties()
{
    static constexpr PropertyTable Table{Rows};
    return Table;
}

BarGraphValues placed(BarGraphValues values, qint16 length, recorder::VideoStandard standard,
                      const platform::Screen &screen)
{
    Box &box = values.box;
    if (values.isHorizontal()) {
        box.Height = screen.toTwipsX(values.curBarWidth) + BothFrames;
        if (length > 0)
            box.Width = screen.toTwipsX(length) + BothFrames;
    } else {
        box.Width = screen.toTwipsX(values.curBarWidth) + BothFrames;
        if (length > 0)
            box.Height = screen.toTwipsY(length) + BothFrames;
    }
    const QPointF corner = pulledInto({screen.toPixelsX(values.curLeft), screen.toPixelsY(values.curTop)},
                                      box, FrameTwips, standard, screen);
    values.curLeft = toInteger<qint16>(screen.toTwipsX(static_cast<float>(corner.x())));
    values.curTop = toInteger<qint16>(screen.toTwipsY(static_cast<float>(corner.y())));
    box.Left = values.curLeft - FrameTwips;
    box.Top = values.curTop - FrameTwips;
    return values;
}

QRectF filledPart(const BarGraphValues &values, const QRectF &area)
{
    const double low = static_cast<double>(values.curMin);
    const double span = static_cast<double>(values.curMax) - low;
    if (span == 0)
        return {};
    const double share = std::clamp((static_cast<double>(values.curDefaultVal) - low) / span, 0.0, 1.0);
    if (std::isnan(share))
        return {};
    const bool reversed = span < 0;
    QRectF filled = area;
    if (values.isHorizontal()) {
        filled.setWidth(area.width() * share);
        if (reversed)
            filled.moveRight(area.right());
    } else {
        filled.setHeight(area.height() * share);
        if (!reversed) // a vertical bar rises from its lower edge
            filled.moveBottom(area.bottom());
    }
    return filled;
}

void BarGraph::AssignProperties(qint16 length)
{
    const BarGraphValues standing = placed(m_values, length, host().VideoType(), screen());
    set(standing);
    setBox(standing.box);
    host().Reposition(*this, cornerOf(m_values, screen()));
}

void BarGraph::updatePosition()
{
    skipFailures([&] { m_values.curLeft = toInteger<qint16>(box().Left + FrameTwips); });
    skipFailures([&] { m_values.curTop = toInteger<qint16>(box().Top + FrameTwips); });
}

Box BarGraph::resizedBox(const Box &wanted, Handle handle) const
{
    return withSize(wanted, handle, std::min(wanted.Width, screen().toTwipsX(LargestBar) + BothFrames),
                    std::min(wanted.Height, screen().toTwipsY(LargestBar) + BothFrames));
}

void BarGraph::applyResize()
{
    skipFailures([&] {
        const float thickness = m_values.isHorizontal() ? curHeight() : curWidth();
        m_values.curBarWidth = toInteger<quint8>(thickness);
    });
    updatePosition();
}

void BarGraph::applyInitialProperties()
{
    set(BarGraphValues());
    updatePosition();
    m_values.curBarWidth = toInteger<quint8>(curHeight());
}

void BarGraph::nudge(int dx, int dy)
{
    const QPointF from = screen().toPixels(QPointF(m_values.curLeft, m_values.curTop));
    const QPointF to = screen().toTwips(nudged(from, {dx, dy}, FrameTwips));
    const auto left = toInteger<qint16>(to.x());
    m_values.curTop = toInteger<qint16>(to.y());
    m_values.curLeft = left;
    host().Reposition(*this, cornerOf(m_values, screen()));
}

void BarGraph::paint(Composition &onto) const
{
    QColor colour = toQColor(m_values.curColour.packed());
    const QRectF whole(screen().toPixelsX(m_values.curLeft), screen().toPixelsY(m_values.curTop), curWidth(),
                       curHeight());
    CompositionPainter painter(onto);
    if (onto.drawing == Drawing::Designed) // also an empty bar can be seen
        painter.fillRect(whole, toQColor(m_values.backColour.packed()));
    else
        colour.setAlpha(m_values.curAlfa);
    painter.fillRect(filledPart(m_values, whole), colour);
}

double BarGraph::complexity() const
{
    // That the extent in pixels is added to a place in twips is deliberate.
    const QPointF corner(m_values.curLeft, m_values.curTop);
    const QPointF from = screen().toPixels(corner);
    const QPointF to = screen().toPixels(corner + QPointF(curWidth(), curHeight()));
    return m_values.isHorizontal() ? complexity::barGraph(from.x(), to.x(), m_values.curBarWidth)
                                   : complexity::barGraph(from.y(), to.y(), m_values.curBarWidth);
}

} // namespace controls
