#include "fuzz/targets.h"
#include "graphics/font_bytes.h"
#include "graphics/font_coding.h"
#include "graphics/font_file.h"

#include <QDir>

#include <gtest/gtest.h>

namespace graphics {

namespace {

using test::bytesOf;
using test::PlainGlyph;

using Row = std::vector<quint8>;

Row operator+(Row a, const Row &b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

QByteArray coded(const Row &row)
{
    std::vector<quint8> bytes;
    encodeRow(row, bytes);
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size()));
}

TEST(RowCoding, writesAndReadsTheStatedBytes)
{
    const std::pair<Row, QByteArray> cases[] = {
        {{}, {}},
        {{1, 128, 254}, bytesOf({1, 128, 254})},
        {Row(10, 0), bytesOf({0, 10})},
        {{0, 0, 255, 255, 255, 7, 0}, bytesOf({0, 2, 255, 3, 7, 0, 1})},
        {{7, 255, 0, 255}, bytesOf({7, 255, 1, 0, 1, 255, 1})},
        {Row(255, 0), bytesOf({0, 255, 0, 0})},
        {Row(256, 255), bytesOf({255, 255, 255, 1})},
        {Row(255, 0) + Row{9}, bytesOf({0, 255, 0, 0, 9})},
        {Row(255, 0) + Row{255, 9}, bytesOf({0, 255, 0, 0, 255, 1, 9})},
        {Row(510, 0), bytesOf({0, 255, 0, 255, 0, 0})},
    };
    for (const auto &[row, bytes] : cases) {
        EXPECT_EQ(coded(row), bytes) << bytes.toHex(' ').toStdString();
        Row read(row.size(), 42);
        qsizetype position = 0;
        EXPECT_TRUE(decodeRow(bytes, position, read));
        EXPECT_EQ(read, row) << bytes.toHex(' ').toStdString();
    }
}

TEST(RowCoding, endsCleanlyOnAnyBytes)
{
    const std::tuple<QByteArray, std::size_t, bool> cases[] = {
        {{}, 1, false},                            // nothing
        {bytesOf({5}), 2, false},                  // cut behind a value
        {bytesOf({0}), 1, false},                  // a run without its count
        {bytesOf({9, 255, 2}), 2, false},          // a run past the row
        {bytesOf({0, 0, 255, 0, 0, 0}), 1, false}, // counts of 0 alone
        {bytesOf({0, 0, 255, 0, 5}), 1, true},     // counts of 0 before a pixel
    };
    for (const auto &[bytes, width, good] : cases) {
        Row row(width);
        qsizetype position = 0;
        EXPECT_EQ(decodeRow(bytes, position, row), good) << bytes.toHex(' ').toStdString();
        EXPECT_LE(position, bytes.size());
    }
}

TEST(FontFile, holdsItsFieldsInTheStatedOrder)
{
    const RasterFont font{7, {{2, 2, 1, {0, 0, 128, 255}}, {0, 0, 5, {}}}};
    const QByteArray expected = bytesOf({5, 0, 0,   0,   2, 0, 0, 0, 7, // lengths of data and row table, line
                                         0, 0, 0,   0,   5, 0, 0, 0,    // offsets
                                         2, 2, 1,   0,   0, 5,          // measures
                                         2, 3,                          // row table
                                         0, 2, 128, 255, 1});           // data
    EXPECT_EQ(FontFile(font).value_or("").toHex(' '), expected.toHex(' '));
    EXPECT_EQ(readFontFile(expected, 2), font);
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

TEST(FontFile, isRefusedWhenDamaged)
{
    const PlainGlyph square{2, 2, 1, {0, 0, 128, 255}};
    const QByteArray good = test::fontFile(2, 7, {{0, square}, {1, square}});
    ASSERT_TRUE(readFontFile(good, 2));
    EXPECT_FALSE(readFontFile(good + 'x', 2));
    EXPECT_FALSE(readFontFile(test::fontFile(3, 7, {{0, square}}), 2));
    for (qsizetype length = 0; length < good.size(); ++length)
        EXPECT_FALSE(readFontFile(good.first(length), 2)) << "cut at " << length;
    constexpr int Measures = 17, Data = 27;
    const std::tuple<const char *, int, int> cases[] = {
        {"data length", 0, 9},
        {"negative data length", 3, 0x80},
        {"row count", 4, 3},
        {"negative row count", 7, 0xFF},
        {"offset behind the data", 13, 100},
        {"offset near the end", 13, 12},
        {"negative offset", 16, 0x80},
        {"a wider glyph", Measures + 3, 200},
        {"a higher glyph", Measures + 1, 3},
        {"a run past its row", Data + 1, 3},
    };
    for (const auto &[what, place, value] : cases) {
        QByteArray bad = good;
        bad[place] = static_cast<char>(value);
        EXPECT_FALSE(readFontFile(bad, 2)) << what;
    }
}

TEST(FontFile, keepsItsPromisesForTheCorpus)
{
    const QDir corpus(QStringLiteral(FUZZ_CORPUS "/fuzz_font"));
    const QStringList names = corpus.entryList(QDir::Files);
    EXPECT_FALSE(names.isEmpty());
    for (const QString &name : names) {
        QFile file(corpus.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_TRUE(fuzz::font(file.readAll())) << name.toStdString();
    }
}

} // namespace

} // namespace graphics
