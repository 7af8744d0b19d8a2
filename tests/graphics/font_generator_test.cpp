#include "graphics/face_source.h"
#include "graphics/font_engine.h"
#include "graphics/font_file.h"
#include "graphics/font_store.h"
#include "graphics/glyph_lists.h"
#include "graphics/glyph_raster.h"
#include "platform/file_replace.h"
#include "support/scripted_prompts.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include FT_OUTLINE_H

namespace {

using namespace graphics;

using platform::readFile;
using platform::replaceFile;

InputText surfaceOf(int side)
{
    InputText surface;
    surface.clear(side, side);
    return surface;
}

TEST(BoundaryScan, findsTheBoxOfAllInk)
{
    EXPECT_EQ(BoundaryScan(surfaceOf(20)), InkBox());
    for (const InkBox &box : {InkBox{0, 0, 1, 1}, {19, 19, 1, 1}, {0, 0, 20, 20}, {1, 1, 8, 5}}) {
        InputText corners = surfaceOf(20); // the faintest ink counts
        corners.row(box.top)[box.left + box.width - 1] = corners.row(box.top + box.height - 1)[box.left] = 1;
        EXPECT_EQ(BoundaryScan(corners), box);
    }
}

// A quarter of the length at four times the size, and a half, halves to even; and the mean of every block.
TEST(DrawAAFont, measuresInWholePixelsAndTakesMeansWithHalvesToEven)
{
    InputText surface = surfaceOf(20);
    for (std::size_t i = 0; i < surface.pixels.size(); ++i)
        surface.pixels[i] = static_cast<quint8>(i * i * 56 + i / 3 * 8); // many sums are exact halves
    for (const auto &[enlarged, pixels] :
         {std::pair{1, 1}, {3, 1}, {4, 2}, {5, 2}, {8, 2}, {9, 3}, {12, 4}, {17, 5}}) {
        surface.top = enlarged - 1;
        const Glyph glyph = DrawAAFont(surface, {2, 1, enlarged, enlarged});
        ASSERT_EQ(std::tuple(glyph.width, glyph.height, glyph.top), std::tuple(pixels, pixels, pixels));
        for (int i = 0; i < pixels * pixels; ++i) {
            int sum = 0;
            for (int y = i / pixels * 4; y < std::min(i / pixels * 4 + 4, enlarged); ++y) {
                for (int x = i % pixels * 4; x < std::min(i % pixels * 4 + 4, enlarged); ++x)
                    sum += surface.row(1 + y)[2 + x];
            }
            EXPECT_EQ(glyph.coverage.at(static_cast<std::size_t>(i)), std::nearbyint(sum / 16.0)) << i;
        }
    }
}

TEST(LineAlignment, putsTheHighestGlyphOfBothListsAtTheTop)
{
    RasterFont standard{0, {{1, 4, 9, {}}, DrawAAFont(surfaceOf(1), {})}}, extended{0, {{1, 12, 3, {}}}};
    alignToLine(standard, extended);
    EXPECT_EQ(std::pair(standard.lineHeight, extended.lineHeight), std::pair(12, 12));
    EXPECT_EQ((std::array{standard.glyphs[0].top, standard.glyphs[1].top, extended.glyphs[0].top}),
              (std::array{6, 255 - 3, 0}));
}

const QString ProgramFolder = MORVEL_PROGRAM_DIR "/";

const Glyph &glyphOf(const RasterFont &font, char16_t code)
{
    return font.glyphs.at(static_cast<std::size_t>(lookUpGlyph(code).index));
}

FontRequest font(int size, const FontStyle &style = {}, const char *face = "Liberation Sans")
{
    return {QString::fromLatin1(face), size, style};
}

RasterFont standardOf(const FontRequest &request)
{
    platform::NoProgress progress;
    const auto files = renderFont(request, ProgramFolder + "fonts/", progress);
    return readFontFile(files.value_or(FontPair()).standard, StandardGlyphs).value_or(RasterFont());
}

// A full row across the whole glyph, at this place of the line or below; the ends may fall between two
// pixels.
bool hasBar(const Glyph &glyph, int line)
{
    for (int y = 0; y < glyph.height; ++y) {
        if (glyph.top + y >= line && std::ranges::count(glyph.row(y), 255) >= glyph.width - 2)
            return true;
    }
    return false;
}

TEST(FontRendering, standsOnOneBaseLineAtAnyScreensSize)
{
    const RasterFont file = standardOf(font(24));
    const auto bottom = [&](char16_t letter) {
        return glyphOf(file, letter).top + glyphOf(file, letter).height;
    };
    EXPECT_NEAR(glyphOf(file, u'H').height, 32 * 0.69, 1.5); // 24 points are 32 pixels, capitals 0.69 of that
    for (const char16_t letter : {u'A', u'E', u'L', u'X', u'h', u'i', u'm', u'x', u'1', u'7'})
        EXPECT_NEAR(bottom(letter), bottom(u'H'), 1) << static_cast<char>(letter);
    EXPECT_GT(bottom(u'g'), bottom(u'H') + 3);
}

// Stems end on a whole row: the last row with ink has as much of it as the one above.
TEST(FontRendering, fitsLevelEdgesToWholeRows)
{
    for (int size = 8; size < 30; ++size) {
        const Glyph glyph = glyphOf(standardOf(font(size)), u'H');
        const auto most = [&](int row) { return std::ranges::max(glyph.row(row)); };
        const int last = glyph.height - (most(glyph.height - 1) == 0 ? 2 : 1);
        EXPECT_EQ(most(last), most(last - 1)) << size;
    }
}

TEST(OpenFace, makesUpTheStyleThatAFileLacksAndNoMore)
{
    const FontEngine engine;
    // The width of an H as it is drawn from one of the shipped files, in 64ths of an enlarged pixel.
    const auto widthOf = [&engine](const FontStyle &file, const FontStyle &wanted) {
        const QByteArray shipped = shippedFace(ProgramFolder + "fonts/", file);
        int advance = 0;
        FT_BBox box;
        FT_Outline_Get_CBox(OpenFace::open(engine, shipped, font(24, wanted))->outline(u'H', advance), &box);
        return static_cast<double>(box.xMax - box.xMin);
    };
    constexpr int size = 32 * 4 * 64; // 24 points
    const FontStyle bold{true}, italic{false, true};
    EXPECT_NEAR(widthOf({}, bold), widthOf({}, {}) + size / 24.0, 64);
    EXPECT_NEAR(widthOf({}, italic), widthOf({}, {}) + size * 0.69 * 0.21, 64);
    EXPECT_EQ(widthOf(bold, bold), widthOf(bold, {}));
    EXPECT_EQ(widthOf(italic, italic), widthOf(italic, {}));
}

TEST(FontRendering, stylesChangeWhatTheySay)
{
    const RasterFont plain = standardOf(font(24));
    EXPECT_GT(glyphOf(standardOf(font(24, {true})), u'I').width, glyphOf(plain, u'I').width);
    EXPECT_GT(glyphOf(standardOf(font(24, {false, true})), u'I').width, glyphOf(plain, u'I').width * 3 / 2);

    const RasterFont struck = standardOf(font(24, {false, false, true}));
    const RasterFont underlined = standardOf(font(24, {false, false, false, true}));
    const int base = glyphOf(underlined, u'H').top + glyphOf(plain, u'H').height;
    for (const char16_t letter : {u'I', u'x', u'W', u'.'}) {
        EXPECT_TRUE(hasBar(glyphOf(struck, letter), 0)) << static_cast<char>(letter);
        EXPECT_TRUE(hasBar(glyphOf(underlined, letter), base)) << static_cast<char>(letter);
        EXPECT_FALSE(hasBar(glyphOf(plain, letter), base)) << static_cast<char>(letter);
    }
}

struct FontStoreTest : testing::Test
{
    FontStoreTest()
    {
        folders.program = ProgramFolder;
        folders.applicationData = root.path() + '/';
    }
    auto open(const FontRequest &wanted) { return store.open(wanted, UsualSize, progress); }

