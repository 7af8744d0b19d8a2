#pragma once

#include <QByteArray>
#include <QList>

#include <array>
#include <cstdint>
#include <map>
#include <numeric>
#include <string>
#include <vector>

namespace test {

// Font files put together and taken apart byte by byte, with no help from the code under test.

using Pixels = std::vector<int>;

struct PlainGlyph
{
    int width = 0, height = 0, top = 0;
    Pixels pixels; // empty for a glyph of one value, below
    int value = 0;
};

inline QByteArray littleEndian32(qsizetype value)
{
    QByteArray bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes.append(static_cast<char>(static_cast<std::uint32_t>(value) >> shift));
    return bytes;
}

inline QByteArray bytesOf(std::initializer_list<int> values)
{
    QByteArray bytes;
    for (const int value : values)
        bytes.append(static_cast<char>(value));
    return bytes;
}

// The rows of a glyph, every pixel coded by itself.
inline QList<QByteArray> plainRows(const PlainGlyph &glyph)
{
    QList<QByteArray> rows;
    for (int y = 0; y < glyph.height; ++y) {
        QByteArray row;
        for (int x = 0; x < glyph.width; ++x) {
            const int at = y * glyph.width + x;
            const int pixel = glyph.pixels.empty() ? glyph.value : glyph.pixels[static_cast<std::size_t>(at)];
            row += pixel == 0 || pixel == 255 ? bytesOf({pixel, 1}) : bytesOf({pixel});
        }
        rows.append(row);
    }
    return rows;
}

// A file of `count` glyphs, all empty but those given by index.
inline QByteArray fontFile(int count, int lineHeight, const std::map<int, PlainGlyph> &glyphs)
{
    QByteArray offsets, measures, table, data;
    for (int i = 0; i < count; ++i) {
        const PlainGlyph glyph = glyphs.contains(i) ? glyphs.at(i) : PlainGlyph();
        offsets += littleEndian32(data.size());
        measures += bytesOf({glyph.width, glyph.height, glyph.top});
        for (const QByteArray &row : plainRows(glyph)) {
            table += static_cast<char>(row.size());
            data += row;
        }
    }
    return littleEndian32(data.size()) + littleEndian32(table.size()) + bytesOf({lineHeight}) + offsets +
           measures + table + data;
}

// A font file read as the recorder reads it: by the row table. `fault` says what does not add up.
struct ReadFile
{
    int lineHeight = 0;
    std::vector<PlainGlyph> glyphs;
    std::string fault;
};

class FileWalk
{
public:
    FileWalk(const QByteArray &bytes, int count) : m_bytes(bytes), m_count(count) {}

    ReadFile read()
    {
        ReadFile file;
        const int dataLength = number(0), tableLength = number(4);
        const int table = 9 + 7 * m_count, data = table + tableLength;
        if (data + dataLength != m_bytes.size())
            return {0, {}, "the lengths do not add up to the file"};
        file.lineHeight = byte(8);
        int row = table, expectedOffset = 0;
        for (int i = 0; i < m_count && file.fault.empty(); ++i) {
            const int measures = 9 + 4 * m_count + 3 * i;
            PlainGlyph glyph{byte(measures), byte(measures + 1), byte(measures + 2), {}, 0};
            if (number(9 + 4 * i) != expectedOffset)
                file.fault = "offset of glyph " + std::to_string(i);
            for (int y = 0; y < glyph.height; ++y, ++row) {
                if (!appendRow(data + expectedOffset, byte(row), glyph))
                    file.fault = "row of glyph " + std::to_string(i);
                expectedOffset += byte(row);
            }
            file.glyphs.push_back(glyph);
        }
        if (row != data || expectedOffset != dataLength)
            file.fault += " row table";
        return file;
    }

private:
    int byte(int at) const { return static_cast<unsigned char>(m_bytes.at(at)); }
    int number(int at) const
    {
        return byte(at) | byte(at + 1) << 8 | byte(at + 2) << 16 | byte(at + 3) << 24;
    }
    bool appendRow(int at, int length, PlainGlyph &glyph) const
    {
        Pixels row;
        for (int i = 0; i < length; ++i) {
            const int value = byte(at + i);
            const bool run = value == 0 || value == 255;
            row.insert(row.end(), static_cast<std::size_t>(run ? byte(at + ++i) : 1), value);
        }
        glyph.pixels.insert(glyph.pixels.end(), row.begin(), row.end());
        return static_cast<int>(row.size()) == glyph.width;
    }

    const QByteArray &m_bytes;
    int m_count;
};

} // namespace test
