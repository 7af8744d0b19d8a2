#pragma once

namespace common {

// The recorder's frame, which is the canvas of the overlay, in pixels.
inline constexpr int CanvasWidth = 720;
inline constexpr int PalHeight = 576;
inline constexpr int NtscHeight = 480;

} // namespace common
