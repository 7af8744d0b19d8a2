#pragma once

#include "variables/expression/program.h"

#include <string_view>

namespace variables::expression {

// The grammar of equations, after StringBuilding. Blanks, tabs and line breaks may stand between all parts.
//
//   equation    = disjunction
//   disjunction = conjunction { ("or" | "xor") conjunction }
//   conjunction = comparison { "and" comparison }
//   comparison  = sum { ("<=" | ">=" | "!=" | "==" | "<" | ">") sum }
//   sum         = product { ("+" | "-") product }
//   product     = signed { ("*" | "/") signed }
//   signed      = { "-" | "+" } power
//   power       = value { exponent }
//   exponent    = "^" signed, where a signed without sign is a value
//   value       = number | multiple | variable | function | "(" disjunction ")"
//   multiple    = number variable { exponent }, nothing between number and variable
//   function    = name "(" disjunction { "," disjunction } ")"
//   variable    = "var_" and four digits, 0001 to 8000
//   number      = digits with an optional "." and an optional exponent: 5, .5, 1.5, 5e-2, 1e+10
//
// All operators work from left to right, "^" too. A minus takes the whole power after it: -2^2 is -4 and
// 2^-x^2 is 2^(-(x^2)). A number that stands directly before a variable multiplies that variable's power:
// 3var_0012^2 is 3*(var_0012^2). Names are those of opcodes.h in small letters; sum, avg, min and max take
// two or more arguments.
//
// Each value is placed in the slot that its position on the stack gives, from slot 1. A minus before a plain
// value (a number, a variable, a function) is the negation function, before anything else it is 0 - (...).

// Turns the text of an equation into words; a number too small for a 32-bit float is 0. False when it is no
// equation, when a number is too large for a 32-bit float, or when the program outgrows its words or its
// stack. Any text may be passed.
bool parse(std::string_view text, WordProgram &program);

} // namespace variables::expression
