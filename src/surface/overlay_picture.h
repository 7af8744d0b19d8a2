#pragma once

#include "controls/overlay_control.h"

#include <QImage>

namespace surface {

using ControlList = QList<controls::OverlayControl *>;

// A background on a canvas of this size: it stands at the top left, what it does not cover is black.
QImage groundOf(QSize canvas, const QImage &background);

// The part `area` of the canvas with the controls drawn upon `ground`, from the first to the last, without
// grid and frames. Canvas, Preview, thumbnail and library icons are all made here. A control that cannot be
// drawn is left out.
controls::Composition composed(QImage ground, const QRect &area, const ControlList &order,
                               controls::Drawing drawing);

// The same for the whole canvas, as the recorder draws it.
QImage overlayPicture(QImage ground, const ControlList &order);

} // namespace surface
