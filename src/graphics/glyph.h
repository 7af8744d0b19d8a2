#pragma once

#include <QtGlobal>

#include <span>
#include <vector>

namespace graphics {

// The raster of one character, in pixels of the picture.
struct Glyph
{
    int width = 0;
    int height = 0;
    int top = 0;                  // rows between the top of the line and the first row of the glyph
    std::vector<quint8> coverage; // width x height, top row first: 0 nothing, 255 full ink

    bool hasInk() const { return width > 0 && height > 0; }
    std::size_t pixelCount() const
    {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }
    std::span<const quint8> row(int y) const { return std::span(coverage).subspan(start(y), length()); }
    std::span<quint8> row(int y) { return std::span(coverage).subspan(start(y), length()); }
    bool operator==(const Glyph &) const = default;

private:
    std::size_t length() const { return static_cast<std::size_t>(width); }
    std::size_t start(int y) const { return static_cast<std::size_t>(y) * length(); }
};

// What one font file holds.
struct RasterFont
{
    int lineHeight = 0;
    std::vector<Glyph> glyphs; // in the order of the file's list

    bool operator==(const RasterFont &) const = default;
};

} // namespace graphics
