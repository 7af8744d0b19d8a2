#include "surface/zoom.h"

#include <QRectF>

#include <algorithm>
#include <array>

namespace surface {

namespace {

constexpr std::array Steps{SmallestZoom, 33,  50,  67,  75,  90,  100,        110,
                           125,          150, 175, 200, 250, 300, LargestZoom};

} // namespace

int nextZoom(int percent, bool larger)
{
    if (larger) {
        const auto *step = std::upper_bound(Steps.begin(), Steps.end(), percent);
        return step == Steps.end() ? LargestZoom : *step;
    }
    const auto *step = std::lower_bound(Steps.begin(), Steps.end(), percent);
    return step == Steps.begin() ? SmallestZoom : *(step - 1);
}

int fittingZoom(QSize canvas, QSize room)
{
    const int fitting = std::min(100 * room.width() / canvas.width(), 100 * room.height() / canvas.height());
    return std::clamp(fitting, SmallestZoom, LargestZoom);
}

QRect Zoom::shown(const QRect &canvas) const
{
    const QPoint corner = shown(QPointF(canvas.topLeft())).toPoint();
    const QPoint end = shown(QPointF(canvas.topLeft() + QPoint(canvas.width(), canvas.height()))).toPoint();
    return {corner, end - QPoint(1, 1)};
}

QRect Zoom::toCanvas(const QRect &shown) const
{
    return QRectF(QPointF(shown.topLeft()) / factor(), QSizeF(shown.size()) / factor()).toAlignedRect();
}

} // namespace surface
