#include "variables/units.h"

#include <gtest/gtest.h>

namespace {

using namespace variables;

TEST(NumberText, keepsSoManyDigits)
{
    const std::tuple<double, int, const char *> cases[] = {
        {-9e-31, 5, "0"},         {100, 3, "100"},       {0.5, 3, "0.5"},     {0.05, 3, "5e-2"},
        {-0.12345, 3, "-0.123"},  {0.1235, 5, "0.1235"}, {2.125, 3, "2.12"},  {-10.4, 3, "-10.4"},
        {1234.567, 3, "1234.57"}, {12345, 3, "1.23e4"},  {12345, 5, "12345"}, {1.2345e-5, 3, "1.23e-5"},
        {99960, 3, "10e4"},       {1e15, 5, "1e15"}};
    for (const auto &[value, digits, text] : cases)
        EXPECT_EQ(numberText(value, digits), text) << value;
}

TEST(PolynomialText, isWrittenToTheLetter)
{
    const std::pair<Coefficients, const char *> cases[] = {
        {{1, 1, 1, 1}, "x^3 + x^2 + x + 1"},
        {{-1, -1, -1, -1}, "-1*x^3 - 1x^2 - 1*x - 1"},
        {{0, -2, 0, 5}, " - 2x^2 + 5"},
        {{0, 1, -12, 0.05}, " x^2 - 12*x + 5e-2"},
    };
    for (const auto &[coefficients, text] : cases)
        EXPECT_EQ(polynomialText(coefficients), text);
    EXPECT_EQ(polynomialText({0, 0, 2.5, -1}, 12), "2.5*var_0012 - 1");
}

TEST(Conversion, formsAreToldApartByTheirSigns)
{
    const std::pair<const char *, const char *> cases[] = {
        {"value$1$0", ""}, // the raw value needs no program
        {"K$1$273.15", "01120B00 021433938843 0106 0119"},
        {"", ""},
        {"a$1$2$3", ""}, // a polynomial of zeros is no equation
        {"1 $ 2,5 $ -1", "011400002040 02120B00 0108 02140000803F 0107 0119"},
        {"a$0$0$1$0", "01120B00 0119"}, // written out, since it is no line
        {"a$0$-2$0$0", "011400000000 021400000040 03120B00 041400000040 030A 0208 0107 0119"},
        {"x/4", "01120B00 021400008040 0109 0119"},
    };
    for (const auto &[conversion, program] : cases)
        EXPECT_EQ(conversionProgram(conversion, 12, {}).toHex(), QByteArray::fromHex(program).toHex())
            << conversion;
    EXPECT_EQ(conversionProgram("a$2.5$-1", 12, {",", ";"}), conversionProgram("a$2.5$-1", 12, {}));
}

} // namespace
