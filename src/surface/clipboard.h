#pragma once

#include "surface/overlay_picture.h"

#include <optional>
#include <vector>

namespace surface {

// What a paste does with the control that was taken: after a cut it removes it.
enum class Operation : quint8 { Cut = 0, Copy = 1 };

// A control as it was copied or cut. It stays on the canvas.
struct CopiedControl
{
    controls::ControlType type;
    Operation operation;
    QStringList strings;                             // of its Serialise()
    std::weak_ptr<controls::OverlayControl> control; // itself
    QPointF offset{};                                // of its corner to the paste point, twips
};

// From the smallest Left and the smallest Top among the corners to each of them.
std::vector<QPointF> offsetsToSmallest(std::vector<QPointF> corners);

// The clipboard: one control, to be pasted any number of times, and a group that waits for its paste. A
// control and a group take each other's place.
struct Clipboard
{
    std::optional<CopiedControl> control;
    std::vector<CopiedControl> group;

    bool GroupPastePending() const { return !group.empty(); }
    bool isEmpty() const { return !control && group.empty(); }
    void take(controls::OverlayControl &copied, Operation operation, const QStringList &strings);
    // All of `copied`, with their offsets.
    void ReSetGroupCtrlArr(const ControlList &copied, Operation operation);
};

} // namespace surface
