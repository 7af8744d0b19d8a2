#pragma once

#include <QtGlobal>

#include <compare>
#include <optional>

namespace common {

// A colour as the recorder knows it.
struct Yuv
{
    quint8 y = 16;
    quint8 u = 128;
    quint8 v = 128;

    bool operator==(const Yuv &) const = default;
};

// Packed colour 0x00BBGGRR to an opaque pixel 0xFFRRGGBB, as pictures hold it, and back. The high byte does
// not count.
constexpr quint32 toPixel(quint32 packed)
{
    return 0xFF000000U | (packed & 0xFF) << 16 | (packed & 0xFF00) | (packed >> 16 & 0xFF);
}
constexpr quint32 fromPixel(quint32 pixel) { return toPixel(pixel) & 0x00FFFFFFU; }

// Packed colour to Y, U, V: the BT.601 studio-swing integer sums, divided by 256 in floating
// point and rounded with halves to even.
Yuv toYuv(quint32 packed);

// The inverse; each component is limited to 0 to 255.
quint32 toPacked(Yuv yuv);

// A colour property. It remembers the three file bytes it was read from for as long as its packed value
// stays the same, because the two formulas above do not undo each other exactly.
class Colour
{
public:
    constexpr Colour() = default;
    constexpr explicit Colour(quint32 packed) : m_packed(packed) {}

    static Colour fromFile(Yuv bytes);

    constexpr quint32 packed() const { return m_packed; }
    // A new value forgets the file bytes, the same value keeps them.
    void setPacked(quint32 packed);
    // The bytes to store: those it came from, else the formula's.
    Yuv yuv() const;

    bool operator==(const Colour &other) const { return m_packed == other.m_packed; }

private:
    quint32 m_packed = 0;
    std::optional<Yuv> m_origin;
};

} // namespace common
