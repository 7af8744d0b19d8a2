#include "surface/clipboard.h"

#include "surface/placing.h"

#include <algorithm>
#include <utility>

namespace surface {

using controls::OverlayControl;

std::vector<QPointF> offsetsToSmallest(std::vector<QPointF> corners)
{
    QPointF origin = corners.empty() ? QPointF() : corners.front();
    for (const QPointF &corner : corners)
        origin = {std::min(origin.x(), corner.x()), std::min(origin.y(), corner.y())};
    for (QPointF &corner : corners)
        corner -= origin;
    return corners;
}

void Clipboard::take(OverlayControl &copied, Operation operation, const QStringList &strings)
{
    control = CopiedControl{copied.family().type, operation, strings, copied.weak_from_this()};
    group.clear();
}

void Clipboard::ReSetGroupCtrlArr(const ControlList &copied, Operation operation)
{
    control.reset();
    group.clear();
    std::vector<QPointF> corners;
    for (OverlayControl *member : copied) {
        group.push_back({member->family().type, operation, member->Serialise(), member->weak_from_this()});
        corners.push_back(cornerOf(*member));
    }
    const std::vector<QPointF> offsets = offsetsToSmallest(std::move(corners));
    for (std::size_t i = 0; i < group.size(); ++i)
        group[i].offset = offsets[i];
}

} // namespace surface
