#pragma once

#include <QRgb>

#include <algorithm>
#include <array>
#include <cmath>

// The formulas as they are stated, in floating point and with its rounding.
namespace reference {

inline int divided(int sum, int offset) { return static_cast<int>(std::nearbyint(sum / 256.0 + offset)); }

inline int limited(double value) { return static_cast<int>(std::clamp(std::nearbyint(value), 0.0, 255.0)); }

// Y, U, V
inline std::array<quint8, 3> yuvOf(int r, int g, int b)
{
    return {static_cast<quint8>(divided(66 * r + 129 * g + 25 * b + 128, 16)),
            static_cast<quint8>(divided(-38 * r - 74 * g + 112 * b + 128, 128)),
            static_cast<quint8>(divided(112 * r - 94 * g - 18 * b + 128, 128))};
}

inline std::array<quint8, 3> yuvOf(QRgb pixel) { return yuvOf(qRed(pixel), qGreen(pixel), qBlue(pixel)); }

inline QRgb pixelOf(int y, int u, int v)
{
    const int c = y - 16;
    const int d = u - 128;
    const int e = v - 128;
    return qRgb(limited((298 * c + 409 * e + 128) / 256.0),
                limited((298 * c - 100 * d - 208 * e + 128) / 256.0),
                limited((298 * c + 516 * d + 128) / 256.0));
}

inline int mixed(int background, int source, int alpha, int level)
{
    const int weight = alpha < 38 ? 0 : alpha * level;
    return limited((background * (65535.0 - weight) + source * double(weight)) / 65535.0);
}

} // namespace reference
