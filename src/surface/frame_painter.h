#pragma once

#include "controls/overlay_control.h"
#include "surface/zoom.h"

#include <QHash>
#include <QPixmap>

namespace surface {

// Draws the editing frames round the controls, hatch and grips. They do not grow with the controls.
class FramePainter
{
public:
    // `bands` is the colour of the hatch's diagonals.
    FramePainter(const platform::Screen &screen, const QColor &bands) : m_screen(screen), m_bands(bands) {}

    // Nothing for a control in play mode. The painter's coordinates are those of the zoomed canvas.
    void paint(QPainter &painter, const controls::OverlayControl &control, const Zoom &zoom);

private:
    const QPixmap &hatch(quint32 gridColour, double ratio);

    platform::Screen m_screen;
    QColor m_bands;
    QHash<quint32, QPixmap> m_hatches; // by the colour behind the bands
};

} // namespace surface
