#pragma once

#include <QByteArray>

#include <map>
#include <string>
#include <vector>

namespace test {

// Font files put together and taken apart byte by byte, with no help from the code under test.

struct PlainGlyph
{
    int width = 0, height = 0, top = 0;
    std::vector<int> pixels;
};

inline QByteArray bytesOf(std::initializer_list<int> values)
{
    QByteArray bytes;
    for (const int value : values)
        bytes.append(static_cast<char>(value));
    return bytes;
}

inline QByteArray bytesOfNumber(qsizetype value)
{
    const int low = static_cast<int>(value);
    return bytesOf({low, low >> 8, low >> 16, low >> 24});
}

// A file of `count` glyphs, all empty but those given by index; every pixel is coded by itself.
inline QByteArray fontFile(int count, int lineHeight, const std::map<int, PlainGlyph> &glyphs)
{
    QByteArray offsets, measures, table, data;
    for (int i = 0; i < count; ++i) {
        const PlainGlyph glyph = glyphs.contains(i) ? glyphs.at(i) : PlainGlyph();
        offsets += bytesOfNumber(data.size());
        measures += bytesOf({glyph.width, glyph.height, glyph.top});
        for (std::size_t at = 0; at < glyph.pixels.size();) {
            const qsizetype start = data.size();
            for (int x = 0; x < glyph.width; ++x, ++at) {
                const int value = glyph.pixels[at];
                data += value == 0 || value == 255 ? bytesOf({value, 1}) : bytesOf({value});
            }
            table += static_cast<char>(data.size() - start);
        }
    }
    return bytesOfNumber(data.size()) + bytesOfNumber(table.size()) + bytesOf({lineHeight}) + offsets +
           measures + table + data;
}

// A font file as the recorder reads it: by the row table. `fault` says what does not add up.
struct ReadFile
{
    ReadFile(const QByteArray &file, int count) : m_file(file)
    {
        const int table = 9 + 7 * count, data = table + number(4);
        lineHeight = byte(8);
        int row = table, at = data;
        for (int i = 0; i < count; ++i) {
            const int measures = 9 + 4 * count + 3 * i;
            PlainGlyph glyph{byte(measures), byte(measures + 1), byte(measures + 2), {}};
            if (number(9 + 4 * i) != at - data)
                fault += "offset ";
            for (int y = 0; y < glyph.height; at += byte(row), ++y, ++row)
                appendRow(at, byte(row), glyph);
            glyphs.push_back(glyph);
        }
        if (row != data || at != data + number(0) || at != file.size())
            fault += "lengths";
    }

    int lineHeight;
    std::vector<PlainGlyph> glyphs;
    std::string fault;

private:
    int byte(int at) const { return static_cast<unsigned char>(m_file.at(at)); }
    int number(int at) const
    {
        return byte(at) | byte(at + 1) << 8 | byte(at + 2) << 16 | byte(at + 3) << 24;
    }
    void appendRow(int at, int length, PlainGlyph &glyph)
    {
        const std::size_t before = glyph.pixels.size();
        for (const int end = at + length; at < end; ++at) {
            const int value = byte(at);
            const int count = value == 0 || value == 255 ? byte(++at) : 1;
            glyph.pixels.insert(glyph.pixels.end(), static_cast<std::size_t>(count), value);
        }
        if (glyph.pixels.size() - before != static_cast<std::size_t>(glyph.width))
            fault += "row ";
    }

    QByteArray m_file;
};

} // namespace test
