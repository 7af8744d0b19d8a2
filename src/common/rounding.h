#pragma once

#include "common/run_time_error.h"

#include <QtGlobal>

#include <cmath>
#include <concepts>
#include <limits>

namespace common {

// The nearest whole number, exact halves to the even neighbour (the floating-point default of IEEE 754).
inline double roundHalfEven(double value) { return std::nearbyint(value); }

// The nearest whole number as T, halves to even. Throws RunTimeError when it does not fit T or is NaN.
template <std::integral T>
T toInteger(double value)
{
    static_assert(sizeof(T) <= 4, "the bounds of larger types are no exact doubles");
    const double rounded = roundHalfEven(value);
    // Written so that NaN fails both tests.
    if (!(rounded >= static_cast<double>(std::numeric_limits<T>::min())) ||
        !(rounded <= static_cast<double>(std::numeric_limits<T>::max())))
        throw RunTimeError(QStringLiteral("Overflow"));
    return static_cast<T>(rounded);
}

// The nearest whole number as T, values outside T's range taken to its ends, NaN to 0.
template <std::integral T>
T toIntegerClamped(double value)
{
    if (std::isnan(value))
        return 0;
    const double rounded = roundHalfEven(value);
    if (rounded <= static_cast<double>(std::numeric_limits<T>::min()))
        return std::numeric_limits<T>::min();
    if (rounded >= static_cast<double>(std::numeric_limits<T>::max()))
        return std::numeric_limits<T>::max();
    return static_cast<T>(rounded);
}

// The value as a 32-bit float. Throws RunTimeError when it does not fit one or is NaN.
inline float toSingle(double value)
{
    if (!(std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max())))
        throw RunTimeError(QStringLiteral("Overflow"));
    return static_cast<float>(value);
}

// Whole-number division: both operands are rounded to whole numbers first, the quotient is truncated.
// Throws RunTimeError when the divisor rounds to 0.
inline int wholeDivide(double dividend, double divisor)
{
    const int whole = toInteger<int>(divisor);
    if (whole == 0)
        throw RunTimeError(QStringLiteral("Division by zero"));
    return static_cast<int>(qint64{toInteger<int>(dividend)} / whole);
}

} // namespace common
