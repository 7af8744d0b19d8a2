#include "layoutfile/family_records.h"

namespace layoutfile {

namespace {

// The recorder draws a dial as a bitmap, its face, and a gauge, its pointer.
void claimParts(const RecordBody &body, ObjectNames &parts)
{
    const auto &dial = std::get<CustomDialRecord>(body);
    parts.insert({{RecordType::Bitmap, dial.bitmapObject}, {RecordType::Gauge, dial.gaugeObject}});
}

} // namespace

FamilyRecord customDialRecord()
{
    return {.family = controls::ControlType::CustomDial,
            .type = RecordType::CustomDial,
            .claimParts = &claimParts};
}

} // namespace layoutfile
