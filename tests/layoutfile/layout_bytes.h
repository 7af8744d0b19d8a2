#pragma once

#include "layoutfile/layout_file.h"

#include <algorithm>
#include <initializer_list>

namespace test {

// Bytes as they are written by hand: hexadecimal digits, and text between quotation marks.
inline QByteArray bytes(const char *notation)
{
    QByteArray result;
    bool isText = false;
    for (const QByteArray &piece : QByteArray(notation).split('\'')) {
        result += isText ? piece : QByteArray::fromHex(piece);
        isText = !isText;
    }
    return result;
}

inline QByteArray littleEndian(quint32 value, int size)
{
    QByteArray result;
    for (int i = 0; i < size; ++i)
        result += static_cast<char>(value >> (8 * i) & 0xFF);
    return result;
}

// CRC-32 bit by bit.
inline QByteArray crcOf(const QByteArray &file)
{
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : file) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320U : 0U);
    }
    return littleEndian(~crc, 4);
}

inline QByteArray withCrc(const QByteArray &content) { return content + crcOf(content); }

// One record behind `before`: sync word, type, stated size, object, payload and the sum of the stated size
// and twelve bytes, as far as there are so many.
inline QByteArray withRecord(QByteArray before, int type, int statedSize, int object,
                             const QByteArray &payload)
{
    before += bytes("DCEBFA00") + littleEndian(static_cast<quint32>(type), 2) +
              littleEndian(static_cast<quint32>(statedSize), 4) +
              littleEndian(static_cast<quint32>(object), 2) + payload;
    quint32 sum = 0;
    for (const char byte : before.last(std::min<qsizetype>(statedSize + 12, before.size())))
        sum += static_cast<quint8>(byte);
    return before + littleEndian(sum & 0xFFFF, 2);
}

inline platform::Stamp stamp(const QString &user, const QString &computer)
{
    return {[] { return QDateTime({2005, 12, 31}, {23, 59}); }, user, computer};
}

// The header of stamp("driver", "pitwall").
inline QByteArray header()
{
    return bytes("'QLVGL' 030000 1F0C05 173B 'driver' 00 '             ' 'pitwall' 00 '            '");
}

} // namespace test