    static constexpr int UsualSize = 9;
    QTemporaryDir root;
    platform::Folders folders;
    platform::NoProgress progress;
    test::ScriptedPrompts prompts;
    FontStore store{folders};
    const FontRequest request = font(12, {false, true}, "Arial");
};

TEST_F(FontStoreTest, makesMissingAndDamagedFilesAnewAndHandsOutWholeOnes)
{
    const FontPair made = open(request)->files;
    EXPECT_EQ(QDir(folders.FontFolder()).entryList(QDir::Files, QDir::Name),
              QStringList({"Arial I 12.qlg", "Ext_Arial I 12.qlg"}));
    for (const auto &[path, whole] : {std::pair{store.standardPath(request), made.standard},
                                      {store.extendedPath(request), made.extended}}) {
        for (const QByteArray &damaged : {QByteArray(), QByteArray("damaged"), whole.chopped(1)}) {
            replaceFile(path, damaged);
            EXPECT_EQ(open(request)->files.standard + open(request)->files.extended,
                      made.standard + made.extended);
            EXPECT_EQ(readFile(path), whole);
        }
        QFile::remove(path);
        open(request);
        EXPECT_EQ(readFile(path), whole);
    }
    QDir(folders.FontFolder()).removeRecursively();
    replaceFile(folders.FontFolder().chopped(1), "a file in the place of the folder");
    EXPECT_EQ(open(request)->request, request); // needs none
}

TEST_F(FontStoreTest, followsItsFilesWhenTheyChange)
{
    const auto first = open(request), larger = open(font(20));
    replaceFile(store.extendedPath(request), larger->files.extended);
    EXPECT_EQ(open(request)->text.glyph(u'!')->coverage, larger->text.glyph(u'!')->coverage);
    EXPECT_EQ(open(request)->text.glyph(u'H')->coverage, first->text.glyph(u'H')->coverage);
    ASSERT_TRUE(store.generate(request, progress, prompts));
    EXPECT_EQ(open(request)->files.extended, first->files.extended);
}

TEST_F(FontStoreTest, letsTheDefaultFaceStandInWithoutAWord)
{
    for (const auto &[face, size] : {std::pair{"No Such Face", 20},
                                     {"No Such Face", 0},
                                     {"Liberation Sans", -12},
                                     {"Liberation Sans", 180},
                                     {"Liberation Sans", 32767}}) {
        const FontRequest wanted = font(size, {true}, face);
        const auto drawn = open(wanted);
        EXPECT_EQ(drawn->request, (FontRequest{DefaultFace, size == 20 ? 20 : UsualSize, {true}})) << size;
        EXPECT_TRUE(drawn->standsInFor(wanted)) << size;
        EXPECT_FALSE(QFile::exists(store.standardPath(wanted))) << size;
    }
    EXPECT_FALSE(open(font(12, {}, ""))->standsInFor(font(12, {}, "")));
}

} // namespace
