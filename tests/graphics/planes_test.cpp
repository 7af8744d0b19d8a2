#include "common/colour.h"
#include "graphics/composer.h"
#include "graphics/plane_kernels.h"
#include "graphics/planes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

namespace {

using common::Yuv;
using graphics::AlphaPlane;
using graphics::Planes;
using Bytes = std::vector<quint8>;
using Pixels = std::vector<QRgb>;

constexpr quint8 Untouched = 0xA5;

// The formulas in floating point and with its rounding.
Yuv yuvOf(QRgb pixel) { return common::toYuv(common::fromPixel(pixel)); }
QRgb pixelOf(const Yuv &yuv) { return common::toPixel(common::toPacked(yuv)); }
int mixed(int background, int source, int alpha, int level)
{
    const double weight = alpha < 38 ? 0 : alpha * level;
    return static_cast<int>(std::nearbyint((background * (65535 - weight) + source * weight) / 65535));
}

// Every set of loops that this processor has.
using EachKernelSet = testing::TestWithParam<const graphics::PlaneKernels *>;

INSTANTIATE_TEST_SUITE_P(PlaneKernels, EachKernelSet, testing::ValuesIn(graphics::usableKernels()),
                         [](const auto &set) { return std::string(set.param->name); });

TEST_P(EachKernelSet, turnsEveryColourIntoItsThreeBytesAndEveryThreeBytesIntoTheirColour)
{
    // Each colour stands twice, so that chroma, taken at even places, meets all of them as well.
    Pixels row(512), shown(256);
    Bytes y(512), u(256), v(256), every(256);
    std::iota(every.begin(), every.end(), quint8{0});
    for (quint32 pair = 0; pair < 0x10000; ++pair) {
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = pair << 8 | static_cast<quint32>(i / 2);
        GetParam()->luma(row.data(), y.data(), 512);
        GetParam()->chroma(row.data(), u.data(), v.data(), 512);
        for (std::size_t i = 0; i < row.size(); ++i)
            ASSERT_TRUE((Yuv{y[i], u[i / 2], v[i / 2]} == yuvOf(row[i]))) << row[i];
        const auto high = static_cast<quint8>(pair >> 8), low = static_cast<quint8>(pair & 0xFF);
        GetParam()->picture(every.data(), Bytes(128, high).data(), Bytes(128, low).data(), shown.data(), 256);
        for (std::size_t i = 0; i < shown.size(); ++i)
            ASSERT_EQ(shown[i], pixelOf({every[i], high, low})) << "U and V " << pair;
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
            const auto mix = [&](int below, int above) { return mixed(below, above, alpha, level); };
            const int other = (i * 89 + weight) & 0xFF;
            background[at] = qRgba(0, 255, other, i);
            source[at] = qRgba(i, 255 - i, i, other);
            wanted[at] =
                alpha < 38 || level == 0 ? background[at] : qRgb(mix(0, i), mix(255, 255 - i), mix(other, i));
        }
        GetParam()->compose(background.data(), source.data(), Bytes(256, static_cast<quint8>(alpha)).data(),
                            static_cast<quint8>(level), 256);
        ASSERT_EQ(background, wanted) << "alpha " << alpha << " level " << level;
    }
}

// Lines of every length up to some steps of the widest loop, at odd addresses.
TEST_P(EachKernelSet, writesNothingAfterTheLine)
{
    const Pixels pixels(101);
    const Bytes bytes(101);
    for (qsizetype width = 0; width <= 100; ++width) {
        Bytes y(102, Untouched), u(102, Untouched), v(102, Untouched);
        Pixels mixed(102, Untouched), drawn(102, Untouched);
        GetParam()->luma(&pixels[1], &y[1], width);
        GetParam()->chroma(&pixels[1], &u[1], &v[1], width);
        GetParam()->compose(&mixed[1], &pixels[1], &bytes[1], 200, width);
        GetParam()->picture(&bytes[1], &bytes[3], &bytes[5], &drawn[1], width / 2 * 2);
        const auto after = static_cast<std::size_t>(width) + 1, afterChroma = after / 2 + 1;
        EXPECT_EQ(
            (Pixels{y[after], u[afterChroma], v[afterChroma], mixed[after], drawn[(after - 1) / 2 * 2 + 1]}),
            Pixels(5, Untouched))
            << width;
    }
}

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

