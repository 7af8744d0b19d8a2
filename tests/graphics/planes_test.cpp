#include "graphics/composer.h"
#include "graphics/planes.h"
#include "reference.h"

#include <gtest/gtest.h>
#include <ostream>

namespace {

using graphics::AlphaPlane;
using graphics::Planes;

quint8 at(const QByteArray &plane, int index) { return static_cast<quint8>(plane[index]); }

// A different colour at every place.
QImage colourful(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, qRgb(250 - 21 * x, 13 * y + 5 * x, 17 * x ^ 60 * y));
    }
    return picture;
}

TEST(Planes, growByTheWholePaddingWhereAPictureFitsAlready)
{
    const QSize sizes[][2] = {
        {{720, 576}, {728, 578}}, {{104, 52}, {112, 54}}, {{9, 3}, {16, 4}},
        {{101, 51}, {104, 52}},   {{1, 1}, {8, 2}},
    };
    for (const auto &[picture, padded] : sizes)
        EXPECT_EQ(graphics::paddedSize(picture), padded) << picture.width();
}

TEST(Planes, holdTheKnownColours)
{
    struct Known
    {
        QRgb pixel;
        quint8 y, u, v;
    };
    const Known known[] = {
        {qRgb(255, 255, 255), 236, 128, 128}, // 235.64 and an exact half
        {qRgb(0, 0, 0), 16, 128, 128},        // 16.5
        {qRgb(255, 0, 0), 82, 91, 240},
    };
    for (const Known &colour : known) {
        QImage picture(2, 2, QImage::Format_RGB32);
        picture.fill(colour.pixel);
        const Planes planes = graphics::toPlanes(picture, picture.size());
        EXPECT_EQ(planes.y, QByteArray(4, static_cast<char>(colour.y)));
        EXPECT_EQ(at(planes.u, 0), colour.u);
        EXPECT_EQ(at(planes.v, 0), colour.v);
    }
}

struct Stored
{
    QSize picture;
    QSize planes;
};

void PrintTo(const Stored &sizes, std::ostream *out)
{
    *out << sizes.picture.width() << 'x' << sizes.picture.height() << " as " << sizes.planes.width() << 'x'
         << sizes.planes.height();
}

class StoredSizes : public testing::TestWithParam<Stored>
{
};

INSTANTIATE_TEST_SUITE_P(Planes, StoredSizes,
                         testing::Values(Stored{{9, 3}, {16, 4}}, Stored{{8, 2}, {16, 4}},
                                         Stored{{7, 5}, {7, 5}}, Stored{{9, 6}, {4, 3}},
                                         Stored{{1, 1}, {8, 2}}, Stored{{3, 9}, {5, 5}},
                                         Stored{{4, 4}, {1, 2}}, Stored{{0, 0}, {8, 2}},
                                         Stored{{4, 4}, {5, 1}}, Stored{{70, 4}, {77, 6}}));

// White stands outside, and chroma is that of the pixel at even x and y; an odd last column or row has none.
TEST_P(StoredSizes, takeEveryPixelAndChromaAtEvenPlaces)
{
    const auto [size, stored] = GetParam();
    const QImage picture = colourful(size);
    const auto wanted = [&](int x, int y) {
        return reference::yuvOf(picture.rect().contains(x, y) ? picture.pixel(x, y) : qRgb(255, 255, 255));
    };
    const Planes planes = graphics::toPlanes(picture, stored);
    ASSERT_EQ(planes.size(), stored);
    ASSERT_TRUE(planes.isComplete());
    for (int y = 0; y < stored.height(); ++y) {
        for (int x = 0; x < stored.width(); ++x)
            EXPECT_EQ(at(planes.y, y * stored.width() + x), wanted(x, y)[0]) << x << ' ' << y;
    }
    const int chromaWidth = stored.width() / 2;
    ASSERT_EQ(planes.u.size(), chromaWidth * (stored.height() / 2));
    for (int i = 0; i < planes.u.size(); ++i) {
        const auto sample = wanted(i % chromaWidth * 2, i / chromaWidth * 2);
        EXPECT_EQ(at(planes.u, i), sample[1]) << i;
        EXPECT_EQ(at(planes.v, i), sample[2]) << i;
    }
}

TEST_P(StoredSizes, keepRedAsAlphaAndNothingOutside)
{
    const auto [size, stored] = GetParam();
    const QImage picture = colourful(size);
    const AlphaPlane alpha = graphics::toAlphaPlane(picture, stored);
    ASSERT_EQ(alpha.size(), stored);
    const QImage grey = graphics::toPicture(alpha);
    for (int y = 0; y < stored.height(); ++y) {
        for (int x = 0; x < stored.width(); ++x) {
            const int wanted = picture.rect().contains(x, y) ? qRed(picture.pixel(x, y)) : 0;
            EXPECT_EQ(at(alpha.values, y * stored.width() + x), wanted);
            EXPECT_EQ(grey.pixel(x, y), qRgb(wanted, wanted, wanted));
        }
    }
}

