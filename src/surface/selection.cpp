#include "surface/selection.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace surface {

using controls::OverlayControl;

ControlList groupOf(const ControlList &all)
{
    ControlList group;
    std::copy_if(all.begin(), all.end(), std::back_inserter(group),
                 [](const OverlayControl *control) { return control->IsSelectedToGroup(); });
    return group;
}

bool Selection::hasGroup() const
{
    return std::any_of(m_marked.begin(), m_marked.end(), [](const auto &marked) {
        const auto control = marked.lock();
        return control && control->IsSelectedToGroup();
    });
}

void Selection::select(OverlayControl &control)
{
    if (control.IsSelectedToGroup())
        return;
    ResetControlGridColour();
    control.SetControlGridColour(controls::FrameSelected);
    m_marked.push_back(control.weak_from_this());
}

void Selection::setGrouped(OverlayControl &control, bool joins)
{
    if (!hasGroup())
        ResetControlGridColour();
    control.SetControlGroup(joins ? 1 : 0);
    m_marked.push_back(control.weak_from_this());
}

void Selection::ResetControlGridColour()
{
    for (const auto &marked : std::exchange(m_marked, {})) {
        if (const auto control = marked.lock())
            control->SetControlGridColour(controls::FrameNormal);
    }
}

} // namespace surface
