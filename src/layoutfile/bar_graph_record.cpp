#include "controls/bar_graph/bar_graph.h"
#include "layoutfile/family_records.h"

#include <cstdlib>

namespace layoutfile {

namespace {

using common::toIntegerClamped;
using common::wholeDivide;
using controls::BarGraph;
using controls::BarGraphValues;
using controls::Box;
using controls::FrameTwips;

struct Point
{
    qint16 x;
    qint16 y;
};

// The bar as a line from its start end to its full-scale end; exchanged limits turn it round.
std::pair<Point, Point> barEnds(const BarGraphValues &values, const platform::Screen &screen)
{
    const Box &box = values.box;
    const auto left = toIntegerClamped<qint16>(wholeDivide(box.Left + FrameTwips, screen.tx));
    const auto right = toIntegerClamped<qint16>(wholeDivide(box.right() - FrameTwips, screen.tx));
    const auto top = toIntegerClamped<qint16>(wholeDivide(box.Top + FrameTwips, screen.ty));
    const auto bottom = toIntegerClamped<qint16>(wholeDivide(box.bottom() - FrameTwips, screen.ty));
    const bool reversed = values.curMin > values.curMax;
    std::pair<Point, Point> ends = values.isHorizontal() ? std::pair{Point{left, top}, Point{right, top}}
                                                         : std::pair{Point{left, bottom}, Point{left, top}};
    if (reversed)
        std::swap(ends.first, ends.second);
    return ends;
}

void gather(controls::OverlayControl &control, Gathering &save)
{
    const BarGraphValues &values = static_cast<BarGraph &>(control).get();
    const auto [start, end] = barEnds(values, save.screen);
    save.groups.add(BarGraphRecord{start.x, start.y, end.x, end.y, values.curAlfa, values.curBarWidth,
                                   values.curColour.yuv(), values.curMin, values.curMax, values.curDefaultVal,
                                   values.curVarID, values.curColourVariable, values.curColourVarMin,
                                   values.curColourVarMax});
    save.used.mark(values.curVarID);
}

void build(const RecordBody &body, controls::OverlayControl &control)
{
    const auto &record = std::get<BarGraphRecord>(body);
    const platform::Screen &screen = control.host().screen();
    auto &bar = static_cast<BarGraph &>(control);
    BarGraphValues values;
    values.curBarType = record.startY == record.endY ? 0 : 1;
    values.curAlfa = record.alpha;
    values.curBarWidth = record.barWidth;
    values.curColour = common::Colour::fromFile(record.colour);
    values.curMin = record.min;
    values.curMax = record.max;
    values.curDefaultVal = record.defaultValue;
    values.curVarID = record.variable;
    values.curColourVariable = record.colourVariable;
    values.curColourVarMin = record.colourVariableMin;
    values.curColourVarMax = record.colourVariableMax;
    bar.set(values);

    const int length =
        values.isHorizontal() ? std::abs(record.endX - record.startX) : std::abs(record.endY - record.startY);
    const auto longSide = static_cast<float>(length);
    const auto shortSide = static_cast<float>(record.barWidth);
    const float width = (values.isHorizontal() ? longSide : shortSide) * screen.tx;
    const float height = (values.isHorizontal() ? shortSide : longSide) * screen.ty;
    bar.setBox({std::min(record.startX, record.endX) * screen.tx - FrameTwips,
                std::min(record.startY, record.endY) * screen.ty - FrameTwips, width + controls::BothFrames,
                height + controls::BothFrames});
    bar.updatePosition();
}

} // namespace

FamilyRecord barGraphRecord()
{
    return {controls::ControlType::BarGraph, RecordType::BarGraph, &gather, &build};
}

} // namespace layoutfile