// White and alpha 0 stand outside. Chroma is that of the pixel at even x and y; an odd last column or row has
// none and is shown with the one before, and without any in grey.
TEST(Planes, takeEveryPixelAndChromaAtEvenPlacesAndShowThemAgain)
{
    const QSize sizes[][2] = {{{9, 3}, {16, 4}},  {{7, 5}, {7, 5}},   {{9, 6}, {4, 3}},  {{3, 9}, {5, 5}},
                              {{4, 4}, {1, 2}},   {{0, 0}, {8, 2}},   {{4, 4}, {5, 1}},  {{70, 4}, {77, 6}},
                              {{99, 3}, {97, 3}}, {{32, 2}, {32, 2}}, {{64, 2}, {63, 2}}};
    for (const auto &[size, stored] : sizes) {
        const QImage picture = colourful(size);
        const Planes planes = graphics::toPlanes(picture, stored);
        const AlphaPlane alpha = graphics::toAlphaPlane(picture, stored);
        const QImage shown = graphics::toPicture(planes), grey = graphics::toPicture(alpha);
        const int columns = stored.width() / 2, rows = stored.height() / 2;
        ASSERT_EQ((std::array{shown.size(), grey.size()}), (std::array{stored, stored}));
        for (int i = 0; i < stored.width() * stored.height(); ++i) {
            SCOPED_TRACE(testing::Message() << size.width() << " wide as " << stored.width() << ", " << i);
            const int x = i % stored.width(), y = i / stored.width();
            const auto pixel = [&](int column, int row) {
                return picture.rect().contains(column, row) ? picture.pixel(column, row)
                                                            : qRgb(255, 255, 255);
            };
            // The pixel that its chroma comes from.
            const Yuv coloured =
                yuvOf(pixel(std::min(x / 2, columns - 1) * 2, std::min(y / 2, rows - 1) * 2));
            Yuv wanted = columns * rows > 0 ? coloured : Yuv();
            wanted.y = yuvOf(pixel(x, y)).y;
            EXPECT_EQ(shown.pixel(x, y), pixelOf(wanted));
            EXPECT_EQ(qBlue(grey.pixel(x, y)), picture.rect().contains(x, y) ? qRed(pixel(x, y)) : 0);
        }
    }
}

TEST(Composer, drawsWhereSurfaceSourceAndAlphaMeetAndLeavesTheRestAsItIs)
{
    const QImage source = colourful({39, 6}); // larger than its alpha plane, which has a hole
    AlphaPlane alpha{37, 3, QByteArray(111, '\xFF')};
    alpha.values[38] = 0;
    QImage whole(150, 108, QImage::Format_ARGB32);
    whole.fill(0x40102030);
    QImage wanted = whole;
    for (int i = 0; i < 111; ++i) {
        const QRgb above = source.pixel(i % 37, i / 37);
        if (i != 38)
            wanted.setPixel(50 + i % 37, 50 + i / 37,
                            qRgb(mixed(0x10, qRed(above), 255, 255), mixed(0x20, qGreen(above), 255, 255),
                                 mixed(0x30, qBlue(above), 255, 255)));
    }
    for (const QPoint at : {QPoint(2, 1), QPoint(-2, -1), QPoint(8, 6), QPoint(-4, 0), QPoint(0, 20)}) {
        const QRect window(QPoint(50, 50) - at, QSize(50, 8));
        QImage surface = whole.copy(window);
        graphics::compose(surface, at, source, alpha, 255);
        EXPECT_EQ(surface, wanted.copy(window)) << at.x() << ", " << at.y();
    }
}

} // namespace
