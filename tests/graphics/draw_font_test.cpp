#include "graphics/font_file.h"
#include "graphics/glyph_lists.h"
#include "graphics/modDrawFont.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <numeric>

namespace graphics {

namespace {

constexpr QRgb Ground = 0xFF204060;
constexpr int LineHeight = 9;
constexpr int Far = 2000000000;

QByteArray fileOf(int glyphCount, int lineHeight, const std::map<char16_t, Glyph> &glyphs)
{
    RasterFont font{lineHeight, std::vector<Glyph>(static_cast<std::size_t>(glyphCount))};
    for (const auto &[character, glyph] : glyphs)
        font.glyphs.at(static_cast<std::size_t>(lookUpGlyph(character).index)) = glyph;
    return *FontFile(font);
}

// "A" is 2 x 2, one row below the top; "j" is 5 wide and blank; "!" is one pixel in the other file; "B" is a
// strip of all coverages from 1 to 254.
TextFont font()
{
    Glyph strip{254, 1, 0, std::vector<quint8>(254)};
    std::iota(strip.coverage.begin(), strip.coverage.end(), quint8{1});
    const Glyph a{2, 2, 1, {255, 0, 128, 255}}, j{5, 1, 0, {0, 0, 0, 0, 0}}, mark{1, 1, 4, {255}};
    return *TextFont::fromFiles(fileOf(StandardGlyphs, LineHeight, {{u'A', a}, {u'B', strip}, {u'j', j}}),
                                fileOf(ExtendedGlyphs, LineHeight + 3, {{u'!', mark}}));
}

QImage surface(int width, int height, QRgb colour = Ground)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

// Where the image differs from the ground, as "x,y x,y ..." row by row.
std::string changedPixels(const QImage &image)
{
    std::string places;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const int x = i % image.width(), y = i / image.width();
        if (image.pixel(x, y) != Ground)
            places += std::to_string(x) + "," + std::to_string(y) + " ";
    }
    return places;
}

TEST(DrawText, movesThePenByWidthAndTwoAndDrawsWhatLiesOnTheSurface)
{
    const std::tuple<const char *, QPoint, int, const char *> cases[] = {
        {"", {10, 3}, 0, ""},
        {"AA", {10, 3}, 8, "10,4 14,4 10,5 11,5 14,5 15,5 "},
        {"A!", {10, 3}, 7, "10,4 10,5 11,5 14,7 "},
        {" !", {10, 3}, 10, "17,7 "}, // a blank moves as far as "j"
        {"~!", {10, 3}, 10, "17,7 "},
        {"C!", {10, 3}, 5, "12,7 "}, // an empty glyph
        {"A", {-1, -1}, 4, "0,1 "},
        {"A", {0, -2}, 4, "0,0 1,0 "},
        {"A", {59, 17}, 4, "59,18 59,19 "},
        {"A", {58, 18}, 4, "58,19 "},
        {"A", {60, 0}, 4, ""},
        {"A", {0, 19}, 4, ""},
        {"A", {-Far, -Far}, 4, ""},
        {"A", {Far, Far}, 4, ""},
    };
    for (const auto &[text, place, advance, pixels] : cases) {
        QImage image = surface(60, 20);
        const TextExtent extent{place.x() + advance, LineHeight};
        EXPECT_EQ(drawText(font(), QLatin1String(text), {place, 0xFFFFFF}, image), extent) << text;
        EXPECT_EQ(changedPixels(image), pixels) << text << " at " << place.x() << ", " << place.y();
        EXPECT_EQ(font().penBehind(QString::fromLatin1(text), place.x()), extent.width) << text;
    }
}

TEST(DrawText, mixesEveryComponentByCoverageAndOpacity)
{
    for (const int opacity : {0, 1, 128, 254, 255}) {
        for (const QRgb below : {0xFF000000, 0xFFFFFFFF, 0xFFC80501}) {
            for (const QRgb ink : {qRgb(0, 0, 0), qRgb(255, 255, 255), qRgb(48, 32, 16)}) {
                QImage image = surface(254, 1, below);
                const auto packed = static_cast<quint32>(qRed(ink) | qGreen(ink) << 8 | qBlue(ink) << 16);
                drawText(font(), QStringLiteral("B"), {{}, packed, static_cast<quint8>(opacity)}, image);
                for (int x = 0; x < 254; ++x) {
                    const double a = (x + 1) / 255.0 * (opacity / 255.0);
                    const auto mixed = [a](int background, int text) {
                        return static_cast<int>(std::nearbyint((1 - a) * background + a * text));
                    };
                    ASSERT_EQ(image.pixel(x, 0),
                              qRgb(mixed(qRed(below), qRed(ink)), mixed(qGreen(below), qGreen(ink)),
                                   mixed(qBlue(below), qBlue(ink))))
                        << "coverage " << x + 1 << ", opacity " << opacity;
                }
            }
        }
    }
}

TEST(DrawText, fillsTheLineFromTheBackgroundUpToTheRightEdge)
{
    QImage background = surface(760, 30);
    for (int i = 0; i < 760 * 30; ++i)
        background.setPixel(i % 760, i / 760, 0xFF000000 | static_cast<QRgb>(i));
    for (const int left : {700, 730}) { // behind the edge nothing is filled
        QImage image = surface(760, 30);
        drawText(font(), QStringLiteral("!"), {{left, 12}, 0xFFFFFF, 255, &background}, image);
        for (int i = 0; i < 760 * 30; ++i) {
            const int x = i % 760, y = i / 760;
            const bool filled = x >= left && x < 720 && y >= 12 && y < 12 + LineHeight;
            const QRgb below = filled ? background.pixel(x, y) : Ground;
            ASSERT_EQ(image.pixel(x, y), x == left && y == 16 ? 0xFFFFFFFF : below) << x << ", " << y;
        }
    }
}

} // namespace

} // namespace graphics
