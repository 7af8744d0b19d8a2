#include "surface/gesture.h"

#include <utility>

namespace surface {

using controls::OverlayControl;

Gesture::Gesture(Kind kind, OverlayControl &control, QPointF press)
    : m_kind(kind), m_press(press), m_control(control.weak_from_this()), m_start(control.box())
{
}

Gesture Gesture::dragging(OverlayControl &control, QPointF press, GroupDrag group)
{
    Gesture gesture(Kind::Dragging, control, press);
    gesture.m_group = std::move(group);
    return gesture;
}

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

ControlList Gesture::moving() const
{
    ControlList moving = m_group.members();
    if (const auto anchor = control())
        moving.append(anchor.get());
    return moving;
}

bool Gesture::begins(QPointF now, const platform::Screen &screen)
{
    const bool stays = m_kind == Kind::Dragging ? insideDeadZone(m_press, now, screen) : now == m_press;
    m_hasBegun = m_hasBegun || !stays;
    return m_hasBegun;
}

void Gesture::follow(QPointF now, const CanvasRules &rules) const
{
    const auto moved = control();
    if (!moved || !m_hasBegun)
        return;
    if (m_kind == Kind::Resizing) {
        const Box wanted = resizedBox(m_start, m_handle, now - QPointF(m_start.Left, m_start.Top), rules);
        ResizeTo(*moved, moved->resizedBox(wanted, m_handle));
        return;
    }
    const Box box = movedBox(m_start, moved->overhang(), m_press, now, rules);
    place(*moved, {box.Left, box.Top});
    m_group.MoveControls(cornerOf(*moved), rules);
}

void Gesture::takeBack() const
{
    const auto moved = control();
    if (!moved || !m_hasBegun)
        return;
    if (m_kind == Kind::Resizing)
        ResizeTo(*moved, m_start);
    else
        place(*moved, {m_start.Left, m_start.Top});
    m_group.takeBack();
}

} // namespace surface
