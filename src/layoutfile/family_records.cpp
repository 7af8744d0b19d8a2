#include "layoutfile/family_records.h"

namespace layoutfile {

std::span<const FamilyRecord> familyRecords()
{
    static const std::array Records{barGraphRecord(), gaugeRecord()};
    return Records;
}

} // namespace layoutfile
