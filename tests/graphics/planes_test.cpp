#include "graphics/composer.h"
#include "graphics/planes.h"
#include "reference.h"

#include <gtest/gtest.h>

namespace {

using graphics::AlphaPlane;
using graphics::Planes;

int at(const QByteArray &plane, int index) { return static_cast<quint8>(plane[index]); }

QImage filled(QSize size, QRgb colour)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    return picture;
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

TEST(Planes, growByTheWholePaddingWhereAPictureFitsAlready)
{
    const QSize sizes[][2] = {
        {{720, 576}, {728, 578}}, {{104, 52}, {112, 54}}, {{9, 3}, {16, 4}}, {{101, 51}, {104, 52}}};
    for (const auto &[picture, padded] : sizes)
        EXPECT_EQ(graphics::paddedSize(picture), padded) << picture.width();
}

// White and alpha 0 stand outside. Chroma is that of the pixel at even x and y; an odd last column or row has
// none and is shown with the one before, and without any in grey.
TEST(Planes, takeEveryPixelAndChromaAtEvenPlacesAndShowThemAgain)
{
    const QSize sizes[][2] = {{{9, 3}, {16, 4}}, {{8, 2}, {16, 4}}, {{7, 5}, {7, 5}}, {{9, 6}, {4, 3}},
                              {{1, 1}, {8, 2}},  {{3, 9}, {5, 5}},  {{4, 4}, {1, 2}}, {{0, 0}, {8, 2}},
                              {{4, 4}, {5, 1}},  {{70, 4}, {77, 6}}};
    for (const auto &[size, stored] : sizes) {
        SCOPED_TRACE(testing::Message() << size.width() << " wide as " << stored.width());
        const QImage picture = colourful(size);
        const Planes planes = graphics::toPlanes(picture, stored);
        const AlphaPlane alpha = graphics::toAlphaPlane(picture, stored);
        const QImage shown = graphics::toPicture(planes), grey = graphics::toPicture(alpha);
        const int columns = stored.width() / 2, rows = stored.height() / 2;
        ASSERT_TRUE(planes.isComplete() && alpha.isComplete());
        ASSERT_TRUE(shown.size() == stored && grey.size() == stored && planes.u.size() == columns * rows);
        for (int i = 0; i < stored.width() * stored.height(); ++i) {
            const int x = i % stored.width(), y = i / stored.width();
            const bool inside = picture.rect().contains(x, y);
            const auto wanted = reference::yuvOf(inside ? picture.pixel(x, y) : qRgb(255, 255, 255));
            const int block = std::min(y / 2, rows - 1) * columns + std::min(x / 2, columns - 1);
            const int u = columns * rows > 0 ? at(planes.u, block) : 128;
            const int v = columns * rows > 0 ? at(planes.v, block) : 128;
            EXPECT_EQ(at(planes.y, i), wanted[0]);
            if (x % 2 == 0 && y % 2 == 0 && x / 2 < columns && y / 2 < rows) {
                EXPECT_TRUE(u == wanted[1] && v == wanted[2]) << x << ", " << y;
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
    QImage palette(3, 2, QImage::Format_Indexed8);
    palette.setColorTable({qRgb(10, 20, 30), qRgb(200, 100, 0), qRgb(0, 99, 255)});
    for (int i = 0; i < 6; ++i)
        palette.setPixel(i % 3, i / 3, static_cast<uint>(i * i % 3));
    const QImage plain = palette.convertToFormat(QImage::Format_RGB32);
    QImage transparent = plain.convertToFormat(QImage::Format_ARGB32);
    transparent.setPixel(0, 0, plain.pixel(0, 0) & 0xFFFFFF);
    const Planes wanted = graphics::toPlanes(plain, {8, 2});
    for (const QImage &picture : {palette, transparent, plain.convertToFormat(QImage::Format_RGB888)})
        EXPECT_EQ(graphics::toPlanes(picture, {8, 2}), wanted) << picture.format();
}

TEST(Planes, areNotShownWhereTheirLengthsDoNotFit)
{
    Planes planes = graphics::toPlanes(colourful({8, 4}), {8, 4});
    planes.v.chop(1);
    EXPECT_TRUE(graphics::toPicture(planes).isNull());
    EXPECT_TRUE(graphics::toPicture(Planes()).isNull());
    planes = {-8, -4, QByteArray(32, 0), QByteArray(8, 0), QByteArray(8, 0)};
    EXPECT_TRUE(graphics::toPicture(planes).isNull());
    EXPECT_TRUE(graphics::toPicture(AlphaPlane{4, 4, QByteArray(15, 0)}).isNull());
    EXPECT_FALSE(graphics::toPlanes(colourful({8, 4}), {0, 4}).isComplete());
}

TEST(Composer, cutsFaintAlphaOffAndLeavesATraceOfTheBackground)
{
    const struct
    {
        int background, source, alpha, level, result;
    } mixes[] = {
        {255, 0, 255, 255, 2},  // 255 * 510 / 65535 = 1.98
        {10, 255, 37, 255, 10}, // cut off
        {10, 255, 38, 255, 46}, // 10 + 245 * 9690 / 65535 = 46.23
        {10, 255, 255, 0, 10},  // level 0
    };
    for (const auto &mix : mixes) {
        QImage surface = filled({1, 1}, qRgb(mix.background, mix.background, mix.background));
        const QImage source = filled({1, 1}, qRgb(mix.source, mix.source, mix.source));
        graphics::compose(surface, {}, source, {1, 1, QByteArray(1, static_cast<char>(mix.alpha))},
                          static_cast<quint8>(mix.level));
        EXPECT_EQ(surface.pixel(0, 0), qRgb(mix.result, mix.result, mix.result)) << mix.alpha;
    }
}

TEST(Composer, drawsWhereSurfaceSourceAndAlphaMeet)
{
    for (const QPoint at : {QPoint(2, 1), QPoint(-2, -1), QPoint(8, 6), QPoint(-4, 0), QPoint(0, 20)}) {
        // The source is larger than its alpha plane, which has a hole.
        QImage surface = filled({10, 8}, qRgb(0, 0, 0));
        AlphaPlane alpha{4, 3, QByteArray(12, '\xFF')};
        alpha.values[5] = 0;
        graphics::compose(surface, at, filled({6, 6}, qRgb(255, 255, 255)), alpha, 255);
        for (int i = 0; i < 80; ++i) {
            const QPoint place(i % 10, i / 10);
            const bool covered = QRect(at, alpha.size()).contains(place) && place - at != QPoint(1, 1);
            EXPECT_EQ(qRed(surface.pixel(place)), covered ? 253 : 0) << i << " from " << at.x();
        }
    }
}

} // namespace
