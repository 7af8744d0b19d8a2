#pragma once

#include "controls/families.h"

#include <memory>

namespace controls {

class ControlHost;
class OverlayControl;

using ControlFactory = std::shared_ptr<OverlayControl> (*)(const Family &, ControlHost &);

// What makes the controls of a family.
ControlFactory factoryOf(ControlType type);

} // namespace controls
