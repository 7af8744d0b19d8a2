#include "variables/filter_design.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using namespace variables;
using enum FilterModel;
using enum FilterType;

double chebyshevPolynomial(int n, double x)
{
    return std::fabs(x) <= 1 ? std::cos(n * std::acos(x)) : std::cosh(n * std::acosh(std::fabs(x)));
}

// The frequency in units of the corner, once bent to the endless axis of an analogue filter.
double bentFrequency(const FilterSettings &filter, double hertz)
{
    const auto bent = [](double f) { return std::tan(std::numbers::pi * f / FilterSampleRate); };
    const double f = bent(hertz), low = bent(filter.lower), high = bent(filter.upper);
    if (filter.type == BandPass)
        return (f * f - low * high) / (f * (high - low));
    return filter.type == LowPass ? f / high : low / f;
}

// The closed forms of the analogue magnitudes.
double amplitude(const FilterSettings &filter, double hertz)
{
    const double x = bentFrequency(filter, hertz);
    const int n = static_cast<int>(filter.order) / (filter.type == BandPass ? 2 : 1);
    if (filter.model == Butterworth)
        return 1 / std::sqrt(1 + std::pow(x, 2 * n));
    const double ripple = std::pow(10, filter.ripple / 10) - 1;
    return 1 / std::sqrt(1 + ripple * std::pow(chebyshevPolynomial(n, x), 2));
}

TEST(AdvancedFiltering, meetsTheClosedForms)
{
    const FilterSettings cases[] = {
        {Butterworth, LowPass, -1, 10, 0, 2},   {Butterworth, LowPass, -1, 5, 0, 10},
        {Butterworth, LowPass, -1, 45, 0, 6},   {Butterworth, LowPass, -1, 10, 0, 3},
        {Butterworth, HighPass, 12, -1, 0, 4},  {Butterworth, HighPass, 40, -1, 0, 10},
        {Butterworth, BandPass, 10, 20, 0, 2},  {Butterworth, BandPass, 10, 20, 0, 6},
        {Butterworth, BandPass, 8, 30, 0, 8},   {Chebyshev, LowPass, -1, 20, 0.5, 2},
        {Chebyshev, LowPass, -1, 20, 3, 8},     {Chebyshev, LowPass, -1, 20, 3, 5},
        {Chebyshev, HighPass, 15, -1, 0.01, 6}, {Chebyshev, BandPass, 10, 15, 1, 4},
        {Chebyshev, BandPass, 10, 40, 1, 10},   {Butterworth, BandPass, 1, 49, 0, 2}, // both poles real
        {Chebyshev, BandPass, 5, 45, 0.2, 6},
    };
    for (const FilterSettings &filter : cases) {
        const FilterResponse response = AdvancedFiltering(filter);
        FilterResponse expected{};
        for (std::size_t i = 0; i < expected.size(); ++i)
            expected[i] = amplitude(filter, std::clamp(static_cast<double>(i) / 2, 5e-7, 50 - 5e-7));
        const double largest = *std::max_element(expected.begin(), expected.end());
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_NEAR(response[i], expected[i] / largest, 2e-6)
                << filter.lower << " " << filter.upper << " at " << i;
        EXPECT_EQ(*std::max_element(response.begin(), response.end()), 1.0);
        for (const auto &pole : designFilter(filter, FilterNyquist).poles)
            EXPECT_LT(std::abs(pole), 1);
    }
}

// What users can type without a message, and the recorder's poles then lie on the unit circle or at its
// centre.
TEST(AdvancedFiltering, staysFiniteAtTheEndsOfTheRange)
{
    for (const FilterSettings &filter : {FilterSettings{Butterworth, LowPass, -1, 50, 1, 10},
                                         {Chebyshev, HighPass, 50, -1, 1, 10},
                                         {Chebyshev, BandPass, 25, 25, 1, 6},
                                         {Butterworth, BandPass, 30, 10, 1, 8}}) {
        for (const double value : AdvancedFiltering(filter))
            EXPECT_NEAR(value, 0.5, 0.5); // a number from 0 to 1
    }
}

TEST(FilterRules, bringWhatWasTypedWithinBounds)
{
    const std::pair<FilterSettings, FilterSettings> cases[] = {
        {{Chebyshev, LowPass, 0, 10, 1, 7}, {Chebyshev, LowPass, 0, 10, 1, 8}},
        {{Chebyshev, LowPass, 0, 10, 1, 5}, {Chebyshev, LowPass, 0, 10, 1, 4}}, // 2.5 goes to the even 2
        {{Chebyshev, LowPass, 0, 10, 1, 30}, {Chebyshev, LowPass, 0, 10, 1, 10}},
        {{Chebyshev, LowPass, 0, 3, 1, 6}, {Chebyshev, LowPass, 0, 3, 1, 2}},
        {{Chebyshev, LowPass, 2, 10, 1, 6}, {Chebyshev, LowPass, 2, 10, 1, 6}}, // 2 is not in use
        {{Chebyshev, HighPass, 4.9, 60, 0, 6}, {Chebyshev, HighPass, 4.9, 60, 0.01, 2}},
        {{Chebyshev, BandPass, 5, 20, 0.5, 6}, {Chebyshev, BandPass, 5, 20, 0.5, 6}},
        {{Chebyshev, BandPass, std::nan(""), HUGE_VAL, 9, 0}, {Chebyshev, BandPass, 1, 50, 3, 2}},
    };
    for (const auto &[typed, expected] : cases)
        EXPECT_EQ(filterWithinBounds(typed), expected) << typed.lower << " " << typed.order;
}

} // namespace
