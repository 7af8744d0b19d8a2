#pragma once

#include "graphics/glyph.h"

namespace graphics {

// Characters are drawn at so many times their size, then shrunk.
inline constexpr int Enlargement = 4;

// The surface on which one character is drawn at four times its size.
struct InputText
{
    int width = 0;
    int height = 0;
    int top = 0;                // its first row, counted from the top of the line; may be negative
    std::vector<quint8> pixels; // width x height; whatever is not 0 is ink

    void clear(int newWidth, int newHeight);
    quint8 *row(int y) { return pixels.data() + static_cast<qsizetype>(y) * width; }
    const quint8 *row(int y) const { return pixels.data() + static_cast<qsizetype>(y) * width; }
};

// The box of the ink, in pixels of the surface; width and height are 0 where there is none.
struct InkBox
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const InkBox &) const = default;
};

InkBox BoundaryScan(const InputText &surface);

// Shrinks the box: every pixel is the rounded mean of a block of 4 by 4. Without ink the glyph is empty, and
// its top is that of a blank glyph.
Glyph DrawAAFont(const InputText &surface, const InkBox &box);

// What a glyph without ink has for a top until the lines are aligned.
inline constexpr int BlankTop = 255;

// Puts the highest glyph of both fonts at the top of the line, and sets the line height to what both need.
void alignToLine(RasterFont &standard, RasterFont &extended);

} // namespace graphics
