#include "controls/gauge/gauge.h"
#include "layoutfile/family_records.h"

namespace layoutfile {

namespace {

using controls::Gauge;
using controls::GaugeValues;

void gather(controls::OverlayControl &control, Gathering &save)
{
    const GaugeValues values = controls::placed(static_cast<Gauge &>(control).get(), save.screen);
    save.groups.add(GaugeRecord{values.curCenterX, values.curCenterY, values.curPointerLength,
                                values.curPointerWidth, values.curColour.yuv(), values.curMinAngle,
                                values.curMaxAngle, values.curMin, values.curMax, values.curDefaultVal,
                                values.curVarID, values.curColourVariable, values.curColourVarMin,
                                values.curColourVarMax});
    save.used.mark(values.curVarID);
}

void build(const RecordBody &body, controls::OverlayControl &control)
{
    const auto &record = std::get<GaugeRecord>(body);
    const platform::Screen &screen = control.host().screen();
    auto &gauge = static_cast<Gauge &>(control);
    // The box first: its resize rule must not touch what the record says.
    const float length = record.pointerLength;
    const float side = 2 * length * screen.tx + controls::BothFrames;
    gauge.setBox({(record.centreX - length) * screen.tx - controls::FrameTwips,
                  (record.centreY - length) * screen.ty - controls::FrameTwips, side, side});
    GaugeValues values;
    values.curCenterX = record.centreX;
    values.curCenterY = record.centreY;
    values.curPointerLength = record.pointerLength;
    values.curPointerWidth = record.pointerWidth;
    values.curColour = common::Colour::fromFile(record.colour);
    values.curMinAngle = record.minAngle;
    values.curMaxAngle = record.maxAngle;
    values.curMin = record.min;
    values.curMax = record.max;
    values.curDefaultVal = record.defaultValue;
    values.curVarID = record.variable;
    values.curColourVariable = record.colourVariable;
    values.curColourVarMin = record.colourVariableMin;
    values.curColourVarMax = record.colourVariableMax;
    gauge.set(values);
}

} // namespace

FamilyRecord gaugeRecord() { return {controls::ControlType::Gauge, RecordType::Gauge, &gather, &build}; }

} // namespace layoutfile
