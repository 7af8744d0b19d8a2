#pragma once

#include "layoutfile/layout_file.h"
#include "layoutfile/modCRC.h"

#include <algorithm>

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

inline QByteArray withCrc(const QByteArray &file) { return file + littleEndian(layoutfile::modCRC(file), 4); }

// One record after `before`: sync word, type, stated size, object, payload and the sum of the stated size
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

inline QByteArray payloadOf(const layoutfile::RecordBody &body)
{
    common::ByteWriter out;
    layoutfile::encodePayload(body, out);
    return out.bytes();
}

inline QByteArray fileOf(const layoutfile::RecordGroups &groups, const platform::Stamp &stamp)
{
    return layoutfile::LayoutWriter(stamp).finish(groups);
}

// The header of stamp("driver", "pitwall").
inline QByteArray header()
{
    return bytes("'QLVGL' 030000 1F0C05 173B 'driver' 00 '             ' 'pitwall' 00 '            '");
}

} // namespace test
