#include "layoutfile/gauge_record.h"

#include "layoutfile/family_records.h"
#include "layoutfile/field_link.h"

namespace layoutfile {

namespace {

using controls::Gauge;
using controls::GaugeValues;

void link(auto &values, auto &record, auto field)
{
    linkScale(values, record, field);
    linkColour(values, record, field);
    field(values.curCenterX, record.centreX);
    field(values.curCenterY, record.centreY);
    field(values.curPointerLength, record.pointerLength);
    field(values.curPointerWidth, record.pointerWidth);
    field(values.curMinAngle, record.minAngle);
    field(values.curMaxAngle, record.maxAngle);
}

void gather(const controls::OverlayControl &control, Gathering &save)
{
    const GaugeValues values = controls::placed(static_cast<const Gauge &>(control).get(), save.screen);
    save.groups.add(gaugeRecordOf(values));
    save.used.mark(values.curVarID);
}

controls::Box boxOf(const GaugeRecord &record, const platform::Screen &screen)
{
    const float length = record.pointerLength;
    const float side = screen.toTwipsX(2 * length) + controls::BothFrames;
    return {screen.toTwipsX(record.centreX - length) - controls::FrameTwips,
            screen.toTwipsY(record.centreY - length) - controls::FrameTwips, side, side};
}

void build(const LayoutRecord &stored, controls::OverlayControl &control, const Loading &load)
{
    const auto &record = std::get<GaugeRecord>(stored.body);
    GaugeValues values;
    link(values, record, FromRecord());
    values.box = boxOf(record, load.screen);
    place(static_cast<Gauge &>(control), values);
}

} // namespace

GaugeRecord gaugeRecordOf(const GaugeValues &values)
{
    GaugeRecord record;
    link(values, record, ToRecord());
    return record;
}

FamilyRecord gaugeRecord()
{
    return {.family = controls::ControlType::Gauge,
            .type = RecordType::Gauge,
            .gather = &gather,
            .build = &build};
}

} // namespace layoutfile
