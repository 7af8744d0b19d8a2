#pragma once

#include "controls/control_type.h"
#include "layoutfile/record_codec.h"

namespace layoutfile {

// What the checks before a save look at in a control.
struct ControlKind
{
    controls::ControlType family;
    bool isFullFrame = false;
};

// The first complaint that the Save command shows about a design of such controls; empty when there is none.
QString saveComplaint(const std::vector<ControlKind> &design);

// Whether two of these video source records name the same camera.
bool sharesCamera(const std::vector<LayoutRecord> &sources);

} // namespace layoutfile
