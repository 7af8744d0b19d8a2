#include "common/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace common {

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

} // namespace

QString shortestText(float value, const QString &decimalMark)
{
    std::array<char, 64> buffer;
    const float magnitude = std::fabs(value);
    const bool plain = value == 0.0F || (magnitude >= 1e-4F && magnitude < 1e7F) || !std::isfinite(value);
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format).ptr;
    QString text = QString::fromLatin1(buffer.data(), end - buffer.data()).toUpper();
    text.replace(QLatin1Char('.'), decimalMark);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
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
