#pragma once

#include "graphics/glyph.h"

#include <QByteArray>

#include <optional>

namespace graphics {

// The bytes of a font file. Nothing when the font is too large for one: a width, height or top above 254, a
// line height or a coded row above 255.
std::optional<QByteArray> FontFile(const RasterFont &font);

// Whether a glyph's measures have a place in a font file.
bool fitsFontFile(const Glyph &glyph);

// The font in a file of `glyphCount` glyphs. Nothing when the bytes are no such file: cut, lengths or a row
// table that do not add up, glyphs outside the data, runs that pass the end of a row. Takes at most 65 KB a
// glyph.
std::optional<RasterFont> readFontFile(QByteArrayView bytes, int glyphCount);

} // namespace graphics
