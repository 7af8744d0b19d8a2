#include "controls/placed_control.h"

#include "platform/guards.h"

namespace controls {

using common::toInteger;
using platform::skipFailures;

void PlacedControl::updatePosition()
{
    const Corner place = corner();
    skipFailures([&] { place.x = toInteger<qint16>(screen().toPixelsX(box().Left + inset())); });
    skipFailures([&] { place.y = toInteger<qint16>(screen().toPixelsY(box().Top + inset())); });
}

void PlacedControl::nudge(int dx, int dy)
{
    const Corner place = corner();
    const QPointF to = nudged(QPointF(place.x, place.y), {dx, dy}, inset());
    const auto x = toInteger<qint16>(to.x());
    place.y = toInteger<qint16>(to.y());
    place.x = x;
    raiseReposition();
}

void PlacedControl::raiseReposition()
{
    const Corner place = corner();
    const double within = inset();
    host().Reposition(*this, QPointF(place.x, place.y) - screen().toPixels({within, within}));
}

} // namespace controls
