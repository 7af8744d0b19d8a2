#pragma once

#include "surface/group_drag.h"

namespace surface {

// What the pressed button is doing on the canvas. Every step is worked out from the geometry at the press;
// all points are twips on the canvas.
class Gesture
{
public:
    enum class Kind { None, Dragging, Resizing, Band };

    Gesture() = default; // none
    // `group` is what is dragged along.
    static Gesture dragging(controls::OverlayControl &control, QPointF press, GroupDrag group = {});
    static Gesture resizing(controls::OverlayControl &control, controls::Handle handle, QPointF press);
    static Gesture band(QPointF press);

    Kind kind() const { return m_kind; }
    QPointF press() const { return m_press; }
    // Null when there is none, or when it is gone.
    std::shared_ptr<controls::OverlayControl> control() const { return m_control.lock(); }
    // All controls that it moves.
    ControlList moving() const;
    // Whether the pointer has led anywhere yet: past the jitter of a click, or off the point of the grip.
    // From then on every movement counts.
    bool begins(QPointF now, const platform::Screen &screen);
    // Takes the controls to where the pointer leads, once the gesture has begun.
    void follow(QPointF now, const CanvasRules &rules) const;
    // Takes them back to where they stood at the press.
    void takeBack() const;

private:
    Gesture(Kind kind, controls::OverlayControl &control, QPointF press);

    Kind m_kind = Kind::None;
    QPointF m_press;
    std::weak_ptr<controls::OverlayControl> m_control;
    GroupDrag m_group;
    Box m_start;
    controls::Handle m_handle{};
    bool m_hasBegun = false;
};

} // namespace surface
