#pragma once

#include "controls/overlay_control.h"

namespace controls {

// What the families have in common whose place is two of their properties: a corner in whole canvas pixels.
class PlacedControl : public OverlayControl
{
public:
    using OverlayControl::OverlayControl;

    void updatePosition() override;
    void nudge(int dx, int dy) override;

protected:
    struct Corner
    {
        qint16 &x;
        qint16 &y;
    };
    // The two properties.
    virtual Corner corner() = 0;
    // How far within the box the corner stands, twips.
    virtual float inset() const { return FrameTwips; }
    // Has the host move the box to the corner.
    void raiseReposition();
};

} // namespace controls
