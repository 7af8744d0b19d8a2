#pragma once

#include <QByteArray>
#include <QString>

#include <concepts>
#include <type_traits>

namespace common {

template <typename T>
concept Scalar = std::integral<T> || std::floating_point<T>;

// Appends little-endian values to a growing block of bytes.
class ByteWriter
{
public:
    template <Scalar T>
    void put(T value)
    {
        put(&value, sizeof value);
    }
    void put(QByteArrayView bytes) { m_bytes.append(bytes); }
    // A fixed text field of `width` bytes: at most width - 1 characters in the code page, one NUL, then
    // blanks.
    void putFixedText(const QByteArray &codePageText, int width);
    // Puts the value over what stands at `place`, which must hold as many bytes.
    template <Scalar T>
    void putOver(qsizetype place, T value)
    {
        m_bytes.replace(place, sizeof value, reinterpret_cast<const char *>(&value), sizeof value);
    }

    qsizetype size() const { return m_bytes.size(); }
    const QByteArray &bytes() const { return m_bytes; }
    void reserve(qsizetype size) { m_bytes.reserve(size); }

private:
    void put(const void *value, std::size_t size);

    QByteArray m_bytes;
};

// Reads little-endian values from a block of bytes it does not own. A read past the end gives 0 (or nothing)
// and sets failed(); nothing is read from then on.
class ByteReader
{
public:
    explicit ByteReader(QByteArrayView bytes) : m_bytes(bytes) {}

    template <Scalar T>
    T get()
    {
        T value{};
        get(&value, sizeof value);
        return value;
    }
    // `size` bytes; an empty view when there are fewer or `size` is negative.
    QByteArrayView get(qsizetype size);

    qsizetype remaining() const { return m_bytes.size() - m_position; }
    QByteArrayView rest() const { return m_bytes.sliced(m_position); }
    bool failed() const { return m_failed; }

private:
    void get(void *value, qsizetype size);
    bool reserve(qsizetype size);

    QByteArrayView m_bytes;
    qsizetype m_position = 0;
    bool m_failed = false;
};

// The text of a fixed field as read: cut at its first NUL.
QByteArray cutAtNul(QByteArrayView field);

} // namespace common
