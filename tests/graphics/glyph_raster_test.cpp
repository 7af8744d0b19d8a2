#include "graphics/glyph_raster.h"

#include <cmath>
#include <gtest/gtest.h>

namespace graphics {

namespace {

// A surface with one filled box.
InputText surfaceWith(int width, int height, const InkBox &box, quint8 value = 255)
{
    InputText surface;
    surface.clear(width, height);
    for (int y = box.top; y < box.top + box.height; ++y)
        std::fill_n(surface.row(y) + box.left, box.width, value);
    return surface;
}

TEST(BoundaryScan, findsTheBoxOfAllInk)
{
    const InkBox boxes[] = {{0, 0, 1, 1}, {9, 6, 1, 1}, {0, 0, 10, 7}, {3, 2, 5, 1}, {2, 1, 1, 5}};
    for (const InkBox &box : boxes) // the faintest ink counts
        EXPECT_EQ(BoundaryScan(surfaceWith(10, 7, box, 1)), box);
    InputText scattered = surfaceWith(10, 7, {4, 1, 1, 1});
    scattered.row(3)[1] = 7;
    scattered.row(5)[8] = 7;
    EXPECT_EQ(BoundaryScan(scattered), (InkBox{1, 1, 8, 5}));
    EXPECT_EQ(BoundaryScan(surfaceWith(10, 7, {})), InkBox());
    EXPECT_EQ(BoundaryScan(InputText()), InkBox());
}

TEST(DrawAAFont, measuresInWholePixels)
{
    // Length at four times the size, and a quarter of it plus a half, halves to even.
    const std::pair<int, int> lengths[] = {{1, 1}, {3, 1}, {4, 2}, {5, 2}, {8, 2}, {9, 3}, {12, 4}, {13, 4}};
    for (const auto &[enlarged, pixels] : lengths) {
        const InkBox box{2, 3, enlarged, enlarged};
        InputText surface = surfaceWith(20, 20, box);
        surface.top = enlarged - box.top;
        const Glyph glyph = DrawAAFont(surface, box);
        EXPECT_EQ(glyph.width, pixels) << enlarged;
        EXPECT_EQ(glyph.height, pixels) << enlarged;
        EXPECT_EQ(glyph.top, pixels) << enlarged;
        EXPECT_EQ(glyph.coverage.size(), static_cast<std::size_t>(pixels * pixels));
    }
    const Glyph blank = DrawAAFont(surfaceWith(4, 4, {}), {});
    EXPECT_FALSE(blank.hasInk());
    EXPECT_EQ(blank.top, 255);
}

TEST(DrawAAFont, takesTheMeanOfEveryBlock)
{
    InputText surface;
    surface.clear(11, 7);
    unsigned state = 1;
    for (quint8 &pixel : surface.pixels) {
        state = state * 1103515245 + 12345;
        pixel = static_cast<quint8>(state >> 16);
    }
    const InkBox box{1, 1, 10, 6};
    const Glyph glyph = DrawAAFont(surface, box);
    ASSERT_EQ(glyph.width, 3);
    ASSERT_EQ(glyph.height, 2);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x) {
            int sum = 0;
            for (int j = 4 * y; j < std::min(4 * y + 4, box.height); ++j) {
                for (int i = 4 * x; i < std::min(4 * x + 4, box.width); ++i)
                    sum += surface.row(box.top + j)[box.left + i];
            }
            EXPECT_EQ(glyph.coverage[static_cast<std::size_t>(y * 3 + x)], std::nearbyint(sum / 16.0));
        }
    }
}

TEST(DrawAAFont, roundsHalvesToEven)
{
    const std::pair<int, int> sums[] = {{7, 0},  {8, 0},  {9, 1},  {23, 1},
                                        {24, 2}, {40, 2}, {41, 3}, {255, 16}};
    for (const auto &[sum, mean] : sums) {
        InputText surface = surfaceWith(4, 4, {0, 0, 1, 1}, static_cast<quint8>(sum));
        EXPECT_EQ(DrawAAFont(surface, {0, 0, 4, 4}).coverage[0], mean) << sum;
    }
}

TEST(LineAlignment, putsTheHighestGlyphOfBothListsAtTheTop)
{
    RasterFont standard{0, {{1, 4, 9, {}}, {1, 6, 5, {}}, {0, 0, BlankTop, {}}}};
    RasterFont extended{0, {{1, 12, 3, {}}}};
    alignToLine(standard, extended);
    EXPECT_EQ(standard.lineHeight, 12);
    EXPECT_EQ(extended.lineHeight, 12);
    EXPECT_EQ(standard.glyphs[0].top, 6);
    EXPECT_EQ(standard.glyphs[1].top, 2);
    EXPECT_EQ(standard.glyphs[2].top, 252);
    EXPECT_EQ(extended.glyphs[0].top, 0);
    RasterFont blank{0, {{0, 0, BlankTop, {}}}}, none;
    alignToLine(blank, none);
    EXPECT_EQ(blank.lineHeight, 0);
    EXPECT_EQ(blank.glyphs[0].top, 0);
}

} // namespace

} // namespace graphics
