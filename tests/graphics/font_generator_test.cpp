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
        EXPECT_EQ(std::tuple(glyph.width, glyph.height, glyph.top), std::tuple(pixels, pixels, pixels));
        EXPECT_EQ(glyph.coverage.size(), static_cast<std::size_t>(pixels * pixels));
    }
}

TEST(DrawAAFont, takesTheMeanOfEveryBlockWithHalvesToEven)
{
    InputText surface = surfaceWith({});
    for (std::size_t i = 0; i < surface.pixels.size(); ++i)
        surface.pixels[i] = static_cast<quint8>(i * i * 56 + i / 3 * 8); // many sums are exact halves
    const InkBox box{1, 1, 18, 17};
    const Glyph glyph = DrawAAFont(surface, box);
    ASSERT_EQ(std::pair(glyph.width, glyph.height), std::pair(5, 5));
    for (int i = 0; i < 25; ++i) {
        int sum = 0;
        for (int y = i / 5 * 4; y < std::min(i / 5 * 4 + 4, box.height); ++y) {
            for (int x = i % 5 * 4; x < std::min(i % 5 * 4 + 4, box.width); ++x)
                sum += surface.row(box.top + y)[box.left + x];
        }
        EXPECT_EQ(glyph.coverage[static_cast<std::size_t>(i)], std::nearbyint(sum / 16.0)) << i;
    }
}

