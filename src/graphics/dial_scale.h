#pragma once

#include "graphics/dial_face.h"

#include <QPointF>
#include <QSizeF>

#include <cmath>
#include <optional>
#include <vector>

namespace graphics {

// A tic of a dial's scale.
struct Tic
{
    double angle = 0; // degrees
    double value = 0;
};

// One tic at each interval from curMin on. Only the two ends where there is no scale, or the interval is not
// positive and finite or gives more than 500 tics.
std::vector<Tic> ticsOf(const DialLook &look);

// The angle at a value, which is limited to the scale. Degrees.
double angleAt(const DialLook &look, double value);

// Where a text of this extent stands as near to the rim as it can, from the middle of the dial: centred on
// the radius and nowhere farther out than `reach`. Nothing when there is no such place.
std::optional<QPointF> inside(double reach, double angle, QSizeF extent);

// The largest of the stated size and the whole ones below it, to 6, that is taken. Pixels. Nothing when none
// is.
template <typename Takes>
std::optional<double> largestSize(double stated, Takes takes)
{
    constexpr double Smallest = 6;
    double size = stated;
    while (size >= Smallest && !takes(size))
        size = std::ceil(size) - 1;
    return size >= Smallest ? std::optional(size) : std::nullopt;
}

} // namespace graphics
