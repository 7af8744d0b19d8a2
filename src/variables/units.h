#pragma once

#include "platform/locale.h"
#include "variables/catalogue.h"

#include <QByteArray>
#include <QString>

namespace variables {

// What turns the raw value of a variable into a unit.

// c3*x^3 + c2*x^2 + c1*x + c0
struct Coefficients
{
    double c3 = 0;
    double c2 = 0;
    double c1 = 0;
    double c0 = 0;

    bool operator==(const Coefficients &) const = default;
};

// The number in `digits` significant digits (3 in equations, 5 in the coefficient boxes), with "." and, for
// small and large ones, an exponent: 5e-2. Those from 1 to below 10^(digits + 1) keep digits - 1 decimals.
QString numberText(double value, int digits);

// The polynomial as an equation in x; empty when all coefficients are 0.
QString polynomialText(const Coefficients &coefficients);
// The same in the name of this variable.
QString polynomialText(const Coefficients &coefficients, int variable);

// The conversion text of a unit, read: "-$c1$c0" (line), "-$c3$c2$c1$c0" (cubic) or an equation in x. Any
// other number of "$" is a cubic of zeros.
struct Conversion
{
    bool isIdentity = false; // a line with 1 and 0: the raw value itself
    bool isEquation = false;
    Coefficients coefficients;
    QString equation;
};
Conversion readConversion(const QString &text);

// The conversion text of the unit in force; empty when that is none of the variable's allowed ones.
QString conversionInForce(const VariableRecord &variable, const UnitTable &units);

// The byte program of a conversion text for the variable of this index. Empty when it needs none (the
// identity) and when it does not compile.
QByteArray conversionProgram(const QString &conversion, int variable, const platform::NumberLocale &locale);

} // namespace variables
