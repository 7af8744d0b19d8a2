#pragma once

#include "controls/control_host.h"
#include "platform/folders.h"
#include "platform/progress.h"

namespace surface {

// Makes the standard thumbnail of each family, drawn from its initial properties, in the cache folder. What
// cannot be written is left out.
void GenerateIcons(controls::ControlHost &host, const platform::Folders &folders,
                   platform::Progress &progress);

} // namespace surface
