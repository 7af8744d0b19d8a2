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

Row repeated(std::size_t count, quint8 value) { return Row(count, value); }

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
        {{128}, bytesOf({128})},
        {{1, 254, 1}, bytesOf({1, 254, 1})},
        {{0}, bytesOf({0, 1})},
        {repeated(10, 0), bytesOf({0, 10})},
        {{0, 0, 255, 255, 255, 7, 0}, bytesOf({0, 2, 255, 3, 7, 0, 1})},
        {{7, 255, 0, 255}, bytesOf({7, 255, 1, 0, 1, 255, 1})},
        {repeated(254, 0), bytesOf({0, 254})},
        {repeated(255, 0), bytesOf({0, 255, 0, 0})},
        {repeated(255, 255), bytesOf({255, 255, 255, 0})},
        {repeated(256, 0), bytesOf({0, 255, 0, 1})},
        {repeated(255, 0) + Row{9}, bytesOf({0, 255, 0, 0, 9})},
        {repeated(255, 0) + Row{255, 9}, bytesOf({0, 255, 0, 0, 255, 1, 9})},
        {repeated(510, 0) + Row{9}, bytesOf({0, 255, 0, 255, 0, 0, 9})},
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
    struct Case
    {
        const char *what;
        QByteArray bytes;
        std::size_t width;
        bool good;
    };
    const Case cases[] = {
        {"nothing", {}, 1, false},
        {"cut behind a value", bytesOf({5}), 2, false},
        {"a run without its count", bytesOf({0}), 1, false},
        {"a run past the row", bytesOf({0, 3}), 2, false},
        {"a run past the rest of the row", bytesOf({9, 255, 255}), 255, false},
        {"counts of 0 alone", bytesOf({0, 0, 255, 0, 0, 0}), 1, false},
        {"counts of 0 before a pixel", bytesOf({0, 0, 255, 0, 5}), 1, true},
        {"bytes of the next row", bytesOf({0, 2, 5}), 2, true},
    };
    for (const Case &sample : cases) {
        Row row(sample.width);
        qsizetype position = 0;
        EXPECT_EQ(decodeRow(sample.bytes, position, row), sample.good) << sample.what;
        EXPECT_LE(position, sample.bytes.size()) << sample.what;
    }
}

// Two glyphs: 2 x 2 pixels below one empty row, and a blank one.
RasterFont smallFont() { return {7, {{2, 2, 1, {0, 0, 128, 255}}, {0, 0, 5, {}}}}; }

TEST(FontFile, holdsItsFieldsInTheStatedOrder)
{
    const QByteArray expected = bytesOf({5, 0, 0,   0,   2, 0, 0, 0, 7, // lengths of data and row table, line
                                         0, 0, 0,   0,   5, 0, 0, 0,    // offsets
                                         2, 2, 1,   0,   0, 5,          // measures
                                         2, 3,                          // row table
                                         0, 2, 128, 255, 1});           // data
    const auto file = FontFile(smallFont());
    ASSERT_TRUE(file);
    EXPECT_EQ(file->toHex(' '), expected.toHex(' '));
    EXPECT_EQ(readFontFile(expected, 2), smallFont());
}

TEST(FontFile, takesNothingThatItsFieldsCannotHold)
{
    Row alternating;
    for (int i = 0; i < 64; ++i)
        alternating = alternating + Row{0, 255};
    const Row longest = Row(alternating.begin() + 1, alternating.end()); // 127 runs of two bytes
    struct Case
    {
        const char *what;
        Glyph glyph;
        int line;
        bool fits;
    };
    const Case cases[] = {
        {"widest", {254, 1, 0, repeated(254, 9)}, 1, true},
        {"too wide", {255, 1, 0, repeated(255, 9)}, 1, false},
        {"highest", {1, 254, 0, repeated(254, 9)}, 254, true},
        {"too high", {1, 255, 0, repeated(255, 9)}, 255, false},
        {"lowest", {1, 1, 254, {9}}, 255, true},
        {"too low", {1, 1, 255, {9}}, 255, false},
        {"line too high", {1, 1, 254, {9}}, 256, false},
        {"longest row", {127, 1, 0, longest}, 1, true},
        {"row too long", {128, 1, 0, alternating}, 1, false},
        {"blank", {0, 0, 255, {}}, 1, true},
    };
    for (const Case &sample : cases)
        EXPECT_EQ(FontFile({sample.line, {sample.glyph}}).has_value(), sample.fits) << sample.what;
}

// A good file of two glyphs with one field changed.
QByteArray with(QByteArray file, qsizetype place, int value)
{
    file[place] = static_cast<char>(value);
    return file;
}

TEST(FontFile, isRefusedWhenDamaged)
{
    const PlainGlyph square{2, 2, 1, {0, 0, 128, 255}, 0};
    const QByteArray good = test::fontFile(2, 7, {{0, square}, {1, square}});
    ASSERT_TRUE(readFontFile(good, 2));
    for (qsizetype length = 0; length < good.size(); ++length)
        EXPECT_FALSE(readFontFile(good.first(length), 2)) << "cut at " << length;
    constexpr int Measures = 17, Data = 27;
    const std::pair<const char *, QByteArray> cases[] = {
        {"a byte too many", good + 'x'},
        {"data length", with(good, 0, 9)},
        {"negative data length", with(good, 3, 0x80)},
        {"row count", with(good, 4, 3)},
        {"negative row count", with(good, 7, 0xFF)},
        {"offset behind the data", with(good, 13, 100)},
        {"offset at the very end", with(good, 13, 14)},
        {"offset near the end", with(good, 13, 12)},
        {"negative offset", with(good, 16, 0x80)},
        {"a wider glyph", with(good, Measures + 3, 200)},
        {"a higher glyph", with(good, Measures + 1, 3)},
        {"a run past its row", with(good, Data + 1, 3)},
        {"another number of glyphs", test::fontFile(3, 7, {{0, square}})},
    };
    for (const auto &[what, file] : cases)
        EXPECT_FALSE(readFontFile(file, 2)) << what;
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
