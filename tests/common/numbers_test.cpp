#include "common/number_parser.h"
#include "common/number_text.h"
#include "common/rounding.h"

#include <gtest/gtest.h>

namespace {

using namespace common;

constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(LeadingNumber, takesTheLongestPrefixAndIgnoresTheRest)
{
    for (const char *text : {"", "abc", "-", "+", "0x10", "infinite", "-nan", "1e-400", ", 5"})
        EXPECT_EQ(leadingNumber(text), 0) << text;
    for (const char *text : {"12.5", "  12.5px", "+12.5", "12.5.3", "12.5,3", "125e-1", "12.5e"})
        EXPECT_EQ(leadingNumber(text), 12.5) << text;
    EXPECT_EQ(leadingNumber("-.5"), -0.5);
    EXPECT_EQ(leadingNumber("1e400"), Infinite); // to be refused or clamped, never 0
}

TEST(ShortestText, switchesToExponentsAndUsesTheDecimalMark)
{
    const std::pair<float, const char *> cases[] = {
        {0.5F, "0,5"},   {-0.0F, "0"},        {1.0F / 3, "0,33333334"}, {9999999.0F, "9999999"},
        {1e7F, "1E+07"}, {0.0001F, "0,0001"}, {-2.5e-5F, "-2,5E-05"},   {16777216.0F, "1,6777216E+07"}};
    for (const auto &[value, expected] : cases)
        EXPECT_EQ(shortestText(value, ",").toStdString(), expected);
}

TEST(FixedText, roundsTheShortestTextWithHalvesAwayFromZero)
{
    const std::tuple<float, int, QString> cases[] = {
        {1.5F, 2, "1,50"},       {2.675F, 2, "2,68"},        {-0.125F, 2, "-0,13"}, {0.994F, 2, "0,99"},
        {9.995F, 2, "10,00"},    {-0.004F, 2, "0,00"},       {1e-5F, 5, "0,00001"}, {99.5F, 0, "100"},
        {1e7F, 1, "10000000,0"}, {float(Infinite), 2, "INF"}};
    for (const auto &[value, places, expected] : cases)
        EXPECT_EQ(fixedText(value, places, ",").toStdString(), expected.toStdString());
    EXPECT_EQ(fixedText(std::numeric_limits<float>::lowest(), 20).size(), 1 + 39 + 1 + 20);
}

TEST(Rounding, halvesGoToTheEvenNeighbourAndOverflowThrowsOrIsClamped)
{
    EXPECT_EQ(toInteger<int>(10.5), 10);
    EXPECT_EQ(toInteger<int>(11.5), 12);
    EXPECT_EQ(toInteger<qint16>(-32768.5), -32768);
    for (const double tooFar : {255.5, -0.51, Infinite, -Infinite, NotANumber})
        EXPECT_THROW(toInteger<quint8>(tooFar), RunTimeError) << tooFar;
    EXPECT_THROW(toInteger<qint32>(2147483647.5), RunTimeError);
    for (const auto &[value, clamped] :
         {std::pair(32767.5, 32767), {-Infinite, -32768}, {NotANumber, 0}, {2.5, 2}})
        EXPECT_EQ(toIntegerClamped<qint16>(value), clamped);
    EXPECT_EQ(wholeDivide(7.6, 2), 4); // the operands are rounded, the quotient is cut
    EXPECT_EQ(wholeDivide(-7, 2), -3);
    EXPECT_THROW(wholeDivide(10, 0.5), RunTimeError);
}

TEST(NumberParser, readsBothDecimalMarksWhateverTheLocale)
{
    for (const char *text :
         {"1,5", "  1.5E0 ", "+1.5", "1.500", "1.5.9", "1.5E", "1.5Exyz", "15E-1", ".15e+1 km",
          "\u0661\u066B\u0665", "\u06F1\u066B\u06F5", "\u0967.\u096B", "\U00011137.5"})
        EXPECT_DOUBLE_EQ(parseNumber(text), 1.5) << text;
    const std::pair<QString, double> cases[] = {{"-0.05", -0.05},
                                                {"10,0500", 10.05},
                                                {"-,25", -0.25},
                                                {"- 7.", -7},
                                                {"1 000", 1000},
                                                {"E5", 0},
                                                {"-", 0},
                                                {"", 0},
                                                {"1" + QString(44, '0'), 1e39}}; // forty characters count
    for (const auto &[text, expected] : cases)
        EXPECT_DOUBLE_EQ(parseNumber(text), expected) << qPrintable(text);
}

TEST(NumberParser, fieldsTakeOnlyWhatNumbersAreMadeOf)
{
    for (const char16_t key : std::u16string_view(u"09.,-\b\r\u0660\u06F9\u066B"))
        EXPECT_TRUE(isNumericKey(QChar(key), "\u066B")) << int{key};
    for (const char16_t key : std::u16string_view(u"e+ \n\0", 5))
        EXPECT_FALSE(isNumericKey(QChar(key), ".")) << int{key};
}

} // namespace
