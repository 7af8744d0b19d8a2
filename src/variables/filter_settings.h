#pragma once

#include "variables/catalogue.h"

#include <array>

namespace variables {

// What a variable's digital filter is made of, and how it lies in the catalogue record.

enum class FilterModel : qint32 { None = 0, Butterworth = 4, Chebyshev = 5 };
enum class FilterType { LowPass = 1, HighPass = 2, BandPass = 3 };

template <typename Value>
struct FilterChoice
{
    Value value;
    const char *text;
};

inline constexpr std::array<FilterChoice<FilterModel>, 3> FilterModels{
    {{FilterModel::None, "None"},
     {FilterModel::Butterworth, "Butterworth Filter"},
     {FilterModel::Chebyshev, "Chebyshev Filter"}}};
inline constexpr std::array<FilterChoice<FilterType>, 3> FilterTypes{{{FilterType::LowPass, "Low pass"},
                                                                      {FilterType::HighPass, "High pass"},
                                                                      {FilterType::BandPass, "Band pass"}}};

// In a record the type has no field of its own: a frequency that the type does not use holds this value.
inline constexpr double UnusedFrequency = -1;

struct FilterSettings
{
    FilterModel model = FilterModel::None;
    FilterType type = FilterType::LowPass;
    double lower = UnusedFrequency; // Hz
    double upper = UnusedFrequency; // Hz
    double ripple = 0;              // dB in the pass band, Chebyshev only
    double order = 0;               // even and whole once it has gone through filterWithinBounds()

    bool operator==(const FilterSettings &) const = default;
};

constexpr bool usesLower(FilterType type) { return type != FilterType::LowPass; }
constexpr bool usesUpper(FilterType type) { return type != FilterType::HighPass; }

FilterSettings filterOf(const VariableRecord &record);
void storeFilter(const FilterSettings &filter, VariableRecord &record);

// `value` taken into minimum to maximum; what is not a number becomes the minimum.
double clampTo(double minimum, double value, double maximum);

// Frequencies 1 to 50 Hz, order even and 2 to 10 (2 where a corner in use is below 5 Hz), ripple 0.01 to 3
// dB. A frequency that the type does not use stays as it is: it may be wanted again.
FilterSettings filterWithinBounds(const FilterSettings &entered);

} // namespace variables
