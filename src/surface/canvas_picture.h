#pragma once

#include "surface/frame_painter.h"
#include "surface/overlay_picture.h"

#include <QRegion>

namespace surface {

// What the canvas shows, kept as two pictures, the composed overlay and the frames above it, so that only
// what was touched is drawn again. A lifted control is in neither of them: it is drawn above all others at
// each painting, and moving it draws nothing else again.
class CanvasPicture
{
public:
    // Draws everything anew upon this picture of the canvas.
    void reset(const QImage &ground, const FramePainter &frames);
    // Something that is not lifted, or is no longer, looks different here. Canvas pixels.
    void touch(const QRect &area);
    // `lifted` may be null. The painter's coordinates are canvas pixels.
    void paint(QPainter &painter, const QRect &area, const ControlList &stack,
               controls::OverlayControl *lifted);

private:
    void refresh(const ControlList &resting, double ratio);
    void refreshFrames(const ControlList &resting, const QRect &area);

    QImage m_ground;
    QImage m_composed; // canvas pixels
    QImage m_frames;   // screen pixels, transparent where there is no frame
    FramePainter m_framePainter{{}, {}};
    QRegion m_touched;
};

} // namespace surface
