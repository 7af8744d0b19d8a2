#include "surface/panel_layout.h"

#include "recorder/recorder_settings.h"

#include <algorithm>

namespace surface {

namespace {

constexpr int Gap = 4;
constexpr int CanvasPanelWidth = recorder::CanvasWidth + 30; // canvas with its frame and a scroll bar
constexpr int WidestColumn = 560;
constexpr int SmallestLibrary = 160;

} // namespace

PanelRects defaultPanels(const QSize &area)
{
    const int width = std::max(area.width() - 3 * Gap, 3);
    const int height = std::max(area.height() - 2 * Gap, 3);
    // The canvas is fully visible where there is room for it; what is left goes to the column at its right.
    const int column = std::min(std::max(width - CanvasPanelWidth, width / 3), WidestColumn);
    const int left = area.width() - Gap - column;
    const int library = std::max(height * 2 / 5, std::min(SmallestLibrary, height / 2));
    const int functions = height - library - Gap;
    PanelRects rects;
    rects[std::size_t(PanelId::Design)] = {Gap, Gap, width - column, height};
    rects[std::size_t(PanelId::Functions)] = {left, Gap, column, functions};
    rects[std::size_t(PanelId::Library)] = {left, 2 * Gap + functions, column, library};
    return rects;
}

QRect pulledIntoView(const QRect &panel, const QSize &area)
{
    const QSize size = panel.size().expandedTo(SmallestPanel).boundedTo(area);
    const int left = std::clamp(panel.left(), 0, area.width() - size.width());
    const int top = std::clamp(panel.top(), 0, area.height() - size.height());
    return {QPoint(left, top), size};
}

bool isDefaultArrangement(const PanelRects &panels)
{
    const QRect &last = panels[std::size_t(PanelId::Library)];
    const QSize area(last.left() + last.width() + Gap, last.top() + last.height() + Gap);
    return panels == defaultPanels(area);
}

} // namespace surface
