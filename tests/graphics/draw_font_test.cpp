#include "graphics/font_bytes.h"
#include "graphics/glyph_lists.h"
#include "graphics/modDrawFont.h"

#include <cmath>
#include <gtest/gtest.h>

namespace graphics {

namespace {

using test::PlainGlyph;

constexpr QRgb Ground = 0xFF204060;
constexpr int LineHeight = 9;

int placeOf(char16_t character) { return lookUpGlyph(character).index; }

// "A" is 2 x 2, one row below the top; "j" is 5 wide and blank; "!" is one pixel in the other file; "B" is a
// strip of all coverages from 1 to 254.
TextFont font()
{
    PlainGlyph strip{254, 1, 0, {}};
    for (int value = 1; value < 255; ++value)
        strip.pixels.push_back(value);
    const QByteArray standard = test::fontFile(StandardGlyphs, LineHeight,
                                               {{placeOf(u'A'), {2, 2, 1, {255, 0, 128, 255}}},
                                                {placeOf(u'B'), strip},
                                                {placeOf(u'j'), {5, 1, 0, {0, 0, 0, 0, 0}}}});
    const QByteArray extended =
        test::fontFile(ExtendedGlyphs, LineHeight + 3, {{placeOf(u'!'), {1, 1, 4, {255}}}});
    return *TextFont::fromFiles(standard, extended);
}

QImage surface(int width = 60, int height = 20)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Ground);
    return image;
}

TextLook look(int x, int y, quint8 opacity = 255)
{
    TextLook look;
    look.position = {x, y};
    look.colour = 0x00FFFFFF;
    look.opacity = opacity;
    return look;
}

// Where the image differs from the ground, as "x,y x,y ..." row by row.
std::string changedPixels(const QImage &image)
{
    std::string places;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != Ground)
                places += std::to_string(x) + "," + std::to_string(y) + " ";
        }
    }
    return places;
}

TEST(DrawText, movesThePenByWidthAndTwo)
{
    struct Case
    {
        const char *text;
        int pen;
        const char *pixels;
    };
    const Case cases[] = {
        {"", 10, ""},
        {"A", 14, "10,4 10,5 11,5 "},
        {"AA", 18, "10,4 14,4 10,5 11,5 14,5 15,5 "},
        {"A!", 17, "10,4 10,5 11,5 14,7 "},
        {" !", 20, "17,7 "}, // a blank moves as far as "j"
        {"~!", 20, "17,7 "},
        {"j!", 20, "17,7 "},
        {"C!", 15, "12,7 "}, // an empty glyph
    };
    for (const Case &sample : cases) {
        QImage image = surface();
        const QString text = QString::fromLatin1(sample.text);
        EXPECT_EQ(drawText(font(), text, look(10, 3), image), (TextExtent{sample.pen, LineHeight}))
            << sample.text;
        EXPECT_EQ(changedPixels(image), sample.pixels) << sample.text;
        EXPECT_EQ(font().penBehind(text, 10), sample.pen) << sample.text;
    }
}

TEST(DrawText, cutsOffWhatLiesOutside)
{
    struct Case
    {
        int x, y;
        const char *pixels;
    };
    const Case cases[] = {{-1, -1, "0,1 "},
                          {0, -2, "0,0 1,0 "},
                          {59, 17, "59,18 59,19 "},
                          {58, 18, "58,19 "},
                          {60, 0, ""},
                          {0, 19, ""},
                          {-100000, 5, ""},
                          {5, 100000, ""},
                          {-2000000000, -2000000000, ""},
                          {2000000000, 2000000000, ""}};
    for (const Case &sample : cases) {
        QImage image = surface();
        drawText(font(), QStringLiteral("A"), look(sample.x, sample.y), image);
        EXPECT_EQ(changedPixels(image), sample.pixels) << sample.x << ", " << sample.y;
    }
}

TEST(DrawText, mixesEveryComponentByCoverageAndOpacity)
{
    const auto mixed = [](int below, int ink, double share) {
        return static_cast<int>(std::nearbyint((1 - share) * below + share * ink));
    };
    for (const int opacity : {0, 1, 127, 128, 254, 255}) {
        for (const QRgb below : {0xFF000000, 0xFFFFFFFF, 0xFF204060, 0xFFC80501}) {
            for (const quint32 ink : {0x00000000U, 0x00FFFFFFU, 0x00102030U, 0x00FF0080U}) {
                QImage image(254, 1, QImage::Format_RGB32);
                image.fill(below);
                TextLook style = look(0, 0, static_cast<quint8>(opacity));
                style.colour = ink;
                drawText(font(), QStringLiteral("B"), style, image);
                for (int x = 0; x < 254; ++x) {
                    const double share = (x + 1) / 255.0 * (opacity / 255.0);
                    const QRgb expected = qRgb(mixed(qRed(below), ink & 0xFF, share),
                                               mixed(qGreen(below), ink >> 8 & 0xFF, share),
                                               mixed(qBlue(below), ink >> 16 & 0xFF, share));
                    ASSERT_EQ(image.pixel(x, 0), expected) << "coverage " << x + 1 << ", opacity " << opacity;
                }
            }
        }
    }
}

TEST(DrawText, fillsTheLineFromTheBackgroundUpToTheRightEdge)
{
    const QImage background = [] {
        QImage image(760, 30, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, qRgb(x % 256, x / 256, y));
        }
        return image;
    }();
    QImage image = surface(760, 30);
    TextLook style = look(700, 12);
    style.background = &background;
    drawText(font(), QStringLiteral("!"), style, image);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 680; x < image.width(); ++x) {
            const bool filled = x >= 700 && x < 720 && y >= 12 && y < 12 + LineHeight;
            const QRgb expected = x == 700 && y == 16 ? 0xFFFFFFFF : filled ? background.pixel(x, y) : Ground;
            ASSERT_EQ(image.pixel(x, y), expected) << x << ", " << y;
        }
    }
    style.position = {730, 12}; // behind the edge nothing is filled
    image.fill(Ground);
    drawText(font(), {}, style, image);
    EXPECT_EQ(changedPixels(image), "");
}

} // namespace

} // namespace graphics
