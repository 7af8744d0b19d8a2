#pragma once

#include "surface/frame_painter.h"
#include "surface/overlay_picture.h"

#include <QRegion>

namespace surface {

// What the canvas shows, kept as two pictures, the composed overlay and the frames above it, so that only
// what was touched is drawn again, once it is seen. Lifted controls are in neither of them: they are drawn
// above all others at each painting, and moving them draws nothing else again.
class CanvasPicture
{
public:
    // Draws everything anew upon this picture of the canvas.
    void reset(const QImage &ground, const FramePainter &frames, controls::Drawing drawing);
    void setZoom(const Zoom &zoom);
    // Something that is not lifted, or is no longer, looks different here. Canvas pixels.
    void touch(const QRect &area);
    // `order` is from the first to the last, `lifted` some of it in the same order. `shown` and the painter's
    // coordinates are those of the zoomed canvas.
    void paint(QPainter &painter, const QRect &shown, const ControlList &order, const ControlList &lifted);

private:
    void refresh(const ControlList &resting, const QRect &area);
    void refreshFrames(const ControlList &resting, const QRect &shown);
    void paintOverlay(QPainter &painter, const QRect &area, const ControlList &lifted) const;

    QImage m_ground;
    QImage m_composed; // canvas pixels
    QImage m_frames;   // screen pixels, transparent where there is no frame
    Zoom m_zoom;
    FramePainter m_framePainter{{}, {}};
    controls::Drawing m_drawing = controls::Drawing::Designed;
    QRegion m_touched; // of the composed overlay, canvas pixels
    QRegion m_touchedFrames;
};

} // namespace surface
