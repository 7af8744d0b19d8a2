#include "layoutfile/family_records.h"

#include <algorithm>
#include <array>

namespace layoutfile {

using controls::ControlType;

std::span<const FamilyRecord> familyRecords()
{
    static const std::array Records{videoSourceRecord(),    bitmapRecord(),    textTagRecord(),
                                    digitalDisplayRecord(), barGraphRecord(),  gaugeRecord(),
                                    trackMapRecord(),       customDialRecord()};
    return Records;
}

const FamilyRecord &recordOf(ControlType family)
{
    return *std::ranges::find(familyRecords(), family, &FamilyRecord::family); // every family has its row
}

int progressStepsOf(RecordType type)
{
    const auto rows = familyRecords();
    const auto found = std::ranges::find(rows, type, &FamilyRecord::type);
    return found == rows.end() ? 0 : found->progressSteps;
}

} // namespace layoutfile
