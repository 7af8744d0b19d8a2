#include "surface/placing.h"

namespace surface {

using controls::OverlayControl;

void setStartSize(OverlayControl &control, QPointF corner)
{
    control.setBox({static_cast<float>(corner.x()), static_cast<float>(corner.y()),
                    static_cast<float>(control.startSize().width()),
                    static_cast<float>(control.startSize().height())});
}

void place(OverlayControl &control, QPointF corner)
{
    control.moveTo(static_cast<float>(corner.x()), static_cast<float>(corner.y()));
    control.updatePosition();
    control.redraw(); // where the property says now
}

void MoveTo(OverlayControl &control, QPointF corner, const CanvasRules &rules)
{
    Box box = control.box();
    box.Left = static_cast<float>(corner.x());
    box.Top = static_cast<float>(corner.y());
    box = clampedToCanvas(box, control.overhang(), rules);
    place(control, {box.Left, box.Top});
}

void ResizeTo(OverlayControl &control, const Box &box)
{
    control.setBox(box);
    control.applyResize();
    control.redraw(); // as the properties say now
}

} // namespace surface
