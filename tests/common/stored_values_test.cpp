#include "common/code_page.h"
#include "common/colour.h"

#include <gtest/gtest.h>

namespace {

using namespace common;

TEST(CodePage, everyByteSurvivesAndForeignCharactersBecomeQuestionMarks)
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(static_cast<char>(byte));
    EXPECT_EQ(toCodePage(fromCodePage(all)), all);
    EXPECT_EQ(fromCodePage("\x80 \x9E \xB0\x43 \xFF"), QString("€ ž °C ÿ"));
    EXPECT_EQ(toCodePage("“5 µ” Ω 😀!"), "\x93\x35 \xB5\x94 ? ?!");
    EXPECT_EQ(toCodePage("0\u066B1"), "0.1"); // must not become 1
}

TEST(ColourFormulas, divideInFloatingPointRoundHalvesToEvenAndLimit)
{
    const std::pair<quint32, Yuv> toFile[] = {
        {0xFFFFFF, {236, 128, 128}}, // chroma 128.5
        {0x000000, {16, 128, 128}},  // luma 16.5
        {0x0000FF, {82, 91, 240}},   // red in the low byte
        {0x00FF00, {145, 55, 35}},   {0xFF0000, {41, 240, 111}},
        {0x000080, {50, 110, 184}}, // 49.5, 109.5 and 184.5: a shift would give 49, 109, 184
    };
    for (const auto &[packed, yuv] : toFile)
        EXPECT_EQ(toYuv(packed), yuv) << std::hex << packed;
    const std::pair<Yuv, quint32> fromFile[] = {
        {{16, 128, 128}, 0x000000},
        {{236, 128, 128}, 0xFFFFFF},
        {{82, 91, 240}, 0x0301FF}, // 256.3, 0.8, 2.75
        {{16, 0, 0}, 0x009A00},    // below zero, 154.5, below zero
    };
    for (const auto &[yuv, packed] : fromFile)
        EXPECT_EQ(toPacked(yuv), packed) << std::hex << packed;
}

// A grey climbs by one at every pass through both formulas, and the workspace is saved every day.
TEST(Colour, keepsItsFileBytesUntilItIsChanged)
{
    const Yuv grey{100, 128, 128};
    Colour colour = Colour::fromFile(grey);
    EXPECT_EQ(colour.packed(), 0x626262U); // 298 * 84 / 256 is 98
    colour.setPacked(0x626262);            // an Apply that changes nothing
    EXPECT_EQ(colour.yuv(), grey);
    colour.setPacked(0x0000FF);
    colour.setPacked(0x626262);
    EXPECT_EQ(colour.yuv(), (Yuv{101, 128, 128}));
}

} // namespace
