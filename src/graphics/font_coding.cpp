#include "graphics/font_coding.h"

#include <algorithm>

namespace graphics {

namespace {

constexpr quint8 NoInk = 0;
constexpr quint8 FullInk = 255;
constexpr quint8 LongestRun = 255;

constexpr bool isRun(quint8 value) { return value == NoInk || value == FullInk; }

} // namespace

void encodeRow(std::span<const quint8> row, std::vector<quint8> &coded)
{
    bool open = false;
    quint8 value = 0;
    quint8 count = 0;
    const auto writeRun = [&] {
        coded.push_back(value);
        coded.push_back(count);
        count = 0;
    };
    for (const quint8 pixel : row) {
        if (open && pixel != value) {
            writeRun();
            open = false;
        }
        if (!isRun(pixel)) {
            coded.push_back(pixel);
            continue;
        }
        open = true;
        value = pixel;
        if (++count == LongestRun)
            writeRun();
    }
    if (open)
        writeRun();
}

bool decodeRow(QByteArrayView coded, qsizetype &position, std::span<quint8> row)
{
    const auto next = [&] { return static_cast<quint8>(coded[position++]); };
    std::size_t x = 0;
    while (x < row.size()) {
        if (position >= coded.size())
            return false;
        const quint8 value = next();
        std::size_t count = 1;
        if (isRun(value)) {
            if (position >= coded.size())
                return false;
            count = next();
        }
        if (count > row.size() - x)
            return false;
        std::fill_n(row.begin() + static_cast<std::ptrdiff_t>(x), count, value);
        x += count;
    }
    return true;
}

} // namespace graphics
