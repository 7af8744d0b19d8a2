#pragma once

#include <cstdint>
#include <span>

namespace graphics {

inline constexpr int StandardGlyphs = 76;
inline constexpr int ExtendedGlyphs = 40;

// The character codes of the two font files, in the order of their glyphs.
std::span<const std::uint8_t, StandardGlyphs> standardList();
std::span<const std::uint8_t, ExtendedGlyphs> extendedList();

// Where a character's glyph lies. The index is negative when the character is in neither list.
struct GlyphPlace
{
    int index = -1;
    bool extended = false;

    bool operator==(const GlyphPlace &) const = default;
};

GlyphPlace lookUpGlyph(char16_t character);

} // namespace graphics
