#include "controls/bar_graph/bar_graph.h"
#include "layoutfile/family_records.h"
#include "layoutfile/field_link.h"

#include <algorithm>
#include <cstdlib>

namespace layoutfile {

namespace {

using common::toIntegerClamped;
using controls::BarGraph;
using controls::BarGraphValues;
using controls::Box;
using controls::FrameTwips;

void link(auto &values, auto &record, auto field)
{
    linkScale(values, record, field);
    linkColour(values, record, field);
    field(values.curAlfa, record.alpha);
    field(values.curBarWidth, record.barWidth);
}

// The bar as a line from its start end to its full-scale end; exchanged limits turn it round.
void putEnds(const BarGraphValues &values, const platform::Screen &screen, BarGraphRecord &record)
{
    const Box &box = values.box;
    const auto left = toIntegerClamped<qint16>(screen.wholePixelsX(box.Left + FrameTwips));
    const auto right = toIntegerClamped<qint16>(screen.wholePixelsX(box.right() - FrameTwips));
    const auto top = toIntegerClamped<qint16>(screen.wholePixelsY(box.Top + FrameTwips));
    const auto bottom = toIntegerClamped<qint16>(screen.wholePixelsY(box.bottom() - FrameTwips));
    const bool isHorizontal = values.isHorizontal();
    record.startX = left;
    record.startY = isHorizontal ? top : bottom;
    record.endX = isHorizontal ? right : left;
    record.endY = top;
    if (values.curMin > values.curMax) {
        std::swap(record.startX, record.endX);
        std::swap(record.startY, record.endY);
    }
}

void gather(const controls::OverlayControl &control, Gathering &save)
{
    const BarGraphValues &values = static_cast<const BarGraph &>(control).get();
    BarGraphRecord record;
    putEnds(values, save.screen, record);
    link(values, record, ToRecord());
    save.groups.add(record);
    save.used.mark(values.curVarID);
}

controls::BarType typeOf(const BarGraphRecord &record)
{
    return record.startY == record.endY ? controls::BarType::Horizontal : controls::BarType::Vertical;
}

Box boxOf(const BarGraphRecord &record, const platform::Screen &screen)
{
    const bool isHorizontal = typeOf(record) == controls::BarType::Horizontal;
    const int width = isHorizontal ? std::abs(record.endX - record.startX) : record.barWidth;
    const int height = isHorizontal ? record.barWidth : std::abs(record.endY - record.startY);
    return controls::framed(
        QRect(std::min(record.startX, record.endX), std::min(record.startY, record.endY), width, height),
        screen);
}

void build(const LayoutRecord &stored, controls::OverlayControl &control, const Loading &load)
{
    const auto &record = std::get<BarGraphRecord>(stored.body);
    BarGraphValues values;
    link(values, record, FromRecord());
    values.curBarType = static_cast<quint8>(typeOf(record));
    values.box = boxOf(record, load.screen);
    place(static_cast<BarGraph &>(control), values);
}

} // namespace

FamilyRecord barGraphRecord()
{
    return {.family = controls::ControlType::BarGraph,
            .type = RecordType::BarGraph,
            .gather = &gather,
            .build = &build,
            .progressSteps = 2}; // deliberate
}

} // namespace layoutfile
