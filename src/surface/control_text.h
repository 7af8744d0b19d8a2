#pragma once

#include "controls/overlay_control.h"

namespace surface {

// "Analogue Dial, Speed [km/h]"
QString controlName(const controls::OverlayControl &control);

// The same and its place in canvas pixels: "Analogue Dial, Speed [km/h], at 100, 200"
QString controlText(const controls::OverlayControl &control);

} // namespace surface