TEST(LineAlignment, putsTheHighestGlyphOfBothListsAtTheTop)
{
    RasterFont standard{0, {{1, 4, 9, {}}, DrawAAFont(surfaceWith({}), {})}}, extended{0, {{1, 12, 3, {}}}};
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

// The place in the line of the row behind the glyph.
int bottomOf(const Glyph &glyph) { return glyph.top + glyph.height; }

FontRequest font(int size, const FontStyle &style = {}, const char *face = "Liberation Sans")
{
    return {QString::fromLatin1(face), size, style};
}

FontPair rendered(const FontRequest &request)
{
    platform::NoProgress progress;
    return renderFont(request, ProgramFolder + "fonts/", progress).value_or(FontPair());
}

RasterFont standardOf(const FontRequest &request)
{
    return readFontFile(rendered(request).standard, StandardGlyphs).value_or(RasterFont());
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

TEST(FontRendering, makesFilesThatAddUp)
{
    for (const int size : {5, 12, 165}) {
        const FontPair pair = rendered(font(size, {size % 2 == 0}));
        auto both = readFontFile(pair.standard, StandardGlyphs);
        const auto extended = readFontFile(pair.extended, ExtendedGlyphs);
        ASSERT_TRUE(both && extended);
        EXPECT_EQ(both->lineHeight, extended->lineHeight);
        both->glyphs.insert(both->glyphs.end(), extended->glyphs.begin(), extended->glyphs.end());
        EXPECT_EQ(std::ranges::min(both->glyphs, {}, &Glyph::top).top, 0) << size;
        EXPECT_EQ(bottomOf(std::ranges::max(both->glyphs, {}, &bottomOf)), both->lineHeight) << size;
        for (const Glyph &glyph : both->glyphs)
            EXPECT_GT(std::ranges::max(glyph.coverage), 0);
    }
}

TEST(FontRendering, standsOnOneBaseLineAtAnyScreensSize)
{
    const RasterFont file = standardOf(font(24));
    const Glyph capital = glyphOf(file, u'H');
    EXPECT_NEAR(capital.height, 32 * 0.69, 1.5); // 24 points are 32 pixels; capitals are 0.69 of that
    for (const char16_t letter : {u'A', u'E', u'L', u'X', u'h', u'i', u'm', u'x', u'1', u'7'})
        EXPECT_NEAR(bottomOf(glyphOf(file, letter)), bottomOf(capital), 1) << static_cast<char>(letter);
    EXPECT_EQ(glyphOf(file, u'x').top, glyphOf(file, u'z').top);
    EXPECT_GT(bottomOf(glyphOf(file, u'g')), bottomOf(capital) + 3);
}

// Stems end on a whole row: the last row with ink has as much of it as the one above.
TEST(FontRendering, fitsLevelEdgesToWholeRows)
{
    for (int size = 8; size < 30; ++size) {
        const RasterFont file = standardOf(font(size));
        for (const char16_t letter : {u'H', u'T', u'h', u'l'}) {
            const Glyph &glyph = glyphOf(file, letter);
            const auto most = [&](int row) { return std::ranges::max(glyph.row(row)); };
            const int last = glyph.height - (most(glyph.height - 1) == 0 ? 2 : 1);
            EXPECT_EQ(most(last), most(last - 1)) << static_cast<char>(letter) << size;
        }
    }
}

// The box of a character as it is drawn from one of the shipped files, in 64ths of an enlarged pixel.
QSize boxOf(char16_t character, const FontStyle &file, const FontStyle &wanted)
{
    const FontEngine engine;
    const auto face = OpenFace::open(engine, shippedFace(ProgramFolder + "fonts/", file), font(24, wanted));
    int advance = 0;
    FT_BBox box;
    FT_Outline_Get_CBox(face->outline(character, advance), &box);
    return {static_cast<int>(box.xMax - box.xMin), static_cast<int>(box.yMax - box.yMin)};
}

TEST(OpenFace, makesUpTheStyleThatAFileLacksAndNoMore)
{
    constexpr int size = 32 * 4 * 64; // 24 points
    const FontStyle bold{true}, italic{false, true};
    const QSize plain = boxOf(u'H', {}, {});
    EXPECT_NEAR(boxOf(u'H', {}, bold).width(), plain.width() + size / 24.0, 64);
    EXPECT_EQ(boxOf(u'H', {}, bold).height(), plain.height());
    EXPECT_NEAR(boxOf(u'H', {}, italic).width(), plain.width() + plain.height() * 0.21, 64);
    EXPECT_EQ(boxOf(u'H', bold, bold), boxOf(u'H', bold, {}));
    EXPECT_EQ(boxOf(u'H', italic, italic), boxOf(u'H', italic, {}));
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

TEST(FontRendering, facesThatAreMissingLookLikeTheShippedOneWhateverTheDesktopSets)
{
    const FontPair shipped = rendered(font(14, {true}));
    EXPECT_FALSE(shipped.standard.isEmpty());
    qputenv("FREETYPE_PROPERTIES", "autofitter:no-stem-darkening=0 truetype:interpreter-version=35");
    for (const char *face : {"QL Sans Serif", "MS Sans Serif", "Arial", "No Such Face"}) {
        const FontPair pair = rendered(font(14, {true}, face));
        EXPECT_EQ(pair.standard, shipped.standard) << face;
        EXPECT_EQ(pair.extended, shipped.extended) << face;
    }
    qunsetenv("FREETYPE_PROPERTIES");
}

// Titles, and where the bar was at the end of each.
struct ProgressRecord final : platform::Progress
{
    void begin(const QString &title) override { shown.append(title); }
    void setValue(int percent) override { last = percent; }
    void end() override { shown.last().append(QString::number(last)); }

    QStringList shown;
    int last = 0;
};

struct FontStoreTest : testing::Test
{
    FontStoreTest()
    {
        folders.program = ProgramFolder;
        folders.applicationData = root.path() + '/';
    }
    std::shared_ptr<const ReadyFont> open(const FontRequest &wanted)
    {
        return store.open(wanted, UsualSize, progress);
    }
    QStringList files() const { return QDir(folders.FontFolder()).entryList(QDir::Files, QDir::Name); }

    static constexpr int UsualSize = 9;
    QTemporaryDir root;
    platform::Folders folders;
    ProgressRecord progress;
    test::ScriptedPrompts prompts;
    FontStore store{folders};
    const FontRequest request = font(12, {false, true}, "Arial");
};

TEST_F(FontStoreTest, makesMissingAndDamagedFilesAnewAndHandsOutWholeOnes)
{
    const auto made = open(request);
    EXPECT_EQ(files(), QStringList({"Arial I 12.qlg", "Ext_Arial I 12.qlg"}));
    EXPECT_EQ(progress.shown,
              QStringList({"Generating standard font file...100", "Generating extended font file...100"}));
    EXPECT_EQ(open(request), made);
    EXPECT_FALSE(made->standsInFor(request));
    for (const auto &[path, whole] : {std::pair{store.standardPath(request), made->files.standard},
                                      {store.extendedPath(request), made->files.extended}}) {
        for (const QByteArray &damaged : {QByteArray(), QByteArray("damaged"), whole.chopped(1)}) {
            replaceFile(path, damaged);
            const FontPair files = open(request)->files;
            EXPECT_EQ(files.standard, made->files.standard);
            EXPECT_EQ(files.extended, made->files.extended);
            EXPECT_EQ(readFile(path), whole);
        }
        QFile::remove(path);
        open(request);
        EXPECT_EQ(readFile(path), whole);
    }
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
    const FontStyle bold{true};
    const std::pair<FontRequest, int> cases[] = {
        {font(20, bold, "No Such Face"), 20}, {font(0, bold, "No Such Face"), UsualSize},
        {font(0, bold, "Arial"), UsualSize},  {font(-12, bold), UsualSize},
        {font(180, bold), UsualSize},         {font(32767, bold), UsualSize}};
    for (const auto &[wanted, size] : cases) {
        const auto drawn = open(wanted);
        EXPECT_EQ(drawn->request, (FontRequest{DefaultFace, size, bold})) << wanted.size;
        EXPECT_TRUE(drawn->standsInFor(wanted)) << wanted.size;
        EXPECT_EQ(open(wanted), drawn) << wanted.size;
        EXPECT_FALSE(QFile::exists(store.standardPath(wanted))) << wanted.size;
    }
    EXPECT_FALSE(open(font(12, {}, ""))->standsInFor(font(12, {}, "")));
}

TEST_F(FontStoreTest, needsNoFolderToWriteTo)
{
    QDir().mkpath(folders.GetAppDataFolder());
    replaceFile(folders.FontFolder().chopped(1), "a file in the place of the folder");
    const auto made = open(request);
    EXPECT_EQ(made->request, request);
    EXPECT_EQ(open(request), made);
}

} // namespace