// The chroma of the block; where there is none, of the block before, and without any, grey.
TEST_P(StoredSizes, areShownAgainPixelByPixel)
{
    const auto [size, stored] = GetParam();
    const Planes planes = graphics::toPlanes(colourful(size), stored);
    const QImage picture = graphics::toPicture(planes);
    ASSERT_EQ(picture.size(), stored);
    for (int y = 0; y < stored.height(); ++y) {
        for (int x = 0; x < stored.width(); ++x) {
            int u = 128;
            int v = 128;
            if (!planes.u.isEmpty()) {
                const int columns = stored.width() / 2;
                const int block =
                    std::min(y / 2, stored.height() / 2 - 1) * columns + std::min(x / 2, columns - 1);
                u = at(planes.u, block);
                v = at(planes.v, block);
            }
            EXPECT_EQ(picture.pixel(x, y), reference::pixelOf(at(planes.y, y * stored.width() + x), u, v))
                << x << ' ' << y;
        }
    }
}

// Alpha channels, palettes and packed formats change nothing about the colours.
TEST(Planes, areTheSameForEveryFormatOfAPicture)
{
    QImage palette(3, 2, QImage::Format_Indexed8);
    palette.setColorTable({qRgb(10, 20, 30), qRgb(200, 100, 0), qRgb(0, 99, 255)});
    for (int i = 0; i < 6; ++i)
        palette.setPixel(i % 3, i / 3, static_cast<uint>(i * i % 3));
    const QImage plain = palette.convertToFormat(QImage::Format_RGB32);
    QImage transparent = plain.convertToFormat(QImage::Format_ARGB32);
    transparent.setPixel(0, 0, plain.pixel(0, 0) & 0xFFFFFF);
    const Planes wanted = graphics::toPlanes(plain, {8, 2});
    const QImage pictures[] = {palette, transparent, plain.convertToFormat(QImage::Format_RGB888),
                               plain.convertToFormat(QImage::Format_ARGB32_Premultiplied)};
    for (const QImage &picture : pictures)
        EXPECT_EQ(graphics::toPlanes(picture, {8, 2}), wanted) << picture.format();
}

TEST(Planes, areNotShownWhereTheirLengthsDoNotFit)
{
    Planes planes = graphics::toPlanes(colourful({8, 4}), {8, 4});
    planes.v.chop(1);
    EXPECT_TRUE(graphics::toPicture(planes).isNull());
    EXPECT_TRUE(graphics::toPicture(Planes()).isNull());
    EXPECT_TRUE(
        graphics::toPicture(Planes{-8, -4, QByteArray(32, 0), QByteArray(8, 0), QByteArray(8, 0)}).isNull());
    EXPECT_TRUE(graphics::toPicture(AlphaPlane{4, 4, QByteArray(15, 0)}).isNull());
    EXPECT_FALSE(graphics::toPlanes(colourful({8, 4}), {0, 4}).isComplete());
}

QImage filled(QSize size, QRgb colour)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    return picture;
}

TEST(Composer, cutsFaintAlphaOffAndLeavesATraceOfTheBackground)
{
    struct Mix
    {
        int background, source, alpha, level, result;
    };
    const Mix mixes[] = {
        {255, 0, 255, 255, 2},    // 255 * 510 / 65535 = 1.98
        {10, 255, 37, 255, 10},   // cut off
        {10, 255, 38, 255, 46},   // 10 + 245 * 9690 / 65535 = 46.23
        {10, 255, 255, 0, 10},    // level 0
        {200, 100, 128, 128, 175} // 200 - 100 * 16384 / 65535 = 175.0
    };
    for (const Mix &mix : mixes) {
        QImage surface = filled({1, 1}, qRgb(mix.background, mix.background, mix.background));
        const QImage source = filled({1, 1}, qRgb(mix.source, mix.source, mix.source));
        graphics::compose(surface, {}, source, {1, 1, QByteArray(1, static_cast<char>(mix.alpha))},
                          static_cast<quint8>(mix.level));
        EXPECT_EQ(surface.pixel(0, 0), qRgb(mix.result, mix.result, mix.result)) << mix.alpha;
    }
}

TEST(Composer, drawsWhereSurfaceSourceAndAlphaMeet)
{
    const QRgb black = qRgb(0, 0, 0);
    const QRect surface(0, 0, 10, 8);
    const QRect drawn[] = {{2, 1, 4, 3}, {-2, -1, 4, 3}, {8, 6, 4, 3}, {-4, 0, 4, 3}, {0, 20, 4, 3}};
    for (const QRect &place : drawn) {
        // The source is larger than its alpha plane, which has a hole.
        QImage result = filled(surface.size(), black);
        AlphaPlane alpha{4, 3, QByteArray(12, '\xFF')};
        alpha.values[5] = 0;
        graphics::compose(result, place.topLeft(), filled({6, 6}, qRgb(255, 255, 255)), alpha, 255);
        for (int y = 0; y < surface.height(); ++y) {
            for (int x = 0; x < surface.width(); ++x) {
                const bool covered = place.contains(x, y) && QPoint(x, y) - place.topLeft() != QPoint(1, 1);
                EXPECT_EQ(qRed(result.pixel(x, y)), covered ? 253 : 0) << x << ' ' << y << ' ' << place.x();
            }
        }
    }
}

} // namespace
