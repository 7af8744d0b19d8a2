#include "graphics/glyph_raster.h"

#include "common/rounding.h"

#include <algorithm>
#include <iterator>

namespace graphics {

namespace {

bool isInk(quint8 pixel) { return pixel != 0; }

bool hasInk(const quint8 *begin, const quint8 *end) { return std::any_of(begin, end, isInk); }

// A length or place at four times the size, rounded up to whole pixels of the glyph.
int reduced(int enlarged)
{
    return common::toInteger<int>(enlarged / static_cast<double>(Enlargement) + 0.5);
}

// The mean of 16 samples, halves to even.
quint8 blockMean(int sum)
{
    const int whole = sum >> 4;
    return static_cast<quint8>((sum + 7 + (whole & 1)) >> 4);
}

// Adds a row of samples to the sums of the blocks that it crosses; the last block may be cut.
void addRow(const quint8 *row, int length, std::vector<int> &sums)
{
    const int whole = length / Enlargement;
    const quint8 *sample = row;
    for (int block = 0; block < whole; ++block, sample += Enlargement) {
        sums[static_cast<std::size_t>(block)] += sample[0] + sample[1] + sample[2] + sample[3];
    }
    for (int x = whole * Enlargement; x < length; ++x)
        sums[static_cast<std::size_t>(whole)] += row[x];
}

} // namespace

void InputText::clear(int newWidth, int newHeight)
{
    width = newWidth;
    height = newHeight;
    pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
}

InkBox BoundaryScan(const InputText &surface)
{
    int top = 0;
    while (top < surface.height && !hasInk(surface.row(top), surface.row(top + 1)))
        ++top;
    if (top == surface.height)
        return {};
    int bottom = surface.height;
    while (!hasInk(surface.row(bottom - 1), surface.row(bottom)))
        --bottom;
    int left = surface.width;
    int right = 0;
    for (int y = top; y < bottom; ++y) {
        const quint8 *row = surface.row(y);
        left = static_cast<int>(std::find_if(row, row + left, isInk) - row);
        const std::reverse_iterator rightEdge(row + surface.width), rightSoFar(row + right);
        right = static_cast<int>(std::find_if(rightEdge, rightSoFar, isInk).base() - row);
    }
    return {left, top, right - left, bottom - top};
}

Glyph DrawAAFont(const InputText &surface, const InkBox &box)
{
    Glyph glyph;
    glyph.top = BlankTop;
    if (box.width == 0 || box.height == 0)
        return glyph;
    glyph.width = reduced(box.width);
    glyph.height = reduced(box.height);
    glyph.top = reduced(surface.top + box.top);
    glyph.coverage.reserve(glyph.pixelCount());
    std::vector<int> sums(static_cast<std::size_t>(glyph.width));
    for (int y = 0; y < glyph.height; ++y) {
        std::fill(sums.begin(), sums.end(), 0);
        const int last = std::min((y + 1) * Enlargement, box.height);
        for (int row = y * Enlargement; row < last; ++row)
            addRow(surface.row(box.top + row) + box.left, box.width, sums);
        std::transform(sums.begin(), sums.end(), std::back_inserter(glyph.coverage), blockMean);
    }
    return glyph;
}

void alignToLine(RasterFont &standard, RasterFont &extended)
{
    int highest = BlankTop;
    int lowest = 0;
    for (const RasterFont *font : {&standard, &extended}) {
        for (const Glyph &glyph : font->glyphs) {
            highest = std::min(highest, glyph.top);
            if (glyph.hasInk())
                lowest = std::max(lowest, glyph.top + glyph.height);
        }
    }
    for (RasterFont *font : {&standard, &extended}) {
        for (Glyph &glyph : font->glyphs)
            glyph.top -= highest;
        font->lineHeight = std::max(lowest - highest, 0);
    }
}

} // namespace graphics
