#pragma once

#include "graphics/text_font.h"

#include <QImage>
#include <QStringList>

namespace graphics {

// The grey of a dim picture.
inline constexpr QRgb PreviewGround = 0xFF303A46;

// A few lines in a font, white on that grey, pixel for pixel as the recorder draws them.
QImage fontPreview(const TextFont &font);

// The faces that can be chosen: all that have outlines, and those that the shipped face stands in for; in the
// order of the alphabet. Asks the desktop.
QStringList offeredFaces();

} // namespace graphics
