#pragma once

#include "graphics/text_font.h"

#include <QImage>

namespace graphics {

// The grey of a dim picture.
inline constexpr QRgb PreviewGround = 0xFF303A46;

// A few lines in a font, white on that grey, pixel for pixel as the recorder draws them.
QImage fontPreview(const TextFont &font);

} // namespace graphics
