#pragma once

#include "variables/expression/opcodes.h"

#include <span>

namespace variables::expression {

// The result of an operator or a function, in double precision. Infinite or NaN stands for a run-time error:
// a root of a negative number, an overflow. Division by 0 and logarithms of 0 and less give 0.

double applyOperator(Op code, double left, double right);

// `arguments` holds as many values as functionRow() lets the function have; If reads three.
double applyFunction(Function function, std::span<const float> arguments);

} // namespace variables::expression
