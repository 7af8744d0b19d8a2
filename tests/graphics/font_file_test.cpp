#include "common/colour.h"
#include "graphics/font_coding.h"
#include "graphics/font_file.h"
#include "graphics/font_name.h"
#include "graphics/glyph_lists.h"
#include "graphics/modDrawFont.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <numeric>

namespace {

using namespace graphics;

using Row = std::vector<quint8>;

Row operator+(Row a, const Row &b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

QString text(const char *latin) { return QString::fromLatin1(latin); }

QByteArray hex(const char *digits) { return QByteArray::fromHex(digits); }

TEST(FontName, isTakenApartIntoWhatItWasBuiltFrom)
{
    const std::pair<FontRequest, const char *> cases[] = {
        {{text("Gill B"), 12, {}}, "Gill B  12.qlg"},
        {{text("QL Sans Serif"), 9, {true, true, true, true}}, "QL Sans Serif BISU 9.qlg"},
        {{text("Gill B 3"), 8, {false, false, true}}, "Gill B 3 S 8.qlg"},
        {{text("Gill"), 0, {true}}, "Gill B 0.qlg"},
    };
    for (const auto &[request, name] : cases) {
        EXPECT_EQ(fontFileName(request), text(name));
        EXPECT_EQ(extendedFontFileName(request), text("Ext_") + text(name));
        EXPECT_EQ(splitFontFileName(text(name)), request) << name;
    }
    EXPECT_EQ(fontFileName({text("Nimbus Sans [urw]"), 10, {true}}), text("Nimbus Sans B 10.qlg"));
    for (const QString &face :
         {text("../Arial"), text("a\\b"), text(".hidden"), text("C:Arial"), text("[urw]"), QString()}) {
        EXPECT_EQ(fontFileName({face, 10, {}}), text("QL Sans Serif  10.qlg")) << face.toStdString();
        EXPECT_EQ(splitFontFileName(face + text(" B 10.qlg")).face, DefaultFace) << face.toStdString();
    }
}

TEST(FontName, isReadAlsoWhenItsFieldHasCutItOff)
{
    const std::pair<QString, FontRequest> cases[] = {
        {text("Times New Roman Book BI 12.ql"), {text("Times New Roman Book"), 12, {true, true}}},
        {text("Times New Roman Booklet BI 12"), {text("Times New Roman Booklet"), 12, {true, true}}},
        {text("Times New Roman Condensed  "), {text("Times New Roman Condensed"), 0, {}}},
        {text("Times New Roman Condensed B "), {text("Times New Roman Condensed"), 0, {true}}},
        {text("Times New Roman Outlined IU 1"),
         {text("Times New Roman Outlined"), 0, {false, true, false, true}}},
        {text("Arial  9.q"), {text("Arial"), 9, {}}},
        {text("Arial B 12.qlg") + QChar(0) + text("rest 9.qlg"), {text("Arial"), 12, {true}}},
        {text("Arial X 12.qlg"), {text("Arial X"), 12, {}}},
        {text("12.qlg"), {text("QL Sans Serif"), 12, {}}},
        {text("Arial  99999999.qlg"), {text("Arial  99999999"), 0, {}}},
    };
    for (const auto &[name, request] : cases)
        EXPECT_EQ(splitFontFileName(name), request) << name.toStdString();
}

TEST(GlyphLookUp, findsEveryCharacterOfBothListsAndNoOther)
{
    const QString standard =
        text("()*+,-./0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ[]abcdefghijklmnopqrstuvwxyz:&<>");
    const QString extended = "!\"=?%ÇüéâäàåçêëèïîìÄÅÈæÆôöòûùÿÖÜáíóú#'@^";
    for (int code = 0; code < 0x10000; ++code) {
        const auto common = static_cast<int>(standard.indexOf(QChar(code)));
        const auto further = static_cast<int>(extended.indexOf(QChar(code)));
        EXPECT_EQ(lookUpGlyph(static_cast<char16_t>(code)),
                  (GlyphPlace{std::max(common, further), further >= 0}));
    }
}

TEST(RowCoding, writesAndReadsTheStatedBytes)
{
    const std::pair<Row, QByteArray> cases[] = {
        {{0, 0, 255, 255, 255, 1, 128, 254, 0}, hex("0002 ff03 01 80 fe 0001")},
        {Row(255, 0), hex("00ff 0000")},
        {Row(256, 255), hex("ffff ff01")},
        {Row(255, 0) + Row{9}, hex("00ff 0000 09")},
        {Row(255, 0) + Row{255, 9}, hex("00ff 0000 ff01 09")},
        {Row(510, 0), hex("00ff 00ff 0000")},
    };
    for (const auto &[row, bytes] : cases) {
        Row coded, read(row.size(), 42);
        encodeRow(row, coded);
        EXPECT_EQ(coded, Row(bytes.begin(), bytes.end()));
        qsizetype position = 0;
        EXPECT_TRUE(decodeRow(bytes, position, read));
        EXPECT_EQ(read, row);
    }
}

TEST(FontFile, holdsItsFieldsInTheStatedOrderAndIsRefusedWhenDamaged)
{
    const RasterFont font{7, {{2, 2, 1, {0, 0, 128, 255}}, {0, 0, 5, {}}}};
    const QByteArray good = hex("05000000 02000000 07" // lengths of data and row table, line height
                                "00000000 05000000"    // offsets
                                "020201 000005"        // measures
                                "0203"                 // row table
                                "0002 80 ff01");       // data
    EXPECT_EQ(FontFile(font).value_or("").toHex(' '), good.toHex(' '));
    EXPECT_EQ(readFontFile(good, 2), font);
    EXPECT_FALSE(readFontFile(good + 'x', 2));
    for (qsizetype length = 0; length < good.size(); ++length)
        EXPECT_FALSE(readFontFile(good.first(length), 2)) << "cut at " << length;
    // Lengths, counts and offsets too small, too large and negative; larger glyphs; a wrong row length; wrong
    // runs.
    const std::pair<int, int> damages[] = {{0, 4},     {3, 0x80}, {4, 3},  {7, 0xFF}, {9, 3},  {10, 1},
                                           {12, 0x80}, {17, 200}, {18, 3}, {23, 3},   {26, 3}, {29, 0}};
    for (const auto &[place, value] : damages) {
        QByteArray bad = good;
        bad[place] = static_cast<char>(value);
        EXPECT_FALSE(readFontFile(bad, 2)) << place;
    }
}

TEST(FontFile, takesNothingThatItsFieldsCannotHold)
{
    Row longest{255}; // 127 runs of two bytes
    while (longest.size() < 127)
        longest = longest + Row{0, 255};
    const std::tuple<const char *, int, Glyph, bool> cases[] = {
        {"the largest", 255, {254, 254, 254, Row(254 * 254, 9)}, true},
        {"too wide", 1, {255, 1, 0, Row(255, 9)}, false},
        {"too high", 255, {1, 255, 0, Row(255, 9)}, false},
        {"too low", 255, {1, 1, 255, {9}}, false},
        {"line too high", 256, {1, 1, 254, {9}}, false},
        {"longest row", 1, {127, 1, 0, longest}, true},
        {"row too long", 1, {128, 1, 0, longest + Row{0}}, false},
        {"blank", 1, {0, 0, 255, {}}, true},
    };
    for (const auto &[what, line, glyph, fits] : cases)
        EXPECT_EQ(FontFile({line, {glyph}}).has_value(), fits) << what;
}

constexpr QRgb Ground = 0xFF204060;
constexpr int LineHeight = 9;

QByteArray fileOf(int glyphCount, int lineHeight, const std::map<char16_t, Glyph> &glyphs)
{
    RasterFont font{lineHeight, std::vector<Glyph>(static_cast<std::size_t>(glyphCount))};
    for (const auto &[character, glyph] : glyphs)
        font.glyphs.at(static_cast<std::size_t>(lookUpGlyph(character).index)) = glyph;
    return *FontFile(font);
}

// "A" is 2 x 2, one row below the top; "j" is 5 wide and blank; "!" is one pixel in the other file; "B" is a
// strip of all coverages from 1 to 254.
TextFont font()
{
    Glyph strip{254, 1, 0, std::vector<quint8>(254)};
    std::iota(strip.coverage.begin(), strip.coverage.end(), quint8{1});
    const Glyph a{2, 2, 1, {255, 0, 128, 255}}, j{5, 1, 0, {0, 0, 0, 0, 0}}, mark{1, 1, 4, {255}};
    return *TextFont::fromFiles(fileOf(StandardGlyphs, LineHeight, {{u'A', a}, {u'B', strip}, {u'j', j}}),
                                fileOf(ExtendedGlyphs, LineHeight + 3, {{u'!', mark}}));
}

QImage surface(int width, int height, QRgb colour = Ground)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

// Where the image differs from the ground, as "x,y x,y ..." row by row.
std::string changedPixels(const QImage &image)
{
    std::string places;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const int x = i % image.width(), y = i / image.width();
        if (image.pixel(x, y) != Ground)
            places += std::to_string(x) + "," + std::to_string(y) + " ";
    }
    return places;
}

TEST(DrawText, movesThePenByWidthAndTwoAndDrawsWhatLiesOnTheSurface)
{
    const std::tuple<const char *, QPoint, int, const char *> cases[] = {
        {"", {10, 3}, 0, ""},
        {"AA", {10, 3}, 8, "10,4 14,4 10,5 11,5 14,5 15,5 "},
        {"A!", {10, 3}, 7, "10,4 10,5 11,5 14,7 "},
        {" !", {10, 3}, 10, "17,7 "}, // a blank moves as far as "j"
        {"~!", {10, 3}, 10, "17,7 "},
        {"C!", {10, 3}, 5, "12,7 "}, // an empty glyph
        {"A", {-1, -1}, 4, "0,1 "},
        {"A", {0, -2}, 4, "0,0 1,0 "},
        {"A", {59, 17}, 4, "59,18 59,19 "},
        {"A", {58, 18}, 4, "58,19 "},
        {"A", {-2000000000, -2000000000}, 4, ""},
        {"A", {2000000000, 2000000000}, 4, ""},
    };
    for (const auto &[text, place, advance, pixels] : cases) {
        QImage image = surface(60, 20);
        const TextExtent extent{place.x() + advance, LineHeight};
        EXPECT_EQ(drawText(font(), text, {place, 0xFFFFFF}, image), extent) << text;
        EXPECT_EQ(changedPixels(image), pixels) << text << " at " << place.x() << ", " << place.y();
        EXPECT_EQ(font().penBehind(QString::fromLatin1(text), place.x()), extent.width) << text;
    }
}

TEST(DrawText, mixesEveryComponentByCoverageAndOpacity)
{
    for (const int opacity : {0, 1, 128, 254, 255}) {
        for (const QColor below : {QColor(0, 0, 0), QColor(255, 255, 255), QColor(200, 5, 1)}) {
            for (const QColor ink : {QColor(0, 0, 0), QColor(255, 255, 255), QColor(48, 32, 16)}) {
                QImage image = surface(254, 1, below.rgb());
                const quint32 packed = common::fromPixel(ink.rgb());
                drawText(font(), "B", {{}, packed, static_cast<quint8>(opacity)}, image);
                for (int x = 0; x < 254; ++x) {
                    const auto mixed = [a = (x + 1) / 255.0 * (opacity / 255.0)](int background, int text) {
                        return static_cast<int>(std::nearbyint((1 - a) * background + a * text));
                    };
                    const QRgb wanted = qRgb(mixed(below.red(), ink.red()), mixed(below.green(), ink.green()),
                                             mixed(below.blue(), ink.blue()));
                    ASSERT_EQ(image.pixel(x, 0), wanted) << "coverage " << x + 1 << ", opacity " << opacity;
                }
            }
        }
    }
}

TEST(DrawText, fillsTheLineFromTheBackgroundUpToTheRightEdge)
{
    QImage background = surface(760, 30);
    for (int i = 0; i < 760 * 30; ++i)
        background.setPixel(i % 760, i / 760, 0xFF000000 | static_cast<QRgb>(i));
    for (const int left : {700, 730}) { // behind the edge nothing is filled
        QImage image = surface(760, 30);
        drawText(font(), "!", {{left, 12}, 0xFFFFFF, 255, &background}, image);
        for (int i = 0; i < 760 * 30; ++i) {
            const int x = i % 760, y = i / 760;
            const bool filled = x >= left && x < 720 && y >= 12 && y < 12 + LineHeight;
            const QRgb below = filled ? background.pixel(x, y) : Ground;
            ASSERT_EQ(image.pixel(x, y), x == left && y == 16 ? 0xFFFFFFFF : below) << x << ", " << y;
        }
    }
}

} // namespace
