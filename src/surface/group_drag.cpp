#include "surface/group_drag.h"

namespace surface {

using controls::OverlayControl;

GroupDrag::GroupDrag(const OverlayControl &anchor, const ControlList &group) : m_anchor(cornerOf(anchor))
{
    for (OverlayControl *control : group) {
        if (control != &anchor)
            m_members.push_back({control->weak_from_this(), cornerOf(*control)});
    }
}

ControlList GroupDrag::members() const
{
    ControlList members;
    for (const Member &member : m_members) {
        if (const auto control = member.control.lock())
            members.append(control.get());
    }
    return members;
}

void GroupDrag::MoveControls(QPointF anchor, const CanvasRules &rules) const
{
    for (const Member &member : m_members) {
        if (const auto control = member.control.lock())
            MoveTo(*control, anchor + (member.start - m_anchor), rules);
    }
}

void GroupDrag::takeBack() const
{
    for (const Member &member : m_members) {
        if (const auto control = member.control.lock())
            place(*control, member.start);
    }
}

} // namespace surface
