#include "variables/units.h"

#include <gtest/gtest.h>

namespace {

using namespace variables;

TEST(NumberText, keepsSoManyDigits)
{
    const struct
    {
        double value;
        int digits;
        const char *text;
    } cases[] = {
        {0, 3, "0"},
        {1e-30, 3, "0"},
        {-9e-31, 5, "0"},
        {100, 3, "100"},
        {0.5, 3, "0.5"},
        {0.05, 3, "5e-2"},
        {0.0625, 3, "6.25e-2"},
        {0.12345, 3, "0.123"},
        {-0.12345, 3, "-0.123"},
        {0.1235, 5, "0.1235"},
        {2.125, 3, "2.12"},
        {-10.4, 3, "-10.4"},
        {257.59, 3, "257.59"},
        {1234.567, 3, "1234.57"},
        {12345, 3, "1.23e4"},
        {12345, 5, "12345"},
        {0.000012345, 3, "1.23e-5"},
        {-1.1e-7, 3, "-1.1e-7"},
        {99960, 3, "10e4"},
        {1e-5, 5, "1e-5"},
        {1e15, 5, "1e15"},
        {0.1 + 0.2, 3, "0.3"},
    };
    for (const auto &test : cases)
        EXPECT_EQ(numberText(test.value, test.digits), test.text) << test.value;
}

TEST(PolynomialText, isWrittenToTheLetter)
{
    const std::pair<Coefficients, const char *> cases[] = {
        {{0, 0, 0, 0}, ""},
        {{1, 0, 0, 0}, "x^3"},
        {{0, 1, 0, 0}, " x^2"},
        {{0, 0, 1, 0}, " x"},
        {{0, 0, 0, 7}, "7"},
        {{1, 1, 1, 1}, "x^3 + x^2 + x + 1"},
        {{-1, -1, -1, -1}, "-1*x^3 - 1x^2 - 1*x - 1"},
        {{2, 3, 4, 0.5}, "2*x^3 + 3x^2 + 4*x + 0.5"},
        {{0, -2, 0, 5}, " - 2x^2 + 5"},
        {{0, 0.05, -12, 0}, "5e-2x^2 - 12*x"},
    };
    for (const auto &[coefficients, text] : cases)
        EXPECT_EQ(polynomialText(coefficients), text);
    EXPECT_EQ(polynomialText({0, 0, 2.5, -1}, 12), "2.5*var_0012 - 1");
    EXPECT_EQ(polynomialText({1, 1, 0, 0}, 12), "var_0012^3 + var_0012^2");
}

TEST(Conversion, formsAreToldApartByTheirSigns)
{
    const std::pair<const char *, const char *> cases[] = {
        {"value$1$0", ""}, // the raw value needs no program
        {"value$1,0$-0.0", ""},
        {"", ""},
        {"a$1", ""}, // a polynomial of zeros is no equation
        {"a$1$2$3", ""},
        {"no equation", ""},
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

TEST(Conversion, onlyAnAllowedUnitIsInForce)
{
    const UnitTable units{{}, {"km/h", "", "value$1$0", ""}, {"mph", "", "x/1.609", ""}};
    VariableRecord variable;
    variable.AllowTransformations = QStringList{"km/h", "mph", "gone"};
    for (const auto &[unit, conversion] :
         {std::pair("mph", "x/1.609"), {"MPH", ""}, {"", ""}, {"gone", ""}}) {
        variable.ApplyTransformation = unit;
        EXPECT_EQ(conversionInForce(variable, units), conversion) << unit;
    }
}

} // namespace
