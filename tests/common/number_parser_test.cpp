#include "common/number_parser.h"

#include <gtest/gtest.h>

namespace {

using namespace common;

TEST(NumberParser, readsBothDecimalMarksWhateverTheLocale)
{
    for (const char *text :
         {"1,5", "1.5", "  1.5E0 ", "+1.5", "1.500", "1.5.9", "1.5E", "1.5Exyz", "15E-1", ".15e+1 km",
          "\u0661\u066B\u0665", "\u06F1\u066B\u06F5", "\u0967.\u096B", "\U00011137.5"})
        EXPECT_DOUBLE_EQ(parseNumber(text), 1.5) << text;
    for (const char *text : {"", "   ", "-", "km", "E5", "0.0"})
        EXPECT_EQ(parseNumber(text), 0) << text;
    const std::pair<const char *, double> cases[] = {
        {"-0.05", -0.05},
        {"0.001", 0.001},
        {"10,0500", 10.05},
        {"-,25", -0.25},
        {"- 7.", -7},
        {"1 000", 1000},
        {"100000000000000000000000000000000000000099999", 1e39}}; // forty characters count
    for (const auto &[text, expected] : cases)
        EXPECT_DOUBLE_EQ(parseNumber(text), expected) << text;
}

TEST(NumberParser, fieldsTakeOnlyWhatNumbersAreMadeOf)
{
    for (const char key : {'0', '9', '.', ',', '-', '\b', '\r'})
        EXPECT_TRUE(isNumericKey(QLatin1Char(key), ".")) << int{key};
    for (const char key : {'e', '+', ' ', '\n', '\0'})
        EXPECT_FALSE(isNumericKey(QLatin1Char(key), ".")) << int{key};
    for (const char16_t key : u"\u0660\u06F9\u066B") // digits and the mark between them
        EXPECT_TRUE(key == 0 || isNumericKey(QChar(key), "\u066B")) << int{key};
}

} // namespace
