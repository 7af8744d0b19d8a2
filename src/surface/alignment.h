#pragma once

#include "controls/geometry.h"

#include <QList>

namespace surface {

// The boxes with this edge where the outermost of them has it.
QList<controls::Box> aligned(QList<controls::Box> boxes, Qt::Edge edge);

// The boxes with equal gaps between neighbours, overlapping where there is no room; the two outermost stay.
QList<controls::Box> spaced(QList<controls::Box> boxes, Qt::Orientation along);

} // namespace surface
