#pragma once

#include <QPainter>

namespace surface {

// What every screen shows of a picture in spite of its overscan, as shares of width and height: within the
// first all action is seen, within the second titles can be read. These are the shares of SMPTE RP 218 for
// pictures of standard definition.
inline constexpr double ActionSafe = 0.9;
inline constexpr double TitleSafe = 0.8;

// Outlines both areas and marks the middle of a picture of this size.
void paintSafeAreas(QPainter &painter, QSize picture);

} // namespace surface
