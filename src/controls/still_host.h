#pragma once

#include "controls/control_host.h"

namespace controls {

// The host of controls that stand on no canvas: what they tell it does not count.
class StillHost : public ControlHost
{
public:
    void Reposition(OverlayControl &, QPointF) override {}
    void restack(OverlayControl &, bool) override {}
    void Copy(OverlayControl &, const QStringList &) override {}
    void Cut(OverlayControl &, const QStringList &) override {}
    void Delete(OverlayControl &) override {}
    void showProperties(OverlayControl &) override {}
    void UserControlChanged() override {}
    void redrawControl(const OverlayControl &, const QRect &) override {}
};

} // namespace controls
