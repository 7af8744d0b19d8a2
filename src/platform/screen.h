#pragma once

namespace platform {

// Twips per canvas pixel in each direction. Canvas pixels are device-independent pixels, so the desktop's
// value is always 15; tests vary it.
struct Screen
{
    float tx = 15.0F;
    float ty = 15.0F;
};

} // namespace platform
