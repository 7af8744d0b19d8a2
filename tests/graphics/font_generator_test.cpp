#include "common/run_time_error.h"
#include "graphics/font_store.h"
#include "graphics/glyph_lists.h"
#include "platform/file_replace.h"
#include "support/scripted_prompts.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

namespace graphics {

namespace {

using platform::readFile;
using platform::replaceFile;

const QString ProgramFolder = QStringLiteral(MORVEL_PROGRAM_DIR "/");

// A font file as the recorder reads it: byte by byte and by the row table, with no help from the code under
// test. `fault` says what does not add up.
struct ReadFile
{
    ReadFile(const QByteArray &file, int count) : m_file(file), lineHeight(byte(8))
    {
        const int table = 9 + 7 * count, data = table + number(4);
        int row = table, at = data;
        for (int i = 0; i < count; ++i) {
            const int measures = 9 + 4 * count + 3 * i;
            Glyph glyph{byte(measures), byte(measures + 1), byte(measures + 2), {}};
            if (number(9 + 4 * i) != at - data)
                fault += "offset ";
            for (int y = 0; y < glyph.height; at += byte(row), ++y, ++row)
                appendRow(at, byte(row), glyph);
            glyphs.push_back(glyph);
        }
        if (row != data || at != data + number(0) || at != file.size())
            fault += "lengths";
    }

    const Glyph &glyph(char16_t code) const
    {
        return glyphs.at(static_cast<std::size_t>(lookUpGlyph(code).index));
    }
    // The place in the line of the row behind the glyph.
    int bottom(char16_t code) const { return glyph(code).top + glyph(code).height; }
    double ink() const
    {
        return std::accumulate(glyphs.begin(), glyphs.end(), 0.0, [](double sum, const Glyph &glyph) {
            return std::accumulate(glyph.coverage.begin(), glyph.coverage.end(), sum);
        });
    }

private:
    int byte(int at) const { return static_cast<quint8>(m_file.at(at)); }
    int number(int at) const
    {
        return byte(at) | byte(at + 1) << 8 | byte(at + 2) << 16 | byte(at + 3) << 24;
    }
    void appendRow(int at, int length, Glyph &glyph)
    {
        const std::size_t before = glyph.coverage.size();
        for (const int end = at + length; at < end; ++at) {
            const auto value = static_cast<quint8>(byte(at));
            const int count = value == 0 || value == 255 ? byte(++at) : 1;
            glyph.coverage.insert(glyph.coverage.end(), static_cast<std::size_t>(count), value);
        }
        if (glyph.coverage.size() - before != static_cast<std::size_t>(glyph.width))
            fault += "row ";
    }

    QByteArray m_file;

public:
    int lineHeight;
    std::vector<Glyph> glyphs;
    std::string fault;
};

FontRequest font(int size, const FontStyle &style = {}, const char *face = "Liberation Sans")
{
    return {QString::fromLatin1(face), size, style};
}

FontPair rendered(const FontRequest &request)
{
    platform::NoProgress progress;
    return renderFont(request, ProgramFolder + QStringLiteral("fonts/"), progress).value_or(FontPair());
}

ReadFile standardOf(const FontRequest &request) { return {rendered(request).standard, StandardGlyphs}; }

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
        const ReadFile standard(pair.standard, StandardGlyphs), extended(pair.extended, ExtendedGlyphs);
        EXPECT_EQ(standard.fault + extended.fault, "") << size;
        int top = 255, bottom = 0;
        for (const ReadFile *file : {&standard, &extended}) {
            EXPECT_EQ(file->lineHeight, standard.lineHeight);
            for (const Glyph &glyph : file->glyphs) {
                EXPECT_GT(std::ranges::max(glyph.coverage), 0);
                top = std::min(top, glyph.top);
                bottom = std::max(bottom, glyph.top + glyph.height);
            }
        }
        EXPECT_TRUE(top == 0 && bottom == standard.lineHeight) << size;
    }
}

TEST(FontRendering, standsOnOneBaseLineAtAnyScreensSize)
{
    const ReadFile file = standardOf(font(24));
    EXPECT_NEAR(file.glyph(u'H').height, 32 * 0.69,
                1.5); // 24 points are 32 pixels; capitals are 0.69 of that
    for (const char16_t letter :
         {u'A', u'E', u'L', u'T', u'X', u'h', u'i', u'k', u'm', u'x', u'z', u'1', u'7'})
        EXPECT_NEAR(file.bottom(letter), file.bottom(u'H'), 1) << static_cast<char>(letter);
    EXPECT_EQ(file.glyph(u'x').top, file.glyph(u'z').top);
    EXPECT_GT(file.bottom(u'g'), file.bottom(u'H') + 3);
    EXPECT_GT(file.glyph(u'W').width, file.glyph(u'I').width * 3);
}

