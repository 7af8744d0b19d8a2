#include "graphics/plane_kernels.h"
#include "reference.h"

#include <gtest/gtest.h>
#include <numeric>
#include <vector>

namespace {

using graphics::PlaneKernels;
using Bytes = std::vector<quint8>;
using Pixels = std::vector<QRgb>;

constexpr quint8 Untouched = 0xA5;

// Every set of loops that this processor has.
class EachKernelSet : public testing::TestWithParam<const PlaneKernels *>
{
};

INSTANTIATE_TEST_SUITE_P(PlaneKernels, EachKernelSet, testing::ValuesIn(graphics::usableKernels()),
                         [](const auto &set) { return std::string(set.param->name); });

TEST_P(EachKernelSet, turnsEveryColourIntoItsThreeBytes)
{
    // Each colour stands twice, so that chroma, taken at even places, meets all of them as well.
    Pixels row(512);
    Bytes y(512), u(256), v(256), wantedY(512), wantedU(256), wantedV(256);
    for (int redGreen = 0; redGreen < 0x10000; ++redGreen) {
        for (int blue = 0; blue < 256; ++blue) {
            const auto i = static_cast<std::size_t>(blue);
            row[2 * i] = row[2 * i + 1] = static_cast<QRgb>(redGreen << 8 | blue);
            const auto [wantY, wantU, wantV] = reference::yuvOf(row[2 * i]);
            wantedY[2 * i] = wantedY[2 * i + 1] = wantY;
            wantedU[i] = wantU;
            wantedV[i] = wantV;
        }
        GetParam()->luma(row.data(), y.data(), 512);
        GetParam()->chroma(row.data(), u.data(), v.data(), 512);
        ASSERT_TRUE(y == wantedY && u == wantedU && v == wantedV) << "red and green " << redGreen;
    }
}

TEST_P(EachKernelSet, turnsEveryThreeBytesIntoTheirColour)
{
    Bytes y(256);
    std::iota(y.begin(), y.end(), quint8{0});
    Pixels row(256), wanted(256);
    for (int chroma = 0; chroma < 0x10000; ++chroma) {
        const auto u = static_cast<quint8>(chroma >> 8);
        const auto v = static_cast<quint8>(chroma & 0xFF);
        for (std::size_t i = 0; i < 256; ++i)
            wanted[i] = reference::pixelOf(y[i], u, v);
        GetParam()->picture(y.data(), Bytes(128, u).data(), Bytes(128, v).data(), row.data(), 256);
        ASSERT_EQ(row, wanted) << "U and V " << chroma;
    }
}

// The mix depends on the weight and on how far both colours are apart, in both directions.
TEST_P(EachKernelSet, mixesEveryDifferenceByEveryWeight)
{
    Pixels source(256), background(256), wanted(256);
    for (int weight = 0; weight < 0x10000; ++weight) {
        const int alpha = weight >> 8;
        const int level = weight & 0xFF;
        for (int i = 0; i < 256; ++i) {
            const auto at = static_cast<std::size_t>(i);
            const int other = (i * 89 + weight) & 0xFF;
            background[at] = qRgb(0, 255, other);
            source[at] = qRgba(i, 255 - i, i, other);
            wanted[at] =
                qRgb(reference::mixed(0, i, alpha, level), reference::mixed(255, 255 - i, alpha, level),
                     reference::mixed(other, i, alpha, level));
        }
        GetParam()->compose(background.data(), source.data(), Bytes(256, static_cast<quint8>(alpha)).data(),
                            static_cast<quint8>(level), 256);
        ASSERT_EQ(background, wanted) << "alpha " << alpha << " level " << level;
    }
}

// Lines of every length up to some steps of the widest loop, at odd addresses: the neighbours of the last
// pixel decide nothing, and nothing is written behind it.
TEST_P(EachKernelSet, keepsToItsLine)
{
    Pixels pixels(101);
    Bytes bytes(101);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        pixels[i] = static_cast<QRgb>(i * 2654435761u);
        bytes[i] = static_cast<quint8>(i * 37);
    }
    for (std::size_t width = 0; width <= 100; ++width) {
        const auto length = static_cast<qsizetype>(width);
        const std::size_t chromaWidth = (width + 1) / 2, evenWidth = width / 2 * 2;
        Bytes y(102, Untouched), u(102, Untouched), v(102, Untouched);
        Pixels mixed(102, Untouched), drawn(102, Untouched);
        GetParam()->luma(&pixels[1], &y[1], length);
        GetParam()->chroma(&pixels[1], &u[1], &v[1], length);
        GetParam()->compose(&mixed[1], &pixels[1], &bytes[1], 200, length);
        GetParam()->picture(&bytes[1], &bytes[3], &bytes[5], &drawn[1], static_cast<qsizetype>(evenWidth));
        EXPECT_TRUE(y[width + 1] == Untouched && mixed[width + 1] == Untouched) << width;
        EXPECT_TRUE(u[chromaWidth + 1] == Untouched && v[chromaWidth + 1] == Untouched) << width;
        EXPECT_EQ(drawn[evenWidth + 1], Untouched) << width;
        for (std::size_t i = 1; i <= width; ++i) {
            const std::size_t block = (i - 1) / 2;
            const auto wanted = reference::yuvOf(pixels[i]),
                       sampled = reference::yuvOf(pixels[2 * block + 1]);
            EXPECT_EQ(y[i], wanted[0]) << width;
            EXPECT_TRUE(u[block + 1] == sampled[1] && v[block + 1] == sampled[2]) << width;
            EXPECT_EQ(qBlue(mixed[i]), reference::mixed(Untouched, qBlue(pixels[i]), bytes[i], 200)) << width;
            if (i <= evenWidth) {
                EXPECT_EQ(drawn[i], reference::pixelOf(bytes[i], bytes[block + 3], bytes[block + 5]))
                    << width;
            }
        }
    }
}

} // namespace
