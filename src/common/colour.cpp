#include "common/colour.h"

#include "common/rounding.h"

#include <algorithm>

namespace common {

namespace {

quint8 component(int sum, int offset) { return static_cast<quint8>(roundHalfEven(sum / 256.0 + offset)); }

quint32 clipped(int sum) { return static_cast<quint32>(std::clamp(roundHalfEven(sum / 256.0), 0.0, 255.0)); }

} // namespace

Yuv toYuv(quint32 packed)
{
    const int r = packed & 0xFF;
    const int g = (packed >> 8) & 0xFF;
    const int b = (packed >> 16) & 0xFF;
    return {component(66 * r + 129 * g + 25 * b + 128, 16), component(-38 * r - 74 * g + 112 * b + 128, 128),
            component(112 * r - 94 * g - 18 * b + 128, 128)};
}

quint32 toPacked(Yuv yuv)
{
    const int c = 298 * (yuv.y - 16);
    const int d = yuv.u - 128;
    const int e = yuv.v - 128;
    const quint32 r = clipped(c + 409 * e + 128);
    const quint32 g = clipped(c - 100 * d - 208 * e + 128);
    const quint32 b = clipped(c + 516 * d + 128);
    return r | (g << 8) | (b << 16);
}

Colour Colour::fromFile(Yuv bytes)
{
    Colour colour(toPacked(bytes));
    colour.m_origin = bytes;
    return colour;
}

void Colour::setPacked(quint32 packed)
{
    if (packed == m_packed)
        return;
    m_packed = packed;
    m_origin.reset();
}

Yuv Colour::yuv() const { return m_origin.value_or(toYuv(m_packed)); }

} // namespace common
