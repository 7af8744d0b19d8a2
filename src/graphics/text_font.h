#pragma once

#include "graphics/glyph.h"

#include <QByteArrayView>
#include <QStringView>

#include <optional>
#include <vector>

namespace graphics {

// A font ready for drawing: the glyphs of both its files, found by character.
class TextFont
{
public:
    // Nothing when one of the files cannot be read.
    static std::optional<TextFont> fromFiles(QByteArrayView standard, QByteArrayView extended);

    int lineHeight() const { return m_lineHeight; }
    // Null for characters that are in neither file: they draw nothing.
    const Glyph *glyph(char16_t character) const;
    // How far the pen moves, in pixels; for unknown characters as far as for "j".
    int advance(char16_t character) const;
    // Where the pen stands after a text that begins at `left`.
    int penBehind(QStringView text, int left = 0) const;

    qsizetype bytes() const; // of the decoded glyphs

private:
    int m_lineHeight = 0;
    std::vector<Glyph> m_standard;
    std::vector<Glyph> m_extended;
};

} // namespace graphics
