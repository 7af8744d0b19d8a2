#include "variables/expression/compiler.h"
#include "variables/expression/evaluator.h"
#include "variables/expression/string_building.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using namespace variables::expression;

constexpr int Owner = 42;
const platform::NumberLocale Plain;
const platform::NumberLocale Comma{",", ";"};

QByteArray program(const QString &equation, const platform::NumberLocale &locale = Plain)
{
    QByteArray bytes;
    return compile(equation, bytes, Owner, locale) ? bytes : QByteArray();
}

TEST(StringBuilding, makesTextReadyForTheParser)
{
    const std::pair<const char *, const char *> cases[] = {
        {"EXP(3x)+Sum(u,2u) xor X", " exp(3var_0042)+sum(var_0042,2var_0042) xor var_0042 "},
        {"car_10+CAR_9+car_1+car_2+car_3+car_4+car_5+car_6+car_7+car_8", " 00+0+0+0+0+0+0+0+0+0 "},
        {"CdA*Roll+Mass+Temp+Press+Humid", " 0*0+0+temp+press+humid "},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(StringBuilding(text, Owner, Plain), expected);
    EXPECT_EQ(StringBuilding("1\u066B5\u060Cé", 7, {"\u066B", "\u060C"}), " 1.5,? ");
}

TEST(Compiler, writesTheBytesOfTheRecorder)
{
    const std::pair<const char *, const char *> cases[] = {
        {"x+1", "01122900 02140000803F 0106 0119"},
        {"2*Max(x,u)", "011400000040 02122900 03122900 0215021B 0108 0119"},
        {"-x", "01122900 01150117 0119"},
        {"-2^2", "011400000000 021400000040 031400000040 020A 0107 0119"},
        {"1-(-(x+1))", "01140000803F 021400000000 03122900 04140000803F 0306 0207 0107 0119"},
        {"3var_0012^2", "011400004040 02120B00 031400000040 020A 0108 0119"},
        {"IF(x>1,\r\n VAR_8000, 5e-1)", "01122900 02140000803F 0105 02123F1F 03140000003F 01150316 0119"},
    };
    for (const auto &[equation, bytes] : cases)
        EXPECT_EQ(program(equation).toHex(), QByteArray::fromHex(bytes).toHex()) << equation;
    EXPECT_EQ(program("1,5*max(x;2)", Comma).toHex(), program("1.5*max(x,2)").toHex());
}

// What an equation is worth where x is 3 and var_0012 is -2.
TEST(Compiler, bindsOperatorsAsInTheGrammar)
{
    const std::pair<const char *, double> cases[] = {
        {"2+3*4", 14},         {"7-2-1", 4},         {"8/4/2", 1},
        {"2^3^2", 64},         {"-2^2", -4},         {"2^-1", 0.5},
        {"2^-x^2", 1.0 / 512}, {"-x^2*2", -18},      {"--x", 3},
        {"2*-x-+1", -7},       {"2x^2", 18},         {"6/2x", 1},
        {"2^2x", 64},          {"-2var_0012^2", -8}, {"5e-2*1E+2+.5+5.", 10.5},
        {"1+2<4", 1},          {"3<2==0", 1},        {"x==3", 1},
        {"x!=3", 0},           {"x>=4", 0},          {"1 Or 2 And 4", 1},
        {"(1 or 2) and 4", 0}, {"5 xor 3 or 8", 14}, {"x and 1<2", 1},
        {"2.6 and 3", 3},      {"1 / 0", 0},
    };
    std::vector<float> values(Owner + 1);
    values[Owner] = 3;
    values[12] = -2;
    for (const auto &[equation, expected] : cases) {
        const RunResult result = Standard(program(equation), values);
        EXPECT_EQ(result.status, RunStatus::Ended) << equation;
        EXPECT_FLOAT_EQ(result.value, static_cast<float>(expected)) << equation;
    }
    EXPECT_EQ(Standard(program("-2147483648 or 0")).value, -0x1p31F);
    EXPECT_EQ(Standard(program("1+1e38*(1e-50+1e-400+0.0001e-99999)")).value, 1.0F);
    EXPECT_FLOAT_EQ(Standard(program("1e38*1e-45")).value, 1.401298e-7F);
}

TEST(Evaluator, knowsEveryFunction)
{
    const std::pair<const char *, double> cases[] = {
        {"sin(1)", 0.841471},    {"cos(1)", 0.540302},     {"tan(1)", 1.557408},  {"asin(0.5)", 0.523599},
        {"asin(-2)", -1.570796}, {"acos(0.5)", 1.047198},  {"acos(1)", 3.141593}, {"atan(1)", 0.785398},
        {"sinh(1)", 1.175201},   {"cosh(1)", 1.543081},    {"tanh(1)", 0.761594}, {"asinh(1)", 0.881374},
        {"acosh(2)", 1.316958},  {"atanh(0.5)", 0.549306}, {"log2(8)", 3},        {"log10(1000)", 3},
        {"log10(0)", 0},         {"ln(10)", 2.302585},     {"ln(-1)", 0},         {"exp(1)", 2.718282},
        {"sqrt(9)", 3},          {"sign(-2)", -1},         {"round(2.5)", 2},     {"round(-3.5)", -4},
        {"abs(-2)", 2},          {"int(-3.2)", -4},        {"if(1,5,7)", 5},      {"if(2,5,7)", 7},
        {"sum(1,2,3,4)", 10},    {"avg(1,2,6)", 3},        {"min(3,1,2)", 1},     {"max(3,1,4,2)", 4}};
    for (const auto &[equation, expected] : cases)
        EXPECT_NEAR(Standard(program(equation)).value, expected, 1e-6) << equation;
}

TEST(Compiler, refusesWhatIsNoEquation)
{
    for (const char *equation :
         {"",         " ",           "()",      "1+",     "*2",        "1 2",      "2 x",      "2(3)",
          "3sin(x)",  "(1",          "1)",      "1..2",   "1e",        "x u",      "1,2",      "#",
          "\xC3\xA9", "temp",        "sqr(2)",  "sin",    "sin()",     "sin(1,2)", "max(1)",   "sum()",
          "if(1,2)",  "if(1,2,3,4)", "max(1,)", "var_12", "var_00123", "var_0000", "var_8001", "Var_",
          "1e39",     "1and2",       "x!3",     "x=3",    "x<>3",      "10.1e38",  "1e400"})
        EXPECT_TRUE(program(equation).isEmpty()) << equation;
    EXPECT_TRUE(program(QString("1+2") + QChar(0)).isEmpty());
    // What the run with all variables 0 cannot finish.
    for (const char *equation :
         {"sqrt(x-1)", "exp(100)", "1e38*10", "0^-1", "(-8)^(1/3)", "atanh(1)", "3e9 and 1", "1 or 3e9",
          "-3e9 xor 1", "1 and -3e9", "2147483648 or 1", "1 or 2147483648"})
        EXPECT_TRUE(program(equation).isEmpty()) << equation;
}

TEST(Compiler, refusesWhatOutgrowsItsLimits)
{
    const auto sum = [](const QString &term, int terms) { return term + ('+' + term).repeated(terms - 1); };
    EXPECT_EQ(program(sum("x", 42)).size(), 252); // 252 words
    EXPECT_TRUE(program(sum("x", 43)).isEmpty());
    EXPECT_EQ(program(sum("1", 32)).size(), 256); // bytes are the narrower limit here
    EXPECT_TRUE(program(sum("1", 33)).isEmpty());
    for (const char *part : {"-", "(", "sin(", "1+(", "2^-", "max(1,", "3var_0001^"})
        EXPECT_TRUE(program(QString(part).repeated(100'000)).isEmpty()) << part;
    WordProgram full;
    while (full.size() < 252)
        full.append(FirstSlot, Op::Nothing);
    EXPECT_FALSE(full.subtractFromZero(0, FirstSlot)); // needs six words
    EXPECT_EQ(full.size(), 252);
}

} // namespace
