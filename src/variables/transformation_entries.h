#pragma once

#include "variables/catalogue.h"

#include <array>
#include <vector>

namespace variables {

// The three lists from which the transformation editor types into an equation: what is typed, and what it
// means. Their texts are part of the product and stand word for word, mistakes included.

struct EquationEntry
{
    const char *text;
    const char *meaning;
};

inline constexpr std::array<EquationEntry, 16> ConstantEntries{{{"CdA", "Aerodynamic Resistance [m2]"},
                                                                {"Roll", "Rolling Resistance [N/m2]"},
                                                                {"Mass", "Vehicle Mass [kg]"},
                                                                {"Temp", "Ambient Temperature [C]"},
                                                                {"Press", "Ambient Pressure [kPa]"},
                                                                {"Humid", "Ambient Humidity [%]"},
                                                                {"CAR_1", "Car Constant 1 [-]"},
                                                                {"CAR_2", "Car Constant 2 [-]"},
                                                                {"CAR_3", "Car Constant 3 [-]"},
                                                                {"CAR_4", "Car Constant 4 [-]"},
                                                                {"CAR_5", "Car Constant 5 [-]"},
                                                                {"CAR_6", "Car Constant 6 [-]"},
                                                                {"CAR_7", "Car Constant 7 [-]"},
                                                                {"CAR_8", "Car Constant 8 [-]"},
                                                                {"CAR_9", "Car Constant 9 [-]"},
                                                                {"CAR_10", "Car Constant 10 [-]"}}};

inline constexpr std::array<EquationEntry, 32> FunctionEntries{
    {{"+", "Add "},
     {"-", "Minus"},
     {"*", "Multiply"},
     {"/", "Divide"},
     {"^", "Raise to the power"},
     {"(", "Open parenthesis"},
     {")", "Close parenthesis"},
     {"SQR", "square function which can be used as SQR(X) "},
     {"SIN", "sinus function which can be used as SIN(X), X is in radians. "},
     {"COS", "cosinus function which can be used as COS(X), X is in radians. "},
     {"ATAN", "arctangent function which can be used as ATAN(X) "},
     {"SINH", "sinus hyperbolic function which can be used as SINH(X) "},
     {"COSH", "cosinus hyperbolic function which can be used as COSH(X) "},
     {"COTAN", "which can be used as COTAN(X) "},
     {"TAN", "which can be used as TAN(X) "},
     {"EXP", "which can be used as EXP(X) "},
     {"LN", "natural log, which can be used as LN(X) "},
     {"LOG", "base 10 log, which can be used as LOG(X) "},
     {"SQRT", "which can be used as SQRT(X) "},
     {"ABS", "absolute value, which can be used as ABS(X) "},
     {"SIGN", "SIGN(X) returns -1 if X<0; +1 if X>0, 0 if X=0; it can be used as SQR(X) "},
     {"TRUNC", "discards the fractional part of a number. e.g. TRUNC(-3.2) is -3, TRUNC(3.2) is 3. "},
     {"CEIL", "CEIL(-3.2) = -3, CEIL(3.2) = 4 "},
     {"FLOOR", "FLOOR(-3.2) = -4, FLOOR(3.2) = 3 "},
     {"INTPOW", "the INTPOW function raises Base to an integral power. INTPOW(2, 3) = 8"},
     {"POW", "the Power function raises Base to any power."},
     {"LOGN", "the LogN function returns the log base N of X. Example: LOGN(10, 100) = 2 "},
     {"MIN", "MIN(2, 3) is 2. "},
     {"MAX", "MAX(2, 3) is 3. "},
     {"IF", "eg IF(b, case1, case2), If b is not 0, then it returns case1, else it returns case2."},
     {"RND", "RND() function generates a random number (double value) between 0 and 1. "},
     {"SUM", "SUM(2,3,5,...) functions returns the sum of it's arguments"}}};

struct VariableEntry
{
    QString text; // its name in equations, in capitals
    QString meaning;
};

// One row for every enabled variable, in index order.
std::vector<VariableEntry> variableEntries(const VariableTable &table);

} // namespace variables
