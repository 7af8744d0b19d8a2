#include "common/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace common {

using namespace Qt::StringLiterals;

namespace {

// A number too small for a double is 0, one too large is infinite.
double outOfRange(QByteArrayView number)
{
    const bool negative = number.front() == '-';
    const QByteArray digits = number.sliced(negative ? 1 : 0).toByteArray().toLower();
    const bool isSmall =
        digits.contains("e-") || (!digits.contains('e') && (digits[0] == '0' || digits[0] == '.'));
    const double limit = isSmall ? 0.0 : std::numeric_limits<double>::infinity();
    return negative ? -limit : limit;
}

// Adds one to a whole number of decimal digits.
void countUp(QByteArray &digits)
{
    qsizetype place = digits.size() - 1;
    for (; place >= 0 && digits[place] == '9'; --place)
        digits[place] = '0';
    if (place < 0)
        digits.prepend('1');
    else
        ++digits[place];
}

} // namespace

QString shortestText(float value, const QString &decimalMark)
{
    std::array<char, 64> buffer;
    const float magnitude = std::fabs(value);
    const bool plain = value == 0.0F || (magnitude >= 1e-4F && magnitude < 1e7F) || !std::isfinite(value);
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format).ptr;
    QString text = QString::fromLatin1(buffer.data(), end - buffer.data()).toUpper();
    text.replace('.'_L1, decimalMark);
    return text == "-0"_L1 ? u"0"_s : text;
}

QString fixedText(float value, int places, const QString &decimalMark)
{
    if (!std::isfinite(value))
        return shortestText(value, decimalMark);
    std::array<char, 64> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                   std::chars_format::fixed)
                         .ptr;
    const QByteArray text(buffer.data(), end - buffer.data());
    const qsizetype point = text.contains('.') ? text.indexOf('.') : text.size();
    QByteArray digits = text.first(point) + text.mid(point + 1).leftJustified(places + 1, '0', true);
    const bool roundsUp = digits.back() >= '5';
    digits.chop(1);
    if (roundsUp)
        countUp(digits);
    const bool isZero = digits.count('0') == digits.size();
    QString fixed = QString::fromLatin1(digits);
    if (places > 0)
        fixed.insert(fixed.size() - places, decimalMark);
    return value < 0 && !isZero ? '-'_L1 + fixed : fixed;
}

double leadingNumber(const QString &text)
{
    const QByteArray bytes = text.trimmed().toLatin1();
    const char *begin = bytes.constData();
    const char *end = begin + bytes.size();
    if (begin != end && *begin == '+')
        ++begin;
    // "inf" and "nan" are words, not numbers.
    const char *digits = begin != end && *begin == '-' ? begin + 1 : begin;
    if (digits == end || !((*digits >= '0' && *digits <= '9') || *digits == '.'))
        return 0.0;
    double value = 0.0;
    const auto result = std::from_chars(begin, end, value);
    if (result.ec == std::errc::result_out_of_range)
        return outOfRange(QByteArrayView(begin, result.ptr));
    return result.ec == std::errc() ? value : 0.0;
}

} // namespace common
