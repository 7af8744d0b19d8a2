#include "graphics/plane_kernels.h"

#include "graphics/plane_kernels_avx2.h"

#include <array>

namespace graphics {

namespace {

// sum / 256, exact halves to the even neighbour: just below a half is added, and the missing one only when
// the whole part is odd. Right shifts round down, so negative sums are right as well.
constexpr int dividedBy256(int sum) { return (sum + 127 + ((sum >> 8) & 1)) >> 8; }

constexpr quint32 component(int sum)
{
    const int value = dividedBy256(sum);
    return static_cast<quint32>(value < 0 ? 0 : value > 255 ? 255 : value);
}

void luma(const QRgb *pixels, quint8 *y, qsizetype width)
{
    for (qsizetype x = 0; x < width; ++x) {
        const int sum = 66 * qRed(pixels[x]) + 129 * qGreen(pixels[x]) + 25 * qBlue(pixels[x]) + 128;
        y[x] = static_cast<quint8>(dividedBy256(sum) + 16);
    }
}

void chroma(const QRgb *pixels, quint8 *u, quint8 *v, qsizetype width)
{
    for (qsizetype i = 0; 2 * i < width; ++i) {
        const int r = qRed(pixels[2 * i]);
        const int g = qGreen(pixels[2 * i]);
        const int b = qBlue(pixels[2 * i]);
        u[i] = static_cast<quint8>(dividedBy256(-38 * r - 74 * g + 112 * b + 128) + 128);
        v[i] = static_cast<quint8>(dividedBy256(112 * r - 94 * g - 18 * b + 128) + 128);
    }
}

void picture(const quint8 *y, const quint8 *u, const quint8 *v, QRgb *pixels, qsizetype width)
{
    for (qsizetype i = 0; i < width / 2; ++i) {
        const int red = 409 * (v[i] - 128);
        const int green = -100 * (u[i] - 128) - 208 * (v[i] - 128);
        const int blue = 516 * (u[i] - 128);
        for (int k = 0; k < 2; ++k) {
            const int luma = 298 * (y[2 * i + k] - 16) + 128;
            pixels[2 * i + k] = 0xFF000000u | component(luma + red) << 16 | component(luma + green) << 8 |
                                component(luma + blue);
        }
    }
}

// An exact half cannot occur, since the divisor is odd.
constexpr quint32 mixed(quint32 background, quint32 source, quint32 weight)
{
    return (background * (FullWeight - weight) + source * weight + FullWeight / 2) / FullWeight;
}

void compose(QRgb *surface, const QRgb *source, const quint8 *alpha, quint8 level, qsizetype width)
{
    for (qsizetype x = 0; x < width; ++x) {
        const quint32 weight = alpha[x] < AlphaCutOff ? 0u : quint32{alpha[x]} * level;
        if (weight == 0)
            continue;
        QRgb pixel = 0xFF000000u;
        for (int shift = 0; shift < 24; shift += 8)
            pixel |= mixed(surface[x] >> shift & 0xFF, source[x] >> shift & 0xFF, weight) << shift;
        surface[x] = pixel;
    }
}

constexpr PlaneKernels Plain = {"plain", &luma, &chroma, &picture, &compose};

} // namespace

const PlaneKernels &plainKernels() { return Plain; }

std::span<const PlaneKernels *const> usableKernels()
{
    static const std::array<const PlaneKernels *, 2> sets = {&Plain, avx2Kernels()};
    return {sets.data(), sets.back() ? sets.size() : 1};
}

const PlaneKernels &planeKernels()
{
    static const PlaneKernels &fastest = *usableKernels().back();
    return fastest;
}

} // namespace graphics
