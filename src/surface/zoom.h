#pragma once

#include <QPointF>
#include <QRect>

namespace surface {

// How large the canvas is shown, in per cent.
inline constexpr int SmallestZoom = 25;
inline constexpr int LargestZoom = 400;

// The next larger or smaller step; from the last one, itself.
int nextZoom(int percent, bool larger);
// The largest at which a canvas of this size fits into the room.
int fittingZoom(QSize canvas, QSize room);

// So many canvas pixels round an area a smooth enlargement mixes their colours into it.
inline constexpr int Seam = 1;

// Between canvas pixels and those of the widget that shows them.
class Zoom
{
public:
    explicit Zoom(int percent = 100) : m_percent(percent) {}

    int percent() const { return m_percent; }
    double factor() const { return m_percent / 100.0; }
    QPointF toCanvas(QPointF shown) const { return shown / factor(); }
    QPointF shown(QPointF canvas) const { return canvas * factor(); }
    // Each edge rounded by itself: what lies side by side on the canvas does so here.
    QRect shown(const QRect &canvas) const;
    // The canvas pixels of which anything is to be seen in this part of the widget.
    QRect toCanvas(const QRect &shown) const;

private:
    int m_percent;
};

} // namespace surface
