#pragma once

#include "controls/overlay_control.h"
#include "surface/zoom.h"

namespace surface {

// The grips of a control on the zoomed canvas, twips of the screen within it. Where it is shown reduced to
// less than three of them there are none, so that it can still be dragged.
controls::HandleTable shownGrips(const controls::OverlayControl &control, const Zoom &zoom);

} // namespace surface