TEST(FontRendering, stylesChangeWhatTheySay)
{
    const ReadFile plain = standardOf(font(24)), italic = standardOf(font(24, {false, true}));
    EXPECT_GT(standardOf(font(24, {true})).ink(), plain.ink() * 1.2);
    EXPECT_GT(italic.glyph(u'I').width, plain.glyph(u'I').width * 3 / 2);
    EXPECT_NEAR(italic.ink(), plain.ink(), plain.ink() / 10);

    const ReadFile struck = standardOf(font(24, {false, false, true}));
    const ReadFile underlined = standardOf(font(24, {false, false, false, true}));
    const int base = underlined.glyph(u'H').top + plain.glyph(u'H').height;
    for (const char16_t letter : {u'I', u'x', u'W', u'.'}) {
        EXPECT_TRUE(hasBar(struck.glyph(letter), 0)) << static_cast<char>(letter);
        EXPECT_TRUE(hasBar(underlined.glyph(letter), base)) << static_cast<char>(letter);
        EXPECT_FALSE(hasBar(plain.glyph(letter), base)) << static_cast<char>(letter);
    }
}

TEST(FontRendering, facesThatAreMissingLookLikeTheShippedOneWhateverTheDesktopSets)
{
    const FontPair shipped = rendered(font(14, {true}));
    EXPECT_FALSE(shipped.standard.isEmpty());
    qputenv("FREETYPE_PROPERTIES", "autofitter:no-stem-darkening=0 truetype:interpreter-version=35");
    for (const char *face : {"QL Sans Serif", "MS Sans Serif", "Arial", "No Such Face"}) {
        const FontPair pair = rendered(font(14, {true}, face));
        EXPECT_TRUE(pair.standard == shipped.standard && pair.extended == shipped.extended) << face;
    }
    qunsetenv("FREETYPE_PROPERTIES");
}

// What was shown, as "title: last percent".
class ProgressRecord final : public platform::Progress
{
public:
    void begin(const QString &title) override { m_title = title; }
    void setValue(int percent) override { m_last = percent; }
    void end() override { shown.append(QStringLiteral("%1: %2").arg(m_title).arg(m_last)); }

    QStringList shown;

private:
    QString m_title;
    int m_last = 0;
};

struct FontStoreTest : testing::Test
{
    FontStoreTest()
    {
        folders.program = ProgramFolder;
        folders.applicationData = root.path() + QLatin1Char('/');
    }
    bool ensure(const FontRequest &wanted) { return store.ensure(wanted, progress, prompts); }
    QStringList files() const { return QDir(folders.FontFolder()).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir root;
    platform::Folders folders;
    ProgressRecord progress;
    test::ScriptedPrompts prompts;
    FontStore store{folders};
    const FontRequest request = font(12, {false, true}, "Arial");
};

TEST_F(FontStoreTest, makesOnlyWhatIsMissing)
{
    EXPECT_THROW(store.open(request), common::RunTimeError);
    ASSERT_TRUE(ensure(request));
    EXPECT_EQ(files(), QStringList({QStringLiteral("Arial I 12.qlg"), QStringLiteral("Ext_Arial I 12.qlg")}));
    EXPECT_EQ(progress.shown, QStringList({QStringLiteral("Generating standard font file...: 100"),
                                           QStringLiteral("Generating extended font file...: 100")}));
    replaceFile(store.standardPath(request), "kept");
    EXPECT_TRUE(ensure(request));
    EXPECT_EQ(readFile(store.standardPath(request)), "kept");
    QFile::remove(store.extendedPath(request));
    EXPECT_TRUE(ensure(request));
    EXPECT_NE(readFile(store.standardPath(request)), "kept");
}

TEST_F(FontStoreTest, saysWhyItMakesNothing)
{
    const QString missing = QStringLiteral("Please selct the font and font size");
    const QString tooLarge = QStringLiteral("Font size too big to process\nReduce the size and try again");
    const std::pair<FontRequest, QString> cases[] = {{font(12, {}, ""), missing},
                                                     {font(0), missing},
                                                     {font(-12), missing},
                                                     {font(180), tooLarge},
                                                     {font(32767), tooLarge}};
    for (const auto &[wanted, message] : cases) {
        prompts.expectMessage(message);
        EXPECT_FALSE(ensure(wanted)) << wanted.size;
        EXPECT_TRUE(files().isEmpty()) << wanted.size;
    }
}

TEST_F(FontStoreTest, keepsADecodedFontUntilOneOfItsFilesChanges)
{
    ASSERT_TRUE(ensure(request) && ensure(font(20)));
    const auto first = store.open(request);
    EXPECT_EQ(store.open(request), first);
    const auto larger = store.open(font(20))->glyph(u'!')->coverage;

    replaceFile(store.extendedPath(request), readFile(store.extendedPath(font(20))));
    EXPECT_EQ(store.open(request)->glyph(u'!')->coverage, larger);
    EXPECT_EQ(store.open(request)->glyph(u'H')->coverage, first->glyph(u'H')->coverage);
    ASSERT_TRUE(store.generate(request, progress, prompts));
    EXPECT_EQ(store.open(request)->glyph(u'!')->coverage, first->glyph(u'!')->coverage);

    const QString path = store.standardPath(request);
    const QByteArray whole = readFile(path);
    replaceFile(path, whole.chopped(1));
    EXPECT_THROW(store.open(request), common::RunTimeError);
    replaceFile(path, whole);
    EXPECT_NO_THROW(store.open(request));
    QFile::remove(path);
    EXPECT_THROW(store.open(request), common::RunTimeError);
}

} // namespace

} // namespace graphics
