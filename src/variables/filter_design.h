#pragma once

#include "variables/filter_settings.h"

#include <array>
#include <complex>
#include <vector>

namespace variables {

// Butterworth and Chebyshev filters by the bilinear transform, worked out with poles and zeros in the
// z-plane.

inline constexpr double FilterSampleRate = 100;               // Hz
inline constexpr double FilterNyquist = FilterSampleRate / 2; // Hz

// As many zeros as poles. Where their number is odd the first one is real; from there on neighbours are
// pairs, either conjugates of each other or both real.
struct ZerosAndPoles
{
    std::vector<std::complex<double>> zeros;
    std::vector<std::complex<double>> poles;
};

// The model must not be None; order from 1 up (a band pass takes half of it for its prototype), frequencies
// in Hz.
ZerosAndPoles designFilter(const FilterSettings &filter, double nyquist);

// Coefficients of 1, 1/z, 1/z^2 and so on; the first is 1.
struct FilterPolynomials
{
    std::vector<double> numerator;
    std::vector<double> denominator;
};

FilterPolynomials filterPolynomials(const ZerosAndPoles &design);

// Amplitudes from 0 Hz to the Nyquist frequency in 101 even steps, scaled so that the largest is 1.
using FilterResponse = std::array<double, 101>;
FilterResponse frequencyResponse(const FilterPolynomials &polynomials);

// Design, polynomials and response of a filter whose settings are within bounds, at the recorder's sample
// rate.
FilterResponse AdvancedFiltering(const FilterSettings &filter);

} // namespace variables
