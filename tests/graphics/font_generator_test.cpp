#include "graphics/font_bytes.h"
#include "graphics/font_generator.h"
#include "graphics/glyph_lists.h"
#include "support/scripted_prompts.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

namespace graphics {

namespace {

using test::PlainGlyph;
using test::ReadFile;

const QString Faces = QStringLiteral(MORVEL_PROGRAM_DIR "/fonts/");

FontRequest font(int size, const FontStyle &style = {},
                 const QString &face = QStringLiteral("Liberation Sans"))
{
    return {face, size, style};
}

FontPair rendered(const FontRequest &request)
{
    platform::NoProgress progress;
    return renderFont(request, Faces, progress).value_or(FontPair());
}

ReadFile standardOf(const FontRequest &request)
{
    return ReadFile(rendered(request).standard, StandardGlyphs);
}

const PlainGlyph &glyphOf(const ReadFile &file, char16_t character)
{
    return file.glyphs.at(static_cast<std::size_t>(lookUpGlyph(character).index));
}

double ink(const ReadFile &file)
{
    double sum = 0;
    for (const PlainGlyph &glyph : file.glyphs)
        sum = std::accumulate(glyph.pixels.begin(), glyph.pixels.end(), sum);
    return sum / 255;
}

// A full row across the whole glyph, at this place of the line or below; the ends may fall between two
// pixels.
bool hasBar(const PlainGlyph &glyph, int line)
{
    for (int row = 0; row < glyph.height; ++row) {
        const auto begin = glyph.pixels.begin() + static_cast<std::ptrdiff_t>(row) * glyph.width;
        if (glyph.top + row >= line && std::count(begin, begin + glyph.width, 255) >= glyph.width - 2)
            return true;
    }
    return false;
}

TEST(FontRendering, makesFilesThatAddUp)
{
    for (const int size : {5, 9, 12, 24, 60, 120, 165}) {
        const FontPair pair = rendered(font(size, {size % 2 == 0}));
        const ReadFile standard(pair.standard, StandardGlyphs), extended(pair.extended, ExtendedGlyphs);
        EXPECT_EQ(standard.fault + extended.fault, "") << size;
        int top = 255, bottom = 0;
        for (const ReadFile *file : {&standard, &extended}) {
            EXPECT_EQ(file->lineHeight, standard.lineHeight);
            for (const PlainGlyph &glyph : file->glyphs) {
                EXPECT_GT(*std::max_element(glyph.pixels.begin(), glyph.pixels.end()), 0);
                top = std::min(top, glyph.top);
                bottom = std::max(bottom, glyph.top + glyph.height);
            }
        }
        EXPECT_EQ(top, 0) << size;
        EXPECT_EQ(bottom, standard.lineHeight) << size;
    }
}

TEST(FontRendering, standsOnOneBaseLineAtAnyScreensSize)
{
    const ReadFile file = standardOf(font(24));
    const int capital = glyphOf(file, u'H').height;
    EXPECT_NEAR(capital, 32 * 0.69, 1.5); // 24 points are 32 pixels; capitals are 0.69 of that
    const int baseLine = glyphOf(file, u'H').top + capital;
    for (const char16_t letter : u"AEFLTXhiklmnrxz1247") {
        if (letter != 0) {
            EXPECT_NEAR(glyphOf(file, letter).top + glyphOf(file, letter).height, baseLine, 1)
                << static_cast<char>(letter);
        }
    }
    EXPECT_EQ(glyphOf(file, u'x').top, glyphOf(file, u'z').top);
    EXPECT_GT(glyphOf(file, u'g').top + glyphOf(file, u'g').height, baseLine + 3);
    EXPECT_GT(glyphOf(file, u'W').width, glyphOf(file, u'I').width * 3);
}

TEST(FontRendering, stylesChangeWhatTheySay)
{
    const ReadFile plain = standardOf(font(24));
    EXPECT_GT(ink(standardOf(font(24, {true}))), ink(plain) * 1.2);
    const ReadFile italic = standardOf(font(24, {false, true}));
    EXPECT_GT(glyphOf(italic, u'I').width, glyphOf(plain, u'I').width * 3 / 2);
    EXPECT_NEAR(ink(italic), ink(plain), ink(plain) / 10);

    const ReadFile struck = standardOf(font(24, {false, false, true}));
    const ReadFile underlined = standardOf(font(24, {false, false, false, true}));
    for (const char16_t letter : {u'I', u'x', u'W', u'.'}) {
        EXPECT_TRUE(hasBar(glyphOf(struck, letter), 0)) << static_cast<char>(letter);
        const PlainGlyph &capital = glyphOf(underlined, u'H'); // its bar ends it
        const int base = capital.top + glyphOf(plain, u'H').height;
        EXPECT_TRUE(hasBar(glyphOf(underlined, letter), base)) << static_cast<char>(letter);
        EXPECT_FALSE(hasBar(glyphOf(plain, letter), base)) << static_cast<char>(letter);
    }
}

TEST(FontRendering, facesThatAreMissingLookLikeTheShippedOne)
{
    qputenv("FREETYPE_PROPERTIES", "autofitter:no-stem-darkening=0 truetype:interpreter-version=35");
    const FontPair shipped = rendered(font(14, {true}));
    EXPECT_FALSE(shipped.standard.isEmpty());
    for (const char *face : {"QL Sans Serif", "MS Sans Serif", "Arial", "No Such Face"}) {
        const FontPair pair = rendered(font(14, {true}, QString::fromLatin1(face)));
        EXPECT_EQ(pair.standard, shipped.standard) << face;
        EXPECT_EQ(pair.extended, shipped.extended) << face;
    }
    qunsetenv("FREETYPE_PROPERTIES");
    EXPECT_EQ(rendered(font(14, {true})).standard, shipped.standard);
}

class ProgressRecord final : public platform::Progress
{
public:
    void begin(const QString &title) override
    {
        titles.append(title);
        m_last = 0;
    }
    void setValue(int percent) override
    {
        EXPECT_GE(percent, m_last);
        m_last = percent;
    }
    void end() override { ends.append(m_last); }

