#include "graphics/modDrawFont.h"

#include "common/colour.h"

#include <algorithm>

namespace graphics {

namespace {

constexpr quint32 Full = 255;

// The colour in the order of the surface's pixels, and its strength.
struct Ink
{
    QRgb pixel;
    quint32 opacity;
};

// (1 - a) * below + a * ink for a = share / (255 * 255). The divisor is odd, so there are no exact halves.
inline quint32 mixed(quint32 below, quint32 ink, quint32 share)
{
    constexpr quint32 Divisor = Full * Full;
    return (below * (Divisor - share) + ink * share + Divisor / 2) / Divisor;
}

inline quint32 mixedPixel(quint32 below, const Ink &ink, quint32 share)
{
    const auto channel = [&](quint32 shift) {
        return mixed(below >> shift & Full, ink.pixel >> shift & Full, share) << shift;
    };
    return (below & ~RGB_MASK) | channel(16) | channel(8) | channel(0);
}

void mixRow(const quint8 *coverage, quint32 *pixels, int length, const Ink &ink)
{
    for (int x = 0; x < length; ++x) {
        const quint32 share = coverage[x] * ink.opacity;
        if (share == Full * Full)
            pixels[x] = (pixels[x] & ~RGB_MASK) | (ink.pixel & RGB_MASK);
        else if (share != 0)
            pixels[x] = mixedPixel(pixels[x], ink, share);
    }
}

// The pixels of a surface; detached once, not for every row.
struct Pixels
{
    explicit Pixels(QImage &image)
        : bits(image.bits()), stride(image.bytesPerLine()), width(image.width()), height(image.height())
    {
    }
    quint32 *row(int y) const { return reinterpret_cast<quint32 *>(bits + y * stride); }

    uchar *bits;
    qsizetype stride;
    int width;
    int height;
};

void drawGlyph(const Glyph &glyph, int left, int top, const Ink &ink, const Pixels &surface)
{
    const int firstColumn = std::max(0, -left);
    const int length = std::min(glyph.width, surface.width - left) - firstColumn;
    const int lastRow = std::min(glyph.height, surface.height - top);
    if (length <= 0)
        return;
    for (int row = std::max(0, -top); row < lastRow; ++row) {
        mixRow(glyph.row(row).data() + firstColumn, surface.row(top + row) + left + firstColumn, length, ink);
    }
}

} // namespace

TextExtent drawText(const TextFont &font, const QString &text, const TextLook &look, QImage &surface)
{
    if (surface.depth() != 32)
        surface.convertTo(QImage::Format_RGB32);
    const int top = look.position.y();
    int pen = look.position.x();
    const Ink ink{common::toPixel(look.colour), look.opacity};
    const Pixels pixels(surface);
    for (const QChar character : text) {
        if (const Glyph *glyph = font.glyph(character.unicode()))
            drawGlyph(*glyph, pen, top + glyph->top, ink, pixels);
        pen += font.advance(character.unicode());
    }
    return {pen, font.lineHeight()};
}

} // namespace graphics
