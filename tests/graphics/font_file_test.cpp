#include "graphics/font_coding.h"
#include "graphics/font_file.h"
#include "graphics/font_name.h"
#include "graphics/glyph_lists.h"

#include <gtest/gtest.h>

namespace graphics {

namespace {

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
        {{text("Arial"), 12, {}}, "Arial  12.qlg"},
        {{text("QL Sans Serif"), 9, {true, true, true, true}}, "QL Sans Serif BISU 9.qlg"},
        {{text("Gill B"), 8, {}}, "Gill B  8.qlg"},
        {{text("Slab 3"), 10, {false, false, true}}, "Slab 3 S 10.qlg"},
    };
    for (const auto &[request, name] : cases) {
        EXPECT_EQ(fontFileName(request), text(name));
        EXPECT_EQ(extendedFontFileName(request), text("Ext_") + text(name));
        EXPECT_EQ(splitFontFileName(text(name)), request) << name;
    }
    for (const QString &face :
         {text("../Arial"), text("a\\b"), text(".hidden"), text("C:Arial"), QString()}) {
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
    const QString extended = QStringLiteral("!\"=?%ÇüéâäàåçêëèïîìÄÅÈæÆôöòûùÿÖÜáíóú#'@^");
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
        {{}, {}},
        {{1, 128, 254}, hex("01 80 fe")},
        {{0, 0, 255, 255, 255, 7, 0}, hex("0002 ff03 07 0001")},
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
    const std::tuple<const char *, int, int> cases[] = {
        {"data length", 0, 4},
        {"negative data length", 3, 0x80},
        {"row count", 4, 3},
        {"negative row count", 7, 0xFF},
        {"offset", 9, 3},
        {"offset behind the data", 10, 1},
        {"negative offset", 12, 0x80},
        {"a wider glyph", 17, 200},
        {"a higher glyph", 18, 3},
        {"a run past its row", 26, 3},
        {"a run that goes nowhere", 29, 0},
    };
    for (const auto &[what, place, value] : cases) {
        QByteArray bad = good;
        bad[place] = static_cast<char>(value);
        EXPECT_FALSE(readFontFile(bad, 2)) << what;
    }
}

TEST(FontFile, takesNothingThatItsFieldsCannotHold)
{
    Row longest{255}; // 127 runs of two bytes
    while (longest.size() < 127)
        longest = longest + Row{0, 255};
    const std::tuple<const char *, int, Glyph, bool> cases[] = {
        {"widest", 1, {254, 1, 0, Row(254, 9)}, true},
        {"too wide", 1, {255, 1, 0, Row(255, 9)}, false},
        {"highest", 254, {1, 254, 0, Row(254, 9)}, true},
        {"too high", 255, {1, 255, 0, Row(255, 9)}, false},
        {"lowest", 255, {1, 1, 254, {9}}, true},
        {"too low", 255, {1, 1, 255, {9}}, false},
        {"line too high", 256, {1, 1, 254, {9}}, false},
        {"longest row", 1, {127, 1, 0, longest}, true},
        {"row too long", 1, {128, 1, 0, longest + Row{0}}, false},
        {"blank", 1, {0, 0, 255, {}}, true},
    };
    for (const auto &[what, line, glyph, fits] : cases)
        EXPECT_EQ(FontFile({line, {glyph}}).has_value(), fits) << what;
}

} // namespace

} // namespace graphics
