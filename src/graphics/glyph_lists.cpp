#include "graphics/glyph_lists.h"

#include <array>

namespace graphics {

namespace {

struct CodeRange
{
    int first;
    int last;
};

constexpr CodeRange StandardRanges[] = {{'(', '9'}, {'A', '['}, {']', ']'}, {'a', 'z'},
                                        {':', ':'}, {'&', '&'}, {'<', '<'}, {'>', '>'}};

constexpr auto Standard = [] {
    std::array<std::uint8_t, StandardGlyphs> list{};
    std::size_t index = 0;
    for (const CodeRange &range : StandardRanges) {
        for (int code = range.first; code <= range.last; ++code)
            list.at(index++) = static_cast<std::uint8_t>(code);
    }
    return list;
}();

constexpr std::array<std::uint8_t, ExtendedGlyphs> Extended = {
    33,  34,  61,  63,  37,  199, 252, 233, 226, 228, 224, 229, 231, 234, 235, 232, 239, 238, 236, 196,
    197, 200, 230, 198, 244, 246, 242, 251, 249, 255, 214, 220, 225, 237, 243, 250, 35,  39,  64,  94};

// Places of all characters that have one byte, the only ones in the lists.
constexpr auto Places = [] {
    std::array<GlyphPlace, 256> places{};
    places.fill(
        GlyphPlace{}); // GCC 12 leaves elements at 0 that only the braces initialise when it optimises
    for (std::size_t i = 0; i < Standard.size(); ++i)
        places[Standard[i]] = {static_cast<int>(i), false};
    for (std::size_t i = 0; i < Extended.size(); ++i)
        places[Extended[i]] = {static_cast<int>(i), true};
    return places;
}();

} // namespace

std::span<const std::uint8_t, StandardGlyphs> standardList() { return Standard; }

std::span<const std::uint8_t, ExtendedGlyphs> extendedList() { return Extended; }

GlyphPlace lookUpGlyph(char16_t character)
{
    return character < Places.size() ? Places[character] : GlyphPlace{};
}

} // namespace graphics
