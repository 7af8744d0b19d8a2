#pragma once

#include <QRect>

#include <array>

namespace surface {

// The three panels of the design window by their numbers in the settings file.
enum class PanelId { Functions = 0, Library = 1, Design = 2 };
using PanelRects = std::array<QRect, 3>; // indexed by PanelId, pixels

inline constexpr QSize SmallestPanel(120, 80); // pixels; smaller ones cannot be used

// The design at the left, functions above the library at its right, filling an area of this size without
// overlap.
PanelRects defaultPanels(const QSize &area);

// The rectangle no larger than the area, no smaller than a panel can be used at, and inside the area.
QRect pulledIntoView(const QRect &panel, const QSize &area);

// Whether the panels lie as defaultPanels() lays them out for an area of any size: nobody has moved them.
bool isDefaultArrangement(const PanelRects &panels);

} // namespace surface
