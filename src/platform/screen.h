#pragma once

#include "common/rounding.h"

#include <QPointF>

namespace platform {

// Twips per canvas pixel in each direction, and what turns one into the other. Canvas pixels are
// device-independent pixels, so the desktop's value is always 15; tests vary it.
struct Screen
{
    float tx = 15.0F;
    float ty = 15.0F;

    // Along one axis, in 32-bit floats like a control's geometry.
    float toPixelsX(float twips) const { return twips / tx; }
    float toPixelsY(float twips) const { return twips / ty; }
    float toTwipsX(float pixels) const { return pixels * tx; }
    float toTwipsY(float pixels) const { return pixels * ty; }

    // Whole pixels by whole-number division. Throw RunTimeError for what is too large.
    int wholePixelsX(float twips) const { return common::wholeDivide(twips, tx); }
    int wholePixelsY(float twips) const { return common::wholeDivide(twips, ty); }

    QPointF toPixels(QPointF twips) const { return {twips.x() / double{tx}, twips.y() / double{ty}}; }
    QPointF toTwips(QPointF pixels) const { return {pixels.x() * double{tx}, pixels.y() * double{ty}}; }

    // Lengths as the settings file keeps them, in the horizontal unit whatever their direction. One that does
    // not fit comes back as the nearest that does.
    int storedToPixels(int twips) const { return common::toIntegerClamped<int>(twips / double{tx}); }
    int pixelsToStored(int pixels) const { return common::toIntegerClamped<int>(pixels * double{tx}); }
};

} // namespace platform
