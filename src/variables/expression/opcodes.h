#pragma once

#include <QtGlobal>

#include <array>
#include <string_view>

namespace variables::expression {

// The recorder's operations and functions: the one table that parser, compressor, evaluator and rebuilder
// work from. A value lies in a slot of the stack; an operation works on its slot and the ones above it and
// leaves its result in its slot.

enum class Op : quint8 {
    LessOrEqual = 0,
    GreaterOrEqual = 1,
    NotEqual = 2,
    Equal = 3,
    Less = 4,
    Greater = 5,
    Add = 6,
    Subtract = 7,
    Multiply = 8,
    Divide = 9,
    Power = 10,
    And = 11,
    Or = 12,
    Xor = 13,
    Nothing = 14,
    LoadVariable = 18,
    LoadConstant = 20,
    Call = 21,
    NothingEither = 24,
    End = 25
};

enum class Function : quint8 {
    Sin = 1,
    Cos,
    Tan,
    ASin,
    ACos,
    ATan,
    SinH,
    CosH,
    TanH,
    ASinH,
    ACosH,
    ATanH,
    Log2,
    Log10,
    Ln,
    Exp,
    Sqrt,
    Sign,
    Round,
    Abs,
    Int,
    If,
    Negate,
    Sum,
    Avg,
    Min,
    Max
};

struct OperationRow
{
    Op code;
    std::string_view text; // of operators; equations are read without regard to case
    int operandBytes;      // in a byte program, after slot and code
    int reach;             // how many slots it reads or writes, from its own upward
    int precedence;        // of operators, 1 binds loosest; 0: not written by the user
};

inline constexpr int NoPrecedence = 0;
inline constexpr int LoosestPrecedence = 1;
inline constexpr int PowerPrecedence = 6;

inline constexpr std::array<OperationRow, 20> Operations{{
    {Op::LessOrEqual, "<=", 0, 2, 3},
    {Op::GreaterOrEqual, ">=", 0, 2, 3},
    {Op::NotEqual, "!=", 0, 2, 3},
    {Op::Equal, "==", 0, 2, 3},
    {Op::Less, "<", 0, 2, 3},
    {Op::Greater, ">", 0, 2, 3},
    {Op::Add, "+", 0, 2, 4},
    {Op::Subtract, "-", 0, 2, 4},
    {Op::Multiply, "*", 0, 2, 5},
    {Op::Divide, "/", 0, 2, 5},
    {Op::Power, "^", 0, 2, PowerPrecedence},
    {Op::And, "And", 0, 2, 2},
    {Op::Or, "Or", 0, 2, LoosestPrecedence},
    {Op::Xor, "Xor", 0, 2, LoosestPrecedence},
    {Op::Nothing, "", 0, 0, NoPrecedence},
    {Op::LoadVariable, "", 2, 1, NoPrecedence}, // catalogue index - 1
    {Op::LoadConstant, "", 4, 1, NoPrecedence}, // bits of a 32-bit float
    {Op::Call, "", 2, 1, NoPrecedence},         // number of arguments, function code
    {Op::NothingEither, "", 0, 0, NoPrecedence},
    {Op::End, "", 0, 0, NoPrecedence},
}};

struct FunctionRow
{
    Function code;
    std::string_view text; // with its opening bracket
    int arguments;         // or SeveralArguments
};

inline constexpr int SeveralArguments = 2; // and more

inline constexpr std::array<FunctionRow, 27> Functions{{
    {Function::Sin, "Sin(", 1},
    {Function::Cos, "Cos(", 1},
    {Function::Tan, "Tan(", 1},
    {Function::ASin, "ASin(", 1},
    {Function::ACos, "ACos(", 1},
    {Function::ATan, "Atan(", 1},
    {Function::SinH, "SinH(", 1},
    {Function::CosH, "CosH(", 1},
    {Function::TanH, "TanH(", 1},
    {Function::ASinH, "ASinh(", 1},
    {Function::ACosH, "ACosh(", 1},
    {Function::ATanH, "ATanh(", 1},
    {Function::Log2, "Log2(", 1},
    {Function::Log10, "Log10(", 1},
    {Function::Ln, "Ln(", 1},
    {Function::Exp, "Exp(", 1},
    {Function::Sqrt, "Sqrt(", 1},
    {Function::Sign, "Sign(", 1},
    {Function::Round, "Round(", 1},
    {Function::Abs, "Abs(", 1},
    {Function::Int, "Int(", 1},
    {Function::If, "IF(", 3},
    {Function::Negate, "(-", 1}, // written as a minus, not as a function
    {Function::Sum, "Sum(", SeveralArguments},
    {Function::Avg, "Avg(", SeveralArguments},
    {Function::Min, "Min(", SeveralArguments},
    {Function::Max, "Max(", SeveralArguments},
}};

// The row of a code as found in a program; null when there is none.
constexpr const OperationRow *operationRow(quint32 code)
{
    constexpr auto rows = [] {
        std::array<const OperationRow *, static_cast<std::size_t>(Op::End) + 1> byCode{};
        for (const OperationRow &row : Operations)
            byCode[static_cast<std::size_t>(row.code)] = &row;
        return byCode;
    }();
    return code < rows.size() ? rows[code] : nullptr;
}

// The row of a function that may be called with so many arguments; null when there is none. No function takes
// none; what takes one argument takes no other number, and the others take any but one.
constexpr const FunctionRow *functionRow(quint32 code, int arguments)
{
    if (code < 1 || code > Functions.size())
        return nullptr;
    const FunctionRow &row = Functions[code - 1];
    return (row.arguments == 1) == (arguments == 1) ? &row : nullptr;
}

} // namespace variables::expression
