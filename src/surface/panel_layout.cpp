#include "surface/panel_layout.h"

#include <algorithm>

namespace surface {

namespace {

constexpr int Gap = 4;
constexpr int LibraryWidth = 200;
constexpr int CanvasPanelWidth = 720 + 30; // canvas with its frame and a scroll bar
constexpr int SmallestFunctions = 220;
constexpr QSize SmallestPanel(120, 80);

QRect column(int left, int right, const QSize &area)
{
    return {left, Gap, right - left, area.height() - 2 * Gap};
}

} // namespace

PanelRects defaultPanels(const QSize &area)
{
    const int width = std::max(area.width(), 4 * Gap);
    const int library = std::min(LibraryWidth, width / 5);
    const int rest = width - library - 4 * Gap;
    // The canvas is fully visible where there is room for it; what is left goes to the tree of variables.
    const int functions =
        std::max(std::min(rest - CanvasPanelWidth, rest / 3), std::min(SmallestFunctions, rest / 3));
    const int designLeft = library + 2 * Gap;
    const int functionsLeft = width - functions - Gap;
    PanelRects rects;
    rects[std::size_t(PanelId::Library)] = column(Gap, library + Gap, area);
    rects[std::size_t(PanelId::Design)] = column(designLeft, functionsLeft - Gap, area);
    rects[std::size_t(PanelId::Functions)] = column(functionsLeft, width - Gap, area);
    return rects;
}

QRect pulledIntoView(const QRect &panel, const QSize &area)
{
    const QSize size = panel.size().expandedTo(SmallestPanel).boundedTo(area);
    const int left = std::clamp(panel.left(), 0, area.width() - size.width());
    const int top = std::clamp(panel.top(), 0, area.height() - size.height());
    return {QPoint(left, top), size};
}

PanelRects scaledPanels(const PanelRects &panels, const QSize &before, const QSize &after)
{
    PanelRects scaled = panels;
    if (before.isEmpty())
        return scaled;
    const auto x = [&](int value) {
        return static_cast<int>(qint64{value} * after.width() / before.width());
    };
    const auto y = [&](int value) {
        return static_cast<int>(qint64{value} * after.height() / before.height());
    };
    for (QRect &rect : scaled) {
        const QPoint corner(x(rect.left()), y(rect.top()));
        const QPoint end(x(rect.left() + rect.width()), y(rect.top() + rect.height()));
        rect = pulledIntoView({corner, QSize(end.x() - corner.x(), end.y() - corner.y())}, after);
    }
    return scaled;
}

} // namespace surface
