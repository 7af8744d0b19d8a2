#include "fuzz/targets.h"
#include "variables/expression/compiler.h"
#include "variables/expression/evaluator.h"
#include "variables/expression/rebuilder.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

using namespace variables::expression;

constexpr int Owner = 42;
const platform::NumberLocale Plain;
const platform::NumberLocale Comma{",", ";"};

QString rebuilt(const QByteArray &program, int variable = Owner, const platform::NumberLocale &locale = Plain)
{
    QString text("left over");
    const bool done = rebuildEquation(program, variable, locale, text);
    return done ? text : text.isEmpty() ? QString("failed") : QString("failed with a text");
}

TEST(Rebuilder, writesEquationsAsUsersTypeThem)
{
    const std::pair<const char *, const char *> cases[] = {
        {"-var_0007^2", "0 - (VAR_0007 ^ 2)"},
        {"-5", "(-5)"},
        {"1e10<=x and 0.00005!=2", "(1E+10 <= u) And (5E-05 != 2)"},
        {"x*sin(x+1)-max(u,1.5,2x)", "(u * (Sin(u + 1))) - (Max(u,1.5,2 * u))"},
        {"if(x>1,asinh(x),atan(-x))", "IF(u > 1,ASinh(u),Atan((-u)))"},
    };
    QByteArray program;
    for (const auto &[equation, text] : cases) {
        ASSERT_TRUE(compile(equation, program, Owner, Plain)) << equation;
        EXPECT_EQ(rebuilt(program), text);
    }
    ASSERT_TRUE(compile("max(x,1.5)", program, Owner, Plain));
    EXPECT_EQ(rebuilt(program, 41), "Max(VAR_0042,1.5)");
    EXPECT_EQ(rebuilt(program, Owner, Comma), "Max(u;1,5)");
}

TEST(ByteProgram, anyBytesAreSafe)
{
    using enum RunStatus;
    const std::tuple<const char *, RunStatus, const char *> cases[] = {
        {"01140000", Invalid, "failed"}, // cut off
        {"FF0E FF18 01122900 FF19", Ended, "u"},
        {"010F 0119", Invalid, "failed"},
        {"64122900 0119", Invalid, "failed"},
        {"6306 0119", Invalid, "failed"},
        {"01123F1F 0119", Ended, "VAR_8000"},
        {"0112401F 0119", Invalid, "VAR_8001"},
        {"01122900 011500FF 0119", Ended, "u"}, // a call without arguments does nothing
        {"0115FF18 0119", Invalid, "failed"},   // more arguments than slots
        {"62150216 0119", Invalid, "failed"},   // reads three slots all the same
        {"01150216 0119", Ended, "IF(,,)"},
        {"01140000807F 02140000803F 0106 0119", RunStatus::RunTimeError, "INF + 1"},
    };
    for (const auto &[hex, status, text] : cases) {
        const QByteArray program = QByteArray::fromHex(hex);
        EXPECT_EQ(Standard(program).status, status) << hex;
        EXPECT_EQ(rebuilt(program), text) << hex;
    }
}

// With a negative or a compound operand on either side of each operator, as deep as three of them.
TEST(Rebuilder, whatItWritesCompilesToTheSameBytes)
{
    const QStringList operands{"x", "-2.5e-7", "-(u-1)", "3var_4711", "-Min(x,2,-u)"};
    const QStringList operators{"<=", "!=", "<", "+", "-", "*", "/", "^", " And ", " or ", " XOR "};
    for (const QString &left : operands) {
        for (const QString &right : operands) {
            for (int i = 0; i < operators.size() * operators.size(); ++i) {
                const QString pair = left + operators[i % operators.size()] + right,
                              outer = operators[i / operators.size()];
                for (const QString &equation : {pair + outer + left, right + outer + "(" + pair + ")"})
                    EXPECT_TRUE(fuzz::expression(equation.toLatin1())) << qPrintable(equation);
            }
        }
    }
}

} // namespace
