#include "variables/expression/functions.h"

#include "common/rounding.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace variables::expression {

namespace {

constexpr double HalfPi = 1.5707963267949;
constexpr double BeyondACos = 3.1415927; // also of 1: deliberate
constexpr double RunTimeError = std::numeric_limits<double>::quiet_NaN();

template <typename Bitwise>
double onWholeNumbers(double left, double right, Bitwise bitwise)
{
    constexpr double Lowest = std::numeric_limits<qint32>::min();
    constexpr double Highest = std::numeric_limits<qint32>::max();
    left = common::roundHalfEven(left);
    right = common::roundHalfEven(right);
    const bool fit = left >= Lowest && left <= Highest && right >= Lowest && right <= Highest;
    return fit ? bitwise(static_cast<qint32>(left), static_cast<qint32>(right)) : RunTimeError;
}

double sign(double x) { return x > 0 ? 1 : x < 0 ? -1 : 0; }

double logarithm(double x, double base) { return x <= 0 ? 0 : std::log(x) / base; }

double arcSine(double x)
{
    return std::fabs(x) >= 1 ? sign(x) * HalfPi : std::atan(x / std::sqrt(1 - x * x));
}

double arcCosine(double x)
{
    return std::fabs(x) >= 1 ? BeyondACos : HalfPi - std::atan(x / std::sqrt(1 - x * x));
}

double hyperbolicSine(double x) { return (std::exp(x) - 1 / std::exp(x)) / 2; }
double hyperbolicCosine(double x) { return (std::exp(x) + 1 / std::exp(x)) / 2; }

double sum(std::span<const float> values) { return std::accumulate(values.begin(), values.end(), 0.0); }

} // namespace

double applyOperator(Op code, double left, double right)
{
    switch (code) {
    case Op::LessOrEqual:
        return left <= right;
    case Op::GreaterOrEqual:
        return left >= right;
    case Op::NotEqual:
        return left != right;
    case Op::Equal:
        return left == right;
    case Op::Less:
        return left < right;
    case Op::Greater:
        return left > right;
    case Op::Add:
        return left + right;
    case Op::Subtract:
        return left - right;
    case Op::Multiply:
        return left * right;
    case Op::Divide:
        return right == 0 ? 0 : left / right;
    case Op::Power:
        return std::pow(left, right);
    case Op::And:
        return onWholeNumbers(left, right, [](qint32 a, qint32 b) { return a & b; });
    case Op::Or:
        return onWholeNumbers(left, right, [](qint32 a, qint32 b) { return a | b; });
    case Op::Xor:
        return onWholeNumbers(left, right, [](qint32 a, qint32 b) { return a ^ b; });
    default:
        return RunTimeError;
    }
}

double applyFunction(Function function, std::span<const float> arguments)
{
    const double x = arguments[0];
    switch (function) {
    case Function::Sin:
        return std::sin(x);
    case Function::Cos:
        return std::cos(x);
    case Function::Tan:
        return std::tan(x);
    case Function::ASin:
        return arcSine(x);
    case Function::ACos:
        return arcCosine(x);
    case Function::ATan:
        return std::atan(x);
    case Function::SinH:
        return hyperbolicSine(x);
    case Function::CosH:
        return hyperbolicCosine(x);
    case Function::TanH:
        return hyperbolicSine(x) / hyperbolicCosine(x);
    case Function::ASinH:
        return std::log(x + std::sqrt(x * x + 1));
    case Function::ACosH:
        return std::log(x + std::sqrt(x * x - 1));
    case Function::ATanH:
        return 0.5 * std::log((1 + x) / (1 - x));
    case Function::Log2:
        return logarithm(x, std::log(2.0));
    case Function::Log10:
        return logarithm(x, std::log(10.0));
    case Function::Ln:
        return logarithm(x, 1);
    case Function::Exp:
        return std::exp(x);
    case Function::Sqrt:
        return std::sqrt(x);
    case Function::Sign:
        return sign(x);
    case Function::Round:
        return common::roundHalfEven(x);
    case Function::Abs:
        return std::fabs(x);
    case Function::Int:
        return std::floor(x);
    case Function::If:
        return x == 1.0 ? arguments[1] : arguments[2]; // not "other than 0": deliberate
    case Function::Negate:
        return -x;
    case Function::Sum:
        return sum(arguments);
    case Function::Avg:
        return sum(arguments) / static_cast<double>(arguments.size());
    case Function::Min:
        return *std::min_element(arguments.begin(), arguments.end());
    case Function::Max:
        return *std::max_element(arguments.begin(), arguments.end());
    }
    return RunTimeError;
}

} // namespace variables::expression
