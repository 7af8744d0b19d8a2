#include "variables/filter_design.h"

#include <algorithm>
#include <cmath>

namespace variables {

namespace {

using Complex = std::complex<double>;

constexpr double Pi = 3.141592654;      // to nine decimals, deliberately
constexpr double RealPole = 0.0001;     // a prototype pole with a smaller imaginary part counts as real
constexpr double StartOfMaximum = -100; // dB
constexpr double LargestRatio = 1e300;  // keeps a pole that a step hits exactly finite

// The width of the low-pass prototype, Hz.
double designFrequency(const FilterSettings &filter, double nyquist)
{
    switch (filter.type) {
    case FilterType::LowPass:
        return filter.upper;
    case FilterType::HighPass:
        return nyquist - filter.lower;
    case FilterType::BandPass:
        return filter.upper - filter.lower;
    }
    return filter.upper;
}

// Half axes of the ellipse on which the prototype's poles lie; for Butterworth it is a circle.
struct PoleEllipse
{
    double sh = 1;
    double ch = 1;
};

PoleEllipse chebyshevEllipse(int order, double ripple)
{
    const double g = std::exp(-0.05 * ripple * std::log(10.0));
    const double e = std::sqrt(1 / (g * g) - 1);
    const double r = 1 / e;
    const double t = std::pow(std::sqrt(r * r + 1) + r, 1.0 / order);
    return {(t - 1 / t) * 0.5, (1 / t + t) * 0.5};
}

// The z-plane pole at this angle of the ellipse, of its conjugates the upper one.
Complex poleAt(double angle, double wc, const PoleEllipse &ellipse)
{
    const double p = ellipse.sh * wc * std::cos(angle);
    const double q = ellipse.ch * wc * std::sin(angle);
    const double d = (1 - p) * (1 - p) + q * q;
    return {2 * (1 - p) / d - 1, std::fabs(2 * q / d)};
}

// Poles of the low-pass prototype: the real one first where the order is odd, of each pair the upper one.
std::vector<Complex> prototypePoles(const FilterSettings &filter, int order, double wc)
{
    const PoleEllipse ellipse =
        filter.model == FilterModel::Chebyshev ? chebyshevEllipse(order, filter.ripple) : PoleEllipse{};
    const int odd = order % 2;
    std::vector<Complex> poles;
    if (odd)
        poles.emplace_back(2 / (1 + ellipse.sh * wc) - 1);
    // The second half of the pairs: the stable one.
    for (int m = (order + odd) / 2; m < order; ++m)
        poles.push_back(poleAt(0.5 * (2 * m + 1 - odd) * Pi / order, wc, ellipse));
    return poles;
}

void addPair(std::vector<Complex> &poles, Complex pole)
{
    poles.push_back(pole);
    poles.push_back(std::conj(pole));
}

// The poles of a low pass or, turned round, of a high pass.
std::vector<Complex> allPoles(const std::vector<Complex> &prototype, bool odd, double sign)
{
    std::vector<Complex> poles;
    for (std::size_t i = 0; i < prototype.size(); ++i) {
        if (odd && i == 0)
            poles.push_back(sign * prototype[i]);
        else
            addPair(poles, sign * prototype[i]);
    }
    return poles;
}

// Each prototype pole p becomes the two roots of z^2 - centre * (1 + p) * z + p.
std::vector<Complex> bandPassPoles(const std::vector<Complex> &prototype, bool odd, double centre)
{
    std::vector<Complex> poles;
    for (std::size_t i = 0; i < prototype.size(); ++i) {
        const Complex p = std::fabs(prototype[i].imag()) < RealPole ? prototype[i].real() : prototype[i];
        const Complex h = 0.5 * centre * (1.0 + p);
        const Complex root = std::sqrt(h * h - p);
        if (odd && i == 0) {
            poles.push_back(h + root);
            poles.push_back(h - root);
        } else {
            addPair(poles, h + root);
            addPair(poles, h - root);
        }
    }
    return poles;
}

// Multiplies by 1 + first/z + second/z^2 in place.
void multiply(std::vector<double> &coefficients, double first, double second)
{
    for (std::size_t k = coefficients.size() - 1; k > 0; --k) {
        coefficients[k] += first * coefficients[k - 1];
        if (k > 1)
            coefficients[k] += second * coefficients[k - 2];
    }
}

std::vector<double> polynomialOf(const std::vector<Complex> &roots)
{
    std::vector<double> coefficients(roots.size() + 1);
    coefficients[0] = 1;
    std::size_t i = 0;
    if (roots.size() % 2 != 0)
        multiply(coefficients, -roots[i++].real(), 0);
    for (; i + 1 < roots.size(); i += 2)
        multiply(coefficients, -(roots[i] + roots[i + 1]).real(), (roots[i] * roots[i + 1]).real());
    return coefficients;
}

// The squared magnitude of the polynomial on the unit circle at angle w.
double squaredMagnitude(const std::vector<double> &coefficients, double w)
{
    double a = 0;
    double b = 0;
    for (std::size_t k = 0; k < coefficients.size(); ++k) {
        a += coefficients[k] * std::cos(static_cast<double>(k) * w);
        b += coefficients[k] * std::sin(static_cast<double>(k) * w);
    }
    return a * a + b * b;
}

// The angle of a step of the response; the ends are drawn in a little, off the zeros that lie there.
double angleOf(std::size_t step, std::size_t last)
{
    if (step == 0)
        return Pi * 1e-8;
    return step == last ? Pi * 0.99999999 : static_cast<double>(step) * (Pi / static_cast<double>(last));
}

} // namespace

ZerosAndPoles designFilter(const FilterSettings &filter, double nyquist)
{
    const bool bandPass = filter.type == FilterType::BandPass;
    const int entered = static_cast<int>(filter.order);
    const int order = bandPass ? entered / 2 : entered;
    const bool odd = order % 2 != 0;
    const double wc = std::tan(0.5 * Pi * designFrequency(filter, nyquist) / nyquist);
    const std::vector<Complex> prototype = prototypePoles(filter, order, wc);
    const auto count = static_cast<std::size_t>(order);

    ZerosAndPoles design;
    if (!bandPass) {
        const bool highPass = filter.type == FilterType::HighPass;
        design.zeros.assign(count, highPass ? 1 : -1);
        design.poles = allPoles(prototype, odd, highPass ? -1 : 1);
        return design;
    }
    design.zeros.assign(count, 1);
    design.zeros.resize(2 * count, -1);
    const double w1 = 0.5 * Pi * filter.lower / nyquist;
    const double w2 = 0.5 * Pi * filter.upper / nyquist;
    design.poles = bandPassPoles(prototype, odd, std::cos(w1 + w2) / std::cos(w2 - w1));
    return design;
}

FilterPolynomials filterPolynomials(const ZerosAndPoles &design)
{
    return {polynomialOf(design.zeros), polynomialOf(design.poles)};
}

FilterResponse frequencyResponse(const FilterPolynomials &polynomials)
{
    FilterResponse response{};
    double maximum = StartOfMaximum;
    for (std::size_t i = 0; i < response.size(); ++i) {
        const double w = angleOf(i, response.size() - 1);
        const double ratio =
            squaredMagnitude(polynomials.numerator, w) / squaredMagnitude(polynomials.denominator, w);
        response[i] = 10 * std::log10(clampTo(1 / LargestRatio, ratio, LargestRatio));
        maximum = std::max(maximum, response[i]);
    }
    for (double &value : response)
        value = std::pow(10.0, (value - maximum) * 0.05);
    return response;
}

FilterResponse AdvancedFiltering(const FilterSettings &filter)
{
    return frequencyResponse(filterPolynomials(designFilter(filter, FilterNyquist)));
}

} // namespace variables
