#include "graphics/text_font.h"

#include "graphics/font_file.h"
#include "graphics/glyph_lists.h"

namespace graphics {

namespace {

constexpr int GlyphGap = 2;
constexpr char16_t WidthOfUnknown = u'j';

} // namespace

std::optional<TextFont> TextFont::fromFiles(QByteArrayView standard, QByteArrayView extended)
{
    auto common = readFontFile(standard, StandardGlyphs);
    auto further = readFontFile(extended, ExtendedGlyphs);
    if (!common || !further)
        return std::nullopt;
    TextFont font;
    font.m_lineHeight = common->lineHeight;
    font.m_standard = std::move(common->glyphs);
    font.m_extended = std::move(further->glyphs);
    return font;
}

const Glyph *TextFont::glyph(char16_t character) const
{
    const GlyphPlace place = lookUpGlyph(character);
    if (place.index < 0)
        return nullptr;
    return &(place.extended ? m_extended : m_standard)[static_cast<std::size_t>(place.index)];
}

int TextFont::advance(char16_t character) const
{
    const Glyph *known = glyph(character);
    return (known ? known : glyph(WidthOfUnknown))->width + GlyphGap;
}

int TextFont::penBehind(QStringView text, int left) const
{
    for (const QChar character : text)
        left += advance(character.unicode());
    return left;
}

qsizetype TextFont::bytes() const
{
    std::size_t sum = 0;
    for (const auto *glyphs : {&m_standard, &m_extended}) {
        for (const Glyph &glyph : *glyphs)
            sum += sizeof glyph + glyph.coverage.size();
    }
    return static_cast<qsizetype>(sum);
}

} // namespace graphics
