#include "variables/units.h"

#include "common/number_parser.h"
#include "common/rounding.h"
#include "variables/expression/compiler.h"
#include "variables/expression/variable_name.h"

#include <QLocale>

#include <cmath>

namespace variables {

using namespace Qt::StringLiterals;

namespace {

constexpr int EquationDigits = 3;
constexpr double Negligible = 1e-30;
constexpr qsizetype LineParts = 3;
constexpr qsizetype CubicParts = 5;

QString plainText(double value) { return QString::number(value, 'f', QLocale::FloatingPointShortest); }

QString shortened(double magnitude, int digits)
{
    const int exponent = static_cast<int>(std::floor(std::log10(magnitude)));
    const double scale = std::pow(10.0, digits - 1);
    if (exponent == -1)
        return plainText(common::roundHalfEven(magnitude * scale * 10) / (scale * 10));
    if (exponent >= 0 && exponent <= digits)
        return plainText(common::roundHalfEven(magnitude * scale) / scale);
    const double mantissa = common::roundHalfEven(magnitude * std::pow(10.0, digits - 1 - exponent)) / scale;
    return plainText(mantissa) + 'e'_L1 + QString::number(exponent);
}

// The sign between two terms; a positive first term has none.
QString joint(const QString &before, double coefficient)
{
    if (coefficient < 0)
        return u" - "_s;
    return before.isEmpty() ? QString() : u" + "_s;
}

// A term of a lower power: `power` alone where the coefficient is 1, else number and `factor`.
void appendTerm(QString &text, double coefficient, const QString &power, const QString &factor)
{
    if (coefficient == 0)
        return;
    if (coefficient == 1)
        text += (text.isEmpty() ? u" "_s : u" + "_s) + power;
    else
        text += joint(text, coefficient) + numberText(std::fabs(coefficient), EquationDigits) + factor;
}

} // namespace

QString numberText(double value, int digits)
{
    if (std::fabs(value) <= Negligible)
        return u"0"_s;
    QString plain = plainText(value);
    if (plain.size() <= digits || !std::isfinite(value))
        return plain;
    const QString text = shortened(std::fabs(value), digits);
    return value < 0 ? '-'_L1 + text : text;
}

QString polynomialText(const Coefficients &coefficients)
{
    const auto &[c3, c2, c1, c0] = coefficients;
    QString text;
    if (c3 == 1)
        text = u"x^3"_s;
    else if (c3 != 0)
        text = numberText(c3, EquationDigits) + u"*x^3"_s;
    appendTerm(text, c2, u"x^2"_s, u"x^2"_s); // without "*": deliberate
    appendTerm(text, c1, u"x"_s, u"*x"_s);
    if (c0 != 0)
        text += joint(text, c0) + numberText(std::fabs(c0), EquationDigits);
    return text;
}

QString polynomialText(const Coefficients &coefficients, int variable)
{
    return polynomialText(coefficients).replace('x'_L1, expression::variableName(variable));
}

Conversion readConversion(const QString &text)
{
    const QStringList parts = text.split('$'_L1);
    Conversion conversion;
    if (parts.size() == 1) {
        conversion.isEquation = true;
        conversion.equation = text;
    } else if (parts.size() == LineParts) {
        conversion.coefficients = {0, 0, common::parseNumber(parts[1]), common::parseNumber(parts[2])};
        conversion.isIdentity = conversion.coefficients == Coefficients{0, 0, 1, 0};
    } else if (parts.size() == CubicParts) {
        conversion.coefficients = {common::parseNumber(parts[1]), common::parseNumber(parts[2]),
                                   common::parseNumber(parts[3]), common::parseNumber(parts[4])};
    }
    return conversion;
}

QString conversionInForce(const VariableRecord &variable, const UnitTable &units)
{
    if (!variable.AllowTransformations.contains(variable.ApplyTransformation))
        return {};
    const std::size_t row = findUnit(units, variable.ApplyTransformation);
    return row < units.size() ? units[row].Conversion : QString();
}

QByteArray conversionProgram(const QString &conversion, int variable, const platform::NumberLocale &locale)
{
    const Conversion read = readConversion(conversion);
    QByteArray program;
    if (!read.isIdentity)
        expression::compile(read.isEquation ? read.equation : polynomialText(read.coefficients, variable),
                            program, variable, locale);
    return program;
}

} // namespace variables
