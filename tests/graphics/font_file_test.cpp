#include "graphics/font_file.h"
#include "graphics/font_name.h"
#include "graphics/glyph_lists.h"
#include "graphics/modDrawFont.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace {

using namespace graphics;

using Row = std::vector<quint8>;

QString text(const char *latin) { return QString::fromLatin1(latin); }

QByteArray hex(const char *digits) { return QByteArray::fromHex(digits); }

TEST(FontName, isTakenApartAlsoWhenItsFieldHasCutItOff)
{
    const std::tuple<QString, const char *, int, FontStyle> cases[] = {
        {text("Gill B  12.qlg"), "Gill B", 12, {}},
        {text("QL Sans Serif BISU 9.qlg"), "QL Sans Serif", 9, {true, true, true, true}},
        {text("Gill B 0.qlg"), "Gill", 0, {true}},
        {text("Times New Roman Book BI 12.ql"), "Times New Roman Book", 12, {true, true}},
        {text("Times New Roman Condensed B "), "Times New Roman Condensed", 0, {true}},
        {text("Times New Roman Outlined IU 1"), "Times New Roman Outlined", 0, {false, true, false, true}},
        {text("Arial B 12.qlg") + QChar(0) + text("rest 9.qlg"), "Arial", 12, {true}},
        {text("Arial X  12.qlg"), "Arial X", 12, {}},
        {text("Arial  99999999.qlg"), "Arial  99999999", 0, {}},
    };
    for (const auto &[name, face, size, style] : cases) {
        const FontRequest request{text(face), size, style};
        EXPECT_EQ(splitFontFileName(name), request) << name.toStdString();
        if (name.endsWith(".qlg") && size > 0) {
            EXPECT_EQ(extendedFontFileName(request), "Ext_" + name.section(QChar(0), 0, 0));
        }
    }
    for (const char *face : {"../Arial", "a\\b", ".hidden", "C:Arial", "[urw]", ""}) {
        EXPECT_EQ(fontFileName({text(face), 10, {}}), text("QL Sans Serif  10.qlg")) << face;
        EXPECT_EQ(splitFontFileName(text(face) + text(" B 10.qlg")).face, DefaultFace) << face;
    }
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
    const QByteArray damaged = hex("0004 0380 0403 07ff 0903 0a01 0c80 11c8 1203 1703 1a03 1d00");
    for (qsizetype i = 0; i < damaged.size(); i += 2) { // place and value
        QByteArray bad = good;
        bad[damaged[i]] = damaged[i + 1];
        EXPECT_FALSE(readFontFile(bad, 2)) << int{damaged[i]};
    }
}

TEST(FontFile, takesNothingThatItsFieldsCannotHold)
{
    Row tooLong(128); // each run has two bytes, and one byte tells a row's length
    for (std::size_t i = 0; i < tooLong.size(); i += 2)
        tooLong[i] = 255;
    const std::tuple<const char *, int, Glyph, bool> cases[] = {
        {"the largest", 255, {254, 254, 254, Row(254 * 254, 9)}, true},
        {"too wide", 1, {255, 1, 0, Row(255, 9)}, false},
        {"too low", 255, {1, 1, 255, {9}}, false},
        {"line too high", 256, {1, 1, 254, {9}}, false},
        {"longest row", 1, {127, 1, 0, Row(tooLong.begin(), tooLong.end() - 1)}, true},
        {"row too long", 1, {128, 1, 0, tooLong}, false},
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

// "A" is 2 x 2, one row below the top; "j" is 5 wide and blank; "!" is one pixel in the other file.
TextFont font()
{
    const Glyph a{2, 2, 1, {255, 0, 128, 255}}, j{5, 1, 0, {0, 0, 0, 0, 0}}, mark{1, 1, 4, {255}};
    return *TextFont::fromFiles(fileOf(StandardGlyphs, LineHeight, {{u'A', a}, {u'j', j}}),
                                fileOf(ExtendedGlyphs, LineHeight + 3, {{u'!', mark}}));
}

QImage surface(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Ground);
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
        {"AA", {10, 3}, 8, "10,4 14,4 10,5 11,5 14,5 15,5 "},
        {"A!", {10, 3}, 7, "10,4 10,5 11,5 14,7 "},
        {" !", {10, 3}, 10, "17,7 "}, // a blank moves as far as "j"
        {"C!", {10, 3}, 5, "12,7 "},  // an empty glyph
        {"A", {-1, -1}, 4, "0,1 "},
        {"A", {0, -2}, 4, "0,0 1,0 "},
        {"A", {59, 17}, 4, "59,18 59,19 "},
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

TEST(DrawText, mixesByCoverageAndOpacity)
{
    QImage image = surface(60, 20);
    drawText(font(), "A", {{10, 3}, 0xFFFFFF, 128}, image);
    EXPECT_EQ(image.pixel(10, 4), qRgb(144, 160, 176)); // 128/255 of white
    EXPECT_EQ(image.pixel(10, 5), qRgb(88, 112, 136));  // 128/255 of that share
    EXPECT_EQ(image.pixel(11, 4), Ground);
}

} // namespace
