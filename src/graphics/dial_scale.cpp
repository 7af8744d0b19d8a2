#include "graphics/dial_scale.h"

#include "common/number_text.h"

#include <QtMath>

#include <algorithm>

namespace graphics {

namespace {

constexpr double MostTics = 500;
// Of an interval: how far the last tic may lie beyond the end, and one beside 0 that is meant to be there.
constexpr double Tolerance = 1e-6;

// The number that the float was written as: steps of 0.1 shall meet 0.3.
double asWritten(float value) { return common::leadingNumber(common::shortestText(value)); }

} // namespace

double angleAt(const DialLook &look, double value)
{
    const double min = asWritten(look.curMin);
    const double span = asWritten(look.curMax) - min;
    const double share = span != 0 ? std::clamp((value - min) / span, 0.0, 1.0) : 0.0;
    return look.curMinAngle + share * (look.curMaxAngle - look.curMinAngle);
}

std::vector<Tic> ticsOf(const DialLook &look)
{
    const double min = asWritten(look.curMin);
    const double max = asWritten(look.curMax);
    const double interval = asWritten(look.curTicDelta);
    const double intervals = std::fabs(max - min) / interval;
    if (!(interval > 0) || !(intervals > 0) || intervals + Tolerance >= MostTics)
        return {{double(look.curMinAngle), min}, {double(look.curMaxAngle), max}};
    const double step = max > min ? interval : -interval;
    std::vector<Tic> tics;
    for (int i = 0; i <= intervals + Tolerance; ++i) {
        const double value = min + i * step;
        tics.push_back({angleAt(look, value), std::fabs(value) < Tolerance * interval ? 0 : value});
    }
    return tics;
}

std::optional<QPointF> inside(double reach, double angle, QSizeF extent)
{
    const QPointF outwards(std::sin(qDegreesToRadians(angle)), -std::cos(qDegreesToRadians(angle)));
    const QSizeF half = extent / 2;
    // The corner that is farthest out lies on the circle.
    const double projection =
        std::fabs(outwards.x()) * half.width() + std::fabs(outwards.y()) * half.height();
    const double squared =
        reach * reach + projection * projection - half.width() * half.width() - half.height() * half.height();
    if (reach <= 0 || squared < projection * projection)
        return std::nullopt;
    return outwards * (std::sqrt(squared) - projection);
}

} // namespace graphics
