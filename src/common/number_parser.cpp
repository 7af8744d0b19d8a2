#include "common/number_parser.h"

#include "common/number_text.h"
#include "common/run_time_error.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace common {

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestNumber = 40;

template <typename Keep>
QString kept(const QString &text, Keep keep)
{
    QString result;
    for (const QChar c : text) {
        if (keep(c))
            result.append(c);
    }
    return result;
}

// The same with "." and the digits 0 to 9, in capitals.
QString withPlainDigits(const QString &text)
{
    QString plain;
    for (const char32_t c : text.toUcs4()) {
        if (common::isDecimalMark(c))
            plain.append('.'_L1);
        else if (QChar::isDigit(c))
            plain.append(QString::number(QChar::digitValue(c)));
        else
            plain.append(QString::fromUcs4(&c, 1).toUpper());
    }
    return plain;
}

bool isDigit(QChar c) { return c >= '0'_L1 && c <= '9'_L1; }

// "05" is 0.05: divided by 10 until below 1, then once more for every leading zero.
double fractionValue(const QString &digits)
{
    double fraction = common::leadingNumber(digits);
    while (std::fabs(fraction) >= 1.0)
        fraction /= 10.0;
    for (qsizetype i = 0; i < digits.size() && digits[i] == '0'_L1; ++i)
        fraction /= 10.0;
    return fraction;
}

} // namespace

double parseNumber(const QString &text)
{
    QString number = withPlainDigits(text.trimmed()).left(LongestNumber);
    const bool negative = number.startsWith('-'_L1);
    if (negative)
        number.remove(0, 1);

    const QStringList parts = number.split('E'_L1);
    double multiplier = 1.0;
    if (parts.size() > 1) {
        const QString exponent = kept(parts[1], [](QChar c) { return isDigit(c) || c == '-'_L1; });
        if (!exponent.isEmpty())
            multiplier = std::pow(10.0, common::leadingNumber(exponent));
    }

    const QStringList mantissa =
        kept(parts[0], [](QChar c) { return isDigit(c) || c == '-'_L1 || c == '.'_L1; }).split('.'_L1);
    const double fraction = mantissa.size() > 1 ? fractionValue(mantissa[1]) : 0.0;
    const double value = (common::leadingNumber(mantissa[0]) + fraction) * multiplier;
    if (std::isnan(value))
        return 0.0; // nothing times a multiplier past all bounds
    return negative ? -value : value;
}

double requireNumber(const QString &text)
{
    static const QRegularExpression number(QStringLiteral(R"(^-?(\d+\.?\d*|\.\d+)(E[+-]?\d+)?$)"));
    const QString plain = withPlainDigits(text.trimmed());
    if (plain.size() > LongestNumber || !number.match(plain).hasMatch())
        throw RunTimeError(u"\"%1\" is not a number"_s.arg(text));
    return parseNumber(text);
}

bool isNumericKey(QChar key, const QString &decimalSeparator)
{
    static const QString accepted = u".,-\b\r"_s;
    return key.isDigit() || accepted.contains(key) || decimalSeparator.contains(key);
}

} // namespace common
