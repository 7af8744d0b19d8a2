#pragma once

#include "controls/overlay_control.h"

#include <QImage>

namespace surface {

// The overlay composed off-screen, on the backdrop and in stacking order; no widget is shown, hidden or
// moved.

// The whole canvas as the recorder would draw it. A background of another size stands at the top left: what
// it does not cover is black, what lies outside the canvas is cut off.
QImage overlayPicture(QSize canvas, const QPixmap &background,
                      const QList<controls::OverlayControl *> &bottomToTop);

// The part of the canvas that the inner area of `control` covers: backdrop and the controls below it.
QImage pictureBelow(const controls::OverlayControl &control, const QPixmap &backdrop,
                    const QList<controls::OverlayControl *> &bottomToTop);

} // namespace surface
