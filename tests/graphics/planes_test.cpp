#include "graphics/composer.h"
#include "graphics/plane_kernels.h"
#include "graphics/planes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

// The formulas as they are stated, in floating point and with its rounding.
namespace reference {

using Yuv = std::array<quint8, 3>;

quint8 divided(int sum, int offset) { return static_cast<quint8>(std::nearbyint(sum / 256.0 + offset)); }

int limited(double value) { return static_cast<int>(std::clamp(std::nearbyint(value), 0.0, 255.0)); }

Yuv yuvOf(QRgb pixel)
{
    const int r = qRed(pixel), g = qGreen(pixel), b = qBlue(pixel);
    return {divided(66 * r + 129 * g + 25 * b + 128, 16), divided(-38 * r - 74 * g + 112 * b + 128, 128),
            divided(112 * r - 94 * g - 18 * b + 128, 128)};
}

QRgb pixelOf(int y, int u, int v)
{
    const int c = 298 * (y - 16) + 128, d = u - 128, e = v - 128;
    return qRgb(limited((c + 409 * e) / 256.0), limited((c - 100 * d - 208 * e) / 256.0),
                limited((c + 516 * d) / 256.0));
}

int mixed(int background, int source, int alpha, int level)
{
    const double weight = alpha < 38 ? 0 : alpha * level;
    return limited((background * (65535 - weight) + source * weight) / 65535);
}

} // namespace reference

namespace {

using graphics::AlphaPlane;
using graphics::Planes;
using Bytes = std::vector<quint8>;
using Pixels = std::vector<QRgb>;

constexpr quint8 Untouched = 0xA5;

// Every set of loops that this processor has.
using EachKernelSet = testing::TestWithParam<const graphics::PlaneKernels *>;

INSTANTIATE_TEST_SUITE_P(PlaneKernels, EachKernelSet, testing::ValuesIn(graphics::usableKernels()),
                         [](const auto &set) { return std::string(set.param->name); });

TEST_P(EachKernelSet, turnsEveryColourIntoItsThreeBytes)
{
    // Each colour stands twice, so that chroma, taken at even places, meets all of them as well.
    Pixels row(512);
    Bytes y(512), u(256), v(256);
    for (quint32 redGreen = 0; redGreen < 0x10000; ++redGreen) {
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = redGreen << 8 | static_cast<quint32>(i / 2);
        GetParam()->luma(row.data(), y.data(), 512);
        GetParam()->chroma(row.data(), u.data(), v.data(), 512);
        for (std::size_t i = 0; i < row.size(); ++i)
            ASSERT_TRUE((reference::Yuv{y[i], u[i / 2], v[i / 2]} == reference::yuvOf(row[i]))) << row[i];
    }
}

TEST_P(EachKernelSet, turnsEveryThreeBytesIntoTheirColour)
{
    Bytes y(256);
    std::iota(y.begin(), y.end(), quint8{0});
    Pixels row(256);
    for (int chroma = 0; chroma < 0x10000; ++chroma) {
        const auto u = static_cast<quint8>(chroma >> 8), v = static_cast<quint8>(chroma & 0xFF);
        GetParam()->picture(y.data(), Bytes(128, u).data(), Bytes(128, v).data(), row.data(), 256);
        for (std::size_t i = 0; i < row.size(); ++i)
            ASSERT_EQ(row[i], reference::pixelOf(y[i], u, v)) << "U and V " << chroma;
    }
}

// The mix depends on the weight and on how far both colours are apart, in both directions.
TEST_P(EachKernelSet, mixesEveryDifferenceByEveryWeight)
{
    Pixels source(256), background(256), wanted(256);
    for (int weight = 0; weight < 0x10000; ++weight) {
        const int alpha = weight >> 8, level = weight & 0xFF;
        for (int i = 0; i < 256; ++i) {
            const auto at = static_cast<std::size_t>(i);
            const auto mixed = [&](int below, int above) {
                return reference::mixed(below, above, alpha, level);
            };
            const int other = (i * 89 + weight) & 0xFF;
            background[at] = qRgba(0, 255, other, i);
            source[at] = qRgba(i, 255 - i, i, other);
            wanted[at] = alpha < 38 || level == 0 ? background[at]
                                                  : qRgb(mixed(0, i), mixed(255, 255 - i), mixed(other, i));
        }
        GetParam()->compose(background.data(), source.data(), Bytes(256, static_cast<quint8>(alpha)).data(),
                            static_cast<quint8>(level), 256);
        ASSERT_EQ(background, wanted) << "alpha " << alpha << " level " << level;
    }
}

// Lines of every length up to some steps of the widest loop, at odd addresses.
TEST_P(EachKernelSet, writesNothingBehindTheLine)
{
    const Pixels pixels(101);
    const Bytes bytes(101);
    for (std::size_t width = 0; width <= 100; ++width) {
        const auto length = static_cast<qsizetype>(width);
        const std::size_t chromaWidth = (width + 1) / 2, evenWidth = width / 2 * 2;
        Bytes y(102, Untouched), u(102, Untouched), v(102, Untouched);
        Pixels mixed(102, Untouched), drawn(102, Untouched);
        GetParam()->luma(&pixels[1], &y[1], length);
        GetParam()->chroma(&pixels[1], &u[1], &v[1], length);
        GetParam()->compose(&mixed[1], &pixels[1], &bytes[1], 200, length);
        GetParam()->picture(&bytes[1], &bytes[3], &bytes[5], &drawn[1], static_cast<qsizetype>(evenWidth));
        for (const QRgb behind : {QRgb{y[width + 1]}, QRgb{u[chromaWidth + 1]}, QRgb{v[chromaWidth + 1]},
                                  mixed[width + 1], drawn[evenWidth + 1]})
            EXPECT_EQ(behind, Untouched) << width;
    }
}

int at(const QByteArray &plane, int index) { return static_cast<quint8>(plane[index]); }

// A different colour at every place.
QImage colourful(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int i = 0; i < size.width() * size.height(); ++i) {
        const int x = i % size.width(), y = i / size.width();
        picture.setPixel(x, y, qRgb(250 - 21 * x, 13 * y + 5 * x, 17 * x ^ 60 * y));
    }
    return picture;
}

