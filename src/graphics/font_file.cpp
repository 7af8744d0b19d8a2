#include "graphics/font_file.h"

#include "common/bytes.h"
#include "graphics/font_coding.h"

#include <algorithm>

namespace graphics {

namespace {

constexpr int LargestMeasure = 254;
constexpr int LargestByte = 255;

struct CodedGlyphs
{
    std::vector<qint32> offsets;    // of each glyph, within the data
    std::vector<quint8> rowLengths; // of all rows of all glyphs
    std::vector<quint8> data;
};

// False when a coded row is too long for the row table.
bool encodeGlyph(const Glyph &glyph, CodedGlyphs &coded)
{
    coded.offsets.push_back(static_cast<qint32>(coded.data.size()));
    for (int row = 0; row < glyph.height; ++row) {
        const std::size_t start = coded.data.size();
        encodeRow(glyph.row(row), coded.data);
        const std::size_t length = coded.data.size() - start;
        if (length > LargestByte)
            return false;
        coded.rowLengths.push_back(static_cast<quint8>(length));
    }
    return true;
}

void put(common::ByteWriter &file, const std::vector<quint8> &bytes)
{
    file.put(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

// False also when the row table, by which the recorder steps from row to row, tells other lengths.
bool decodeGlyph(QByteArrayView data, qsizetype offset, QByteArrayView rowLengths, Glyph &glyph)
{
    const int leastCodedRow = std::min(glyph.width, 2); // nothing is allocated that the data cannot fill
    if (offset < 0 || data.size() - offset < qsizetype(glyph.height) * leastCodedRow)
        return false;
    glyph.coverage.resize(glyph.pixelCount());
    for (int row = 0; row < glyph.height; ++row) {
        const qsizetype start = offset;
        if (!decodeRow(data, offset, glyph.row(row)) ||
            offset - start != static_cast<quint8>(rowLengths[row]))
            return false;
    }
    return true;
}

} // namespace

bool fitsFontFile(const Glyph &glyph)
{
    return glyph.width <= LargestMeasure && glyph.height <= LargestMeasure && glyph.top <= LargestMeasure;
}

std::optional<QByteArray> FontFile(const RasterFont &font)
{
    CodedGlyphs coded;
    if (font.lineHeight > LargestByte)
        return std::nullopt;
    for (const Glyph &glyph : font.glyphs) {
        if ((glyph.hasInk() && !fitsFontFile(glyph)) || !encodeGlyph(glyph, coded))
            return std::nullopt;
    }
    common::ByteWriter file;
    file.put(static_cast<qint32>(coded.data.size()));
    file.put(static_cast<qint32>(coded.rowLengths.size()));
    file.put(static_cast<quint8>(font.lineHeight));
    for (const qint32 offset : coded.offsets)
        file.put(offset);
    for (const Glyph &glyph : font.glyphs) {
        for (const int measure : {glyph.width, glyph.height, glyph.top})
            file.put(static_cast<quint8>(measure));
    }
    put(file, coded.rowLengths);
    put(file, coded.data);
    return file.bytes();
}

std::optional<RasterFont> readFontFile(QByteArrayView bytes, int glyphCount)
{
    common::ByteReader file(bytes);
    const auto dataLength = file.get<qint32>();
    const auto rowCount = file.get<qint32>();
    RasterFont font;
    font.lineHeight = file.get<quint8>();
    const auto count = static_cast<std::size_t>(glyphCount);
    std::vector<qint32> offsets(count);
    for (qint32 &offset : offsets)
        offset = file.get<qint32>();
    font.glyphs.resize(count);
    int rows = 0;
    for (Glyph &glyph : font.glyphs) {
        for (int *measure : {&glyph.width, &glyph.height, &glyph.top})
            *measure = file.get<quint8>();
        rows += glyph.height;
    }
    QByteArrayView rowLengths = file.get(rowCount);
    const QByteArrayView data = file.get(dataLength);
    if (file.failed() || file.remaining() != 0 || rowCount != rows)
        return std::nullopt;
    for (std::size_t i = 0; i < count; ++i) {
        Glyph &glyph = font.glyphs[i];
        if (!decodeGlyph(data, offsets[i], rowLengths, glyph))
            return std::nullopt;
        rowLengths = rowLengths.sliced(glyph.height);
    }
    return font;
}

} // namespace graphics
