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
        {"x*2", "u * 2"},
        {"-(x+1)", "0 - (u + 1)"},
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
    const struct
    {
        const char *hex;
        RunStatus status;
        const char *text;
    } cases[] = {
        {"", RunStatus::Invalid, "failed"},
        {"01140000", RunStatus::Invalid, "failed"}, // cut off
        {"01122900", RunStatus::Invalid, "failed"}, // no end
        {"0119", RunStatus::Ended, ""},
        {"FF0E FF18 01122900 FF19", RunStatus::Ended, "u"},
        {"010F 0119", RunStatus::Invalid, "failed"},
        {"0116 0119", RunStatus::Invalid, "failed"},
        {"63122900 0119", RunStatus::Ended, ""},
        {"64122900 0119", RunStatus::Invalid, "failed"},
        {"6306 0119", RunStatus::Invalid, "failed"},
        {"01123F1F 0119", RunStatus::Ended, "VAR_8000"},
        {"0112401F 0119", RunStatus::Invalid, "VAR_8001"},
        {"01122900 011500FF 0119", RunStatus::Ended, "u"}, // a call without arguments does nothing
        {"01150116 0119", RunStatus::Invalid, "failed"},
        {"01150201 0119", RunStatus::Invalid, "failed"},
        {"0115011C 0119", RunStatus::Invalid, "failed"},
        {"6215031B 0119", RunStatus::Invalid, "failed"},
        {"0115FF18 0119", RunStatus::Invalid, "failed"}, // more arguments than slots
        {"62150216 0119", RunStatus::Invalid, "failed"}, // reads three slots all the same
        {"01150216 0119", RunStatus::Ended, "IF(,,)"},
        {"01140000807F 02140000803F 0106 0119", RunStatus::RunTimeError, "INF + 1"},
    };
    for (const auto &test : cases) {
        const QByteArray program = QByteArray::fromHex(test.hex);
        EXPECT_EQ(Standard(program).status, test.status) << test.hex;
        EXPECT_EQ(rebuilt(program), test.text) << test.hex;
    }
}

TEST(Rebuilder, textIsBounded)
{
    // Each slot, from the top down, becomes the sum of itself and all above: the text doubles each time.
    QByteArray program;
    for (int slot = 60; slot > 0; --slot)
        program.append(static_cast<char>(slot))
            .append('\x15')
            .append(static_cast<char>(62 - slot))
            .append('\x18');
    program.append("\x01\x19");
    EXPECT_EQ(Standard(program).status, RunStatus::Ended);
    EXPECT_EQ(rebuilt(program), "failed");
    // The lowest twelve make 55 * 2^11 - 1 characters, the lowest eleven 56 * 2^10 - 1.
    EXPECT_EQ(rebuilt(program.sliced(qsizetype{4} * 48)), "failed");
    EXPECT_EQ(rebuilt(program.sliced(qsizetype{4} * 49)).size(), 57'343);
}

// With a negative or a compound operand on either side of each operator, as deep as three of them.
TEST(Rebuilder, whatItWritesCompilesToTheSameBytes)
{
    const QStringList operands{"x", "-2.5e-7", "-(u-1)", "3var_4711", "-Min(x,2,-u)"};
    const QStringList operators{"<=", "!=", "<", "+", "-", "*", "/", "^", " And ", " or ", " XOR "};
    for (const QString &left : operands) {
        for (const QString &right : operands) {
            for (const QString &inner : operators) {
                const QString pair = left + inner + right;
                for (const QString &outer : operators) {
                    for (const QString &equation : {pair + outer + left, right + outer + "(" + pair + ")"})
                        EXPECT_TRUE(fuzz::expression(equation.toLatin1())) << qPrintable(equation);
                }
            }
        }
    }
}

} // namespace