TEST(Planes, growByTheWholePaddingWhereAPictureFitsAlready)
{
    EXPECT_EQ(graphics::paddedSize({720, 576}), QSize(728, 578));
    EXPECT_EQ(graphics::paddedSize({9, 3}), QSize(16, 4));
}

// White and alpha 0 stand outside. Chroma is that of the pixel at even x and y; an odd last column or row has
// none and is shown with the one before, and without any in grey.
TEST(Planes, takeEveryPixelAndChromaAtEvenPlacesAndShowThemAgain)
{
    const QSize sizes[][2] = {{{9, 3}, {16, 4}},  {{8, 2}, {16, 4}},  {{7, 5}, {7, 5}},   {{9, 6}, {4, 3}},
                              {{1, 1}, {8, 2}},   {{3, 9}, {5, 5}},   {{4, 4}, {1, 2}},   {{0, 0}, {8, 2}},
                              {{4, 4}, {5, 1}},   {{70, 4}, {77, 6}}, {{99, 3}, {97, 3}}, {{32, 2}, {32, 2}},
                              {{33, 2}, {33, 2}}, {{64, 2}, {63, 2}}};
    for (const auto &[size, stored] : sizes) {
        SCOPED_TRACE(testing::Message() << size.width() << " wide as " << stored.width());
        const QImage picture = colourful(size);
        const Planes planes = graphics::toPlanes(picture, stored);
        const AlphaPlane alpha = graphics::toAlphaPlane(picture, stored);
        const QImage shown = graphics::toPicture(planes), grey = graphics::toPicture(alpha);
        const int columns = stored.width() / 2, rows = stored.height() / 2;
        ASSERT_TRUE(planes.isComplete() && alpha.isComplete());
        ASSERT_EQ((std::array{shown.size(), grey.size()}), (std::array{stored, stored}));
        ASSERT_EQ(planes.u.size(), columns * rows);
        for (int i = 0; i < stored.width() * stored.height(); ++i) {
            const int x = i % stored.width(), y = i / stored.width();
            const bool inside = picture.rect().contains(x, y);
            const auto wanted = reference::yuvOf(inside ? picture.pixel(x, y) : qRgb(255, 255, 255));
            const int block = std::min(y / 2, rows - 1) * columns + std::min(x / 2, columns - 1);
            const int u = columns * rows > 0 ? at(planes.u, block) : 128;
            const int v = columns * rows > 0 ? at(planes.v, block) : 128;
            EXPECT_EQ(at(planes.y, i), wanted[0]);
            if (x % 2 == 0 && y % 2 == 0 && x / 2 < columns && y / 2 < rows) {
                EXPECT_EQ(std::pair(u, v), std::pair(int{wanted[1]}, int{wanted[2]})) << x << ", " << y;
            }
            EXPECT_EQ(at(alpha.values, i), inside ? qRed(picture.pixel(x, y)) : 0) << x << ", " << y;
            EXPECT_EQ(qBlue(grey.pixel(x, y)), at(alpha.values, i));
            EXPECT_EQ(shown.pixel(x, y), reference::pixelOf(wanted[0], u, v)) << x << ", " << y;
        }
    }
}

