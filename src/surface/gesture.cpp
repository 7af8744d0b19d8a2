#include "surface/gesture.h"

namespace surface {

using controls::OverlayControl;

Gesture::Gesture(Kind kind, OverlayControl &control, QPointF press)
    : m_kind(kind), m_press(press), m_control(control.weak_from_this()), m_start(control.box())
{
}

Gesture Gesture::dragging(OverlayControl &control, QPointF press) { return {Kind::Dragging, control, press}; }

Gesture Gesture::resizing(OverlayControl &control, controls::Handle handle, QPointF press)
{
    Gesture gesture(Kind::Resizing, control, press);
    gesture.m_handle = handle;
    return gesture;
}

Gesture Gesture::band(QPointF press)
{
    Gesture gesture;
    gesture.m_kind = Kind::Band;
    gesture.m_press = press;
    return gesture;
}

std::optional<Box> Gesture::boxAt(QPointF now, const CanvasRules &rules)
{
    const auto moving = control();
    if (!moving)
        return std::nullopt;
    const bool drags = m_kind == Kind::Dragging;
    m_hasBegun = m_hasBegun || (drags ? !insideDeadZone(m_press, now, rules.screen) : now != m_press);
    if (!m_hasBegun)
        return std::nullopt;
    if (drags)
        return movedBox(m_start, moving->overhang(), m_press, now, rules);
    const Box wanted = resizedBox(m_start, m_handle, now - QPointF(m_start.Left, m_start.Top), rules);
    return moving->resizedBox(wanted, m_handle);
}

} // namespace surface
