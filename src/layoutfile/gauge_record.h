#pragma once

#include "controls/gauge/gauge.h"
#include "layoutfile/record_types.h"

namespace layoutfile {

// The record of a gauge, or of the pointer of a dial.
GaugeRecord gaugeRecordOf(const controls::GaugeValues &values);

} // namespace layoutfile
