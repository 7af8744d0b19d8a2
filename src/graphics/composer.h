#pragma once

#include "graphics/planes.h"

#include <QPoint>

namespace graphics {

// Draws the source on the surface with its upper left corner at `at`, mixed by its alpha plane and the level
// of its control. Alpha below 38 and a level of 0 leave the surface as it is, its own alpha too, and even
// a full alpha at a full level lets a trace of it through. What lies outside the surface or the alpha plane
// is not drawn. The surface is turned into 32-bit pixels.
void compose(QImage &surface, QPoint at, const QImage &source, const AlphaPlane &alpha, quint8 level);

} // namespace graphics
