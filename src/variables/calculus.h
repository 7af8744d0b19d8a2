#pragma once

#include <array>

namespace variables {

// What the recorder does with a variable before it uses it, by the number in the catalogue record.
inline constexpr std::array<const char *, 5> CalculusModes{
    "None", "Integrate variable against time", "Differentiate variable against time",
    "Integrate variable against distance", "Differentiate variable against distance"};

inline constexpr const char *CalculusTitle = "Set a calculus mode for channel";

} // namespace variables
