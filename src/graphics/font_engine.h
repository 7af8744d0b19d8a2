#pragma once

#include "graphics/font_name.h"

#include <QByteArray>

#include <ft2build.h>
#include <memory>
#include <vector>

#include FT_FREETYPE_H

namespace graphics {

// The font engine, made without a look at the environment's settings for such engines.
class FontEngine
{
public:
    FontEngine();
    ~FontEngine();
    Q_DISABLE_COPY_MOVE(FontEngine)

    FT_Library library() const { return m_library; }

private:
    FT_MemoryRec_ m_memory;
    FT_Library m_library = nullptr;
};

// A filled stroke across a whole character, in enlarged pixels above the base line.
struct StyleBar
{
    int bottom = 0;
    int thickness = 0;
};

// One opened font file at the size of a font. What the file lacks of the wanted style is made up: bold by
// wider strokes, italic by a slant, the two bars from the file's measures for them.
class OpenFace
{
public:
    // Null when the bytes are no font file with outlines. The engine must outlive the face.
    static std::unique_ptr<OpenFace> open(const FontEngine &engine, const QByteArray &bytes,
                                          const FontRequest &request);
    ~OpenFace();
    Q_DISABLE_COPY_MOVE(OpenFace)

    bool has(char16_t character) const { return glyphOf(character) != 0; }
    // The outline of the character (of the blank box when it is missing) at four times its size, in 64ths of
    // a pixel with the base line at 0; good until the next call. Null when there is none. `advance` is the
    // character's whole width in enlarged pixels.
    FT_Outline *outline(char16_t character, int &advance) const;
    const std::vector<StyleBar> &bars() const { return m_bars; }
    // Enlarged rows between the top of the line and the base line.
    int baseLine() const;

private:
    OpenFace(FT_Face face, const QByteArray &bytes);
    bool setUp(const FontRequest &request);
    void addBar(double centre, double thickness, double usualCentre); // shares of the size
    FT_UInt glyphOf(char16_t character) const;

    QByteArray m_bytes; // the engine reads from here
    FT_Face m_face;
    double m_size = 0; // pixels
    bool m_isSymbols = false;
    bool m_isSlanted = false;
    long m_widening = 0; // 64ths of a pixel
    std::vector<StyleBar> m_bars;
};

} // namespace graphics
