#pragma once

#include "controls/overlay_control.h"
#include "surface/canvas_rules.h"

namespace surface {

// What the pressed button is doing on the canvas. Every step is worked out from the geometry at the press;
// all points are twips on the canvas.
class Gesture
{
public:
    enum class Kind { None, Dragging, Resizing, Band };

    Gesture() = default; // none
    static Gesture dragging(controls::OverlayControl &control, QPointF press);
    static Gesture resizing(controls::OverlayControl &control, controls::Handle handle, QPointF press);
    static Gesture band(QPointF press);

    Kind kind() const { return m_kind; }
    QPointF press() const { return m_press; }
    // Null when there is none, or when it is gone.
    std::shared_ptr<controls::OverlayControl> control() const { return m_control.lock(); }
    // Whether the pointer has led anywhere yet: past the jitter of a click, or off the point of the grip.
    // From then on every movement counts.
    bool hasBegun() const { return m_hasBegun; }
    // Where the pointer at `now` takes the control; nothing before the gesture has begun.
    std::optional<Box> boxAt(QPointF now, const CanvasRules &rules);

private:
    Gesture(Kind kind, controls::OverlayControl &control, QPointF press);

    Kind m_kind = Kind::None;
    QPointF m_press;
    std::weak_ptr<controls::OverlayControl> m_control;
    Box m_start;
    controls::Handle m_handle{};
    bool m_hasBegun = false;
};

} // namespace surface
