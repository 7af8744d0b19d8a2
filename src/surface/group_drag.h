#pragma once

#include "surface/overlay_picture.h"
#include "surface/placing.h"

#include <vector>

namespace surface {

// The other members of the group while one of them, the anchor, is dragged: where each stood to it at the
// press.
class GroupDrag
{
public:
    GroupDrag() = default; // nothing is dragged along
    GroupDrag(const controls::OverlayControl &anchor, const ControlList &group);

    // Those that are still there.
    ControlList members() const;
    // Places each member where it stood to the anchor, whose corner is here now (twips), but none beyond the
    // edge of the canvas: there the group's shape gives way.
    void MoveControls(QPointF anchor, const CanvasRules &rules) const;
    // Puts each member back where it stood at the press.
    void takeBack() const;

private:
    struct Member
    {
        std::weak_ptr<controls::OverlayControl> control;
        QPointF start; // twips
    };

    QPointF m_anchor; // at the press
    std::vector<Member> m_members;
};

} // namespace surface
