#pragma once

#include "layoutfile/record_codec.h"

namespace fuzz {

// Makes the controls of a layout's records, shows, paints, stores and copies them.
void useControls(const std::vector<layoutfile::LayoutRecord> &records);

} // namespace fuzz
