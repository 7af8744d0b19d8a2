#include "common/bytes.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace common {

static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "values are copied as they lie in memory");

void ByteWriter::put(const void *value, std::size_t size)
{
    m_bytes.append(static_cast<const char *>(value), static_cast<qsizetype>(size));
}

void ByteWriter::putFixedText(const QByteArray &codePageText, int width)
{
    const QByteArray text = codePageText.left(width - 1);
    m_bytes.append(text);
    m_bytes.append('\0');
    m_bytes.append(width - 1 - text.size(), ' ');
}

bool ByteReader::reserve(qsizetype size)
{
    if (m_failed || size < 0 || size > remaining())
        m_failed = true;
    return !m_failed;
}

void ByteReader::get(void *value, qsizetype size)
{
    if (!reserve(size))
        return;
    std::memcpy(value, m_bytes.data() + m_position, static_cast<std::size_t>(size));
    m_position += size;
}

QByteArrayView ByteReader::get(qsizetype size)
{
    if (!reserve(size))
        return {};
    const QByteArrayView view = m_bytes.sliced(m_position, size);
    m_position += size;
    return view;
}

QByteArray cutAtNul(QByteArrayView field)
{
    const auto end = std::find(field.begin(), field.end(), '\0');
    return QByteArray(field.data(), end - field.begin());
}

} // namespace common
