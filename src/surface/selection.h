#pragma once

#include "surface/overlay_picture.h"

#include <vector>

namespace surface {

// Those of `all` that are in the group, in their order.
ControlList groupOf(const ControlList &all);

// What is chosen on the canvas: the current control, which the keys act on, and the marks of the controls,
// red for one that is selected alone, blue for the members of the group.
class Selection
{
public:
    // Null when it is gone or the choice was taken back.
    controls::OverlayControl *current() const { return m_current.lock().get(); }
    void setCurrent(controls::OverlayControl &control) { m_current = control.weak_from_this(); }
    void dropCurrent() { m_current.reset(); }

    bool hasGroup() const;
    // Marks it alone, unless it is in the group.
    void select(controls::OverlayControl &control);
    // Puts it into the group or takes it out. Nothing is selected alone then.
    void setGrouped(controls::OverlayControl &control, bool joins);
    // Takes all marks away.
    void ResetControlGridColour();

private:
    std::weak_ptr<controls::OverlayControl> m_current;
    std::vector<std::weak_ptr<controls::OverlayControl>> m_marked; // since the marks were last taken away
};

} // namespace surface
