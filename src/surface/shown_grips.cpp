#include "surface/shown_grips.h"

#include <algorithm>

namespace surface {

namespace {

constexpr float LeastSide = 3 * controls::FrameTwips;

} // namespace

controls::HandleTable shownGrips(const controls::OverlayControl &control, const Zoom &zoom)
{
    const auto factor = static_cast<float>(zoom.factor());
    const float side = std::min(control.box().Width, control.box().Height) * factor;
    return factor < 1 && side < LeastSide ? controls::HandleTable() : control.handles(factor);
}

} // namespace surface