    QStringList titles;
    QList<int> ends;

private:
    int m_last = 0;
};

struct Generation
{
    QTemporaryDir root;
    FontFolders folders{root.path() + QStringLiteral("/FontFiles/"), Faces};
    ProgressRecord progress;
    test::ScriptedPrompts prompts;

    bool generate(const FontRequest &request) { return GenerateFont(request, folders, progress, prompts); }
    QStringList files() const { return QDir(folders.fontFiles).entryList(QDir::Files, QDir::Name); }
};

TEST(GenerateFont, writesBothFilesAndShowsHowFarItIs)
{
    Generation world;
    EXPECT_TRUE(world.generate(font(12, {false, true}, QStringLiteral("Arial"))));
    EXPECT_EQ(world.files(),
              QStringList({QStringLiteral("Arial I 12.qlg"), QStringLiteral("Ext_Arial I 12.qlg")}));
    EXPECT_EQ(world.progress.titles, QStringList({QStringLiteral("Generating standard font file..."),
                                                  QStringLiteral("Generating extended font file...")}));
    EXPECT_EQ(world.progress.ends, QList<int>({100, 100}));
}

TEST(GenerateFont, saysWhyItWritesNothing)
{
    const QString missing = QStringLiteral("Please selct the font and font size");
    const QString tooLarge = QStringLiteral("Font size too big to process\nReduce the size and try again");
    const std::pair<FontRequest, QString> cases[] = {
        {font(12, {}, {}), missing}, {font(0), missing},      {font(-12), missing},
        {font(180), tooLarge},       {font(32767), tooLarge},
    };
    for (const auto &[request, message] : cases) {
        Generation world;
        world.prompts.expectMessage(message);
        EXPECT_FALSE(world.generate(request)) << request.size;
        EXPECT_TRUE(world.files().isEmpty()) << request.size;
    }
}

} // namespace

} // namespace graphics