// Alpha channels, palettes and packed formats change nothing about the colours.
TEST(Planes, areTheSameForEveryFormatOfAPicture)
{
    const QImage plain = colourful({3, 2});
    QImage transparent = plain.convertToFormat(QImage::Format_ARGB32);
    transparent.setPixel(0, 0, plain.pixel(0, 0) & 0xFFFFFF);
    const Planes wanted = graphics::toPlanes(plain, {8, 2});
    for (const QImage &picture : {transparent, plain.convertToFormat(QImage::Format_Indexed8),
                                  plain.convertToFormat(QImage::Format_RGB888)})
        EXPECT_EQ(graphics::toPlanes(picture, {8, 2}), wanted) << picture.format();
}

TEST(Planes, areNotShownWhereTheirLengthsDoNotFit)
{
    Planes planes = graphics::toPlanes(colourful({8, 4}), {8, 4});
    planes.v.chop(1);
    EXPECT_TRUE(graphics::toPicture(planes).isNull());
    EXPECT_TRUE(graphics::toPicture(Planes()).isNull());
    EXPECT_TRUE(graphics::toPicture(AlphaPlane{4, 4, QByteArray(15, 0)}).isNull());
    EXPECT_FALSE(graphics::toPlanes(colourful({8, 4}), {0, 4}).isComplete());
}

TEST(Composer, drawsWhereSurfaceSourceAndAlphaMeetAndLeavesTheRestAsItIs)
{
    constexpr QRgb Ground = 0x40102030;
    for (const QPoint at : {QPoint(2, 1), QPoint(-2, -1), QPoint(8, 6), QPoint(-4, 0), QPoint(0, 20)}) {
        // The source is larger than its alpha plane, which has a hole.
        QImage surface(50, 8, QImage::Format_ARGB32);
        surface.fill(Ground);
        const QImage source = colourful({39, 6});
        AlphaPlane alpha{37, 3, QByteArray(111, '\xFF')};
        alpha.values[38] = 0;
        graphics::compose(surface, at, source, alpha, 255);
        for (int i = 0; i < 400; ++i) {
            const QPoint place(i % 50, i / 50), from = place - at;
            const bool covered = QRect({}, alpha.size()).contains(from) && from != QPoint(1, 1);
            const QRgb above = covered ? source.pixel(from) : 0;
            const QRgb mixed = qRgb(reference::mixed(qRed(Ground), qRed(above), 255, 255),
                                    reference::mixed(qGreen(Ground), qGreen(above), 255, 255),
                                    reference::mixed(qBlue(Ground), qBlue(above), 255, 255));
            EXPECT_EQ(surface.pixel(place), covered ? mixed : Ground) << i << " from " << at.x();
        }
    }
}

} // namespace
