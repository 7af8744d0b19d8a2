#include "graphics/glyph_raster.h"

#include <cmath>
#include <gtest/gtest.h>

namespace graphics {

namespace {

// A surface with one filled box.
InputText surfaceWith(const InkBox &box, quint8 value = 255)
{
    InputText surface;
    surface.clear(20, 20);
    for (int y = box.top; y < box.top + box.height; ++y)
        std::fill_n(surface.row(y) + box.left, box.width, value);
    return surface;
}

TEST(BoundaryScan, findsTheBoxOfAllInk)
{
    for (const InkBox &box : {InkBox{0, 0, 1, 1}, {19, 19, 1, 1}, {0, 0, 20, 20}, {3, 2, 5, 1}, {}})
        EXPECT_EQ(BoundaryScan(surfaceWith(box, 1)), box); // the faintest ink counts
    InputText scattered = surfaceWith({4, 1, 1, 1});
    scattered.row(3)[1] = scattered.row(5)[8] = 7;
    EXPECT_EQ(BoundaryScan(scattered), (InkBox{1, 1, 8, 5}));
    EXPECT_EQ(BoundaryScan(InputText()), InkBox());
}

TEST(DrawAAFont, measuresInWholePixels)
{
    // Length at four times the size, and a quarter of it plus a half, halves to even.
    for (const auto &[enlarged, pixels] :
         {std::pair{1, 1}, {3, 1}, {4, 2}, {5, 2}, {8, 2}, {9, 3}, {12, 4}}) {
        const InkBox box{2, 3, enlarged, enlarged};
        InputText surface = surfaceWith(box);
        surface.top = enlarged - box.top;
        const Glyph glyph = DrawAAFont(surface, box);
        EXPECT_TRUE(glyph.width == pixels && glyph.height == pixels && glyph.top == pixels) << enlarged;
        EXPECT_EQ(glyph.coverage.size(), static_cast<std::size_t>(pixels * pixels));
    }
}

TEST(DrawAAFont, takesTheMeanOfEveryBlockWithHalvesToEven)
{
    InputText surface = surfaceWith({});
    for (std::size_t i = 0; i < surface.pixels.size(); ++i)
        surface.pixels[i] = static_cast<quint8>(i * i * 7 + i / 3);
    const InkBox box{1, 1, 18, 17};
    const Glyph glyph = DrawAAFont(surface, box);
    ASSERT_TRUE(glyph.width == 5 && glyph.height == 5);
    for (int i = 0; i < 25; ++i) {
        int sum = 0;
        for (int y = i / 5 * 4; y < std::min(i / 5 * 4 + 4, box.height); ++y) {
            for (int x = i % 5 * 4; x < std::min(i % 5 * 4 + 4, box.width); ++x)
                sum += surface.row(box.top + y)[box.left + x];
        }
        EXPECT_EQ(glyph.coverage[static_cast<std::size_t>(i)], std::nearbyint(sum / 16.0)) << i;
    }
    for (const auto &[sum, mean] : {std::pair{8, 0}, {9, 1}, {24, 2}, {40, 2}})
        EXPECT_EQ(DrawAAFont(surfaceWith({0, 0, 1, 1}, static_cast<quint8>(sum)), {0, 0, 4, 4}).coverage[0],
                  mean);
}

TEST(LineAlignment, putsTheHighestGlyphOfBothListsAtTheTop)
{
    const Glyph blank = DrawAAFont(surfaceWith({}), {});
    RasterFont standard{0, {{1, 4, 9, {}}, blank}}, extended{0, {{1, 12, 3, {}}}};
    alignToLine(standard, extended);
    EXPECT_TRUE(standard.lineHeight == 12 && extended.lineHeight == 12);
    EXPECT_TRUE(standard.glyphs[0].top == 6 && extended.glyphs[0].top == 0);
    EXPECT_EQ(standard.glyphs[1].top, 255 - 3);
    RasterFont allBlank{0, {blank}}, none;
    alignToLine(allBlank, none);
    EXPECT_EQ(allBlank.lineHeight, 0);
}

} // namespace

} // namespace graphics
