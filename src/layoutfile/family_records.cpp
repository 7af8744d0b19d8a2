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

namespace {

// Every family and every type of a control's record has its row.
template <typename Key>
const FamilyRecord &rowWith(Key FamilyRecord::*member, Key key)
{
    const auto rows = familyRecords();
    return *std::find_if(rows.begin(), rows.end(),
                         [&](const FamilyRecord &row) { return row.*member == key; });
}

} // namespace

const FamilyRecord &recordOf(ControlType family) { return rowWith(&FamilyRecord::family, family); }

const FamilyRecord &recordOf(RecordType type) { return rowWith(&FamilyRecord::type, type); }

} // namespace layoutfile
