#pragma once

#include "controls/overlay_control.h"
#include "surface/canvas_rules.h"

namespace surface {

// Where the control's corner stands, twips.
inline QPointF cornerOf(const controls::OverlayControl &control)
{
    return {control.box().Left, control.box().Top};
}

// Gives a control that was just created its start size, with its corner there (twips).
void setStartSize(controls::OverlayControl &control, QPointF corner);
// Moves the control's corner there (twips), and its position property with it.
void place(controls::OverlayControl &control, QPointF corner);
// The same, as far as the canvas lets it.
void MoveTo(controls::OverlayControl &control, QPointF corner, const CanvasRules &rules);
// Gives the control this box, and its size properties with it.
void ResizeTo(controls::OverlayControl &control, const Box &box);

} // namespace surface
