#include "surface/alignment.h"

#include <algorithm>

namespace surface {

using controls::Box;

namespace {

// The two members of a box that one direction means.
struct Axis
{
    float Box::*start;
    float Box::*size;

    float end(const Box &box) const { return box.*start + box.*size; }
    float middle(const Box &box) const { return box.*start + box.*size / 2; }
};

Axis axisOf(Qt::Orientation along)
{
    return along == Qt::Horizontal ? Axis{&Box::Left, &Box::Width} : Axis{&Box::Top, &Box::Height};
}

} // namespace

QList<Box> aligned(QList<Box> boxes, Qt::Edge edge)
{
    if (boxes.isEmpty())
        return boxes;
    const bool isSide = edge == Qt::LeftEdge || edge == Qt::RightEdge;
    const Axis axis = axisOf(isSide ? Qt::Horizontal : Qt::Vertical);
    float first = boxes.first().*axis.start;
    float last = axis.end(boxes.first());
    for (const Box &box : boxes) {
        first = std::min(first, box.*axis.start);
        last = std::max(last, axis.end(box));
    }
    const bool isFar = edge == Qt::RightEdge || edge == Qt::BottomEdge;
    for (Box &box : boxes)
        box.*axis.start = isFar ? last - box.*axis.size : first;
    return boxes;
}

QList<Box> spaced(QList<Box> boxes, Qt::Orientation along)
{
    if (boxes.size() < 3)
        return boxes;
    const Axis axis = axisOf(along);
    QList<Box *> order;
    float room = 0;
    for (Box &box : boxes) {
        order.append(&box);
        room -= box.*axis.size;
    }
    std::stable_sort(order.begin(), order.end(), [&axis](const Box *one, const Box *other) {
        return axis.middle(*one) < axis.middle(*other);
    });
    room += axis.end(*order.last()) - order.first()->*axis.start;
    const float gap = room / static_cast<float>(order.size() - 1);
    float place = order.first()->*axis.start;
    for (Box *box : order) {
        box->*axis.start = place;
        place += box->*axis.size + gap;
    }
    return boxes;
}

} // namespace surface
