#pragma once

#include "recorder/recorder_settings.h"

#include <array>
#include <optional>

namespace recorder {

// What a car's gears are made of; ratios are to 1. Ratios count up to 10, the circumference up to 50, below 0
// all count as 0.
struct GearRatios
{
    std::array<double, MostGears> gears{};
    double finalDrive = 0;
    double circumference = 0; // of a wheel, metres
};

// The number of gears that a text stands for; nothing for none between 1 and the most.
std::optional<std::size_t> gearCount(const QString &text);

// The limits, kph per 1000 rpm, between which each of so many gears is recognised. They meet halfway between
// two gears; above the last one of a gearbox with fewer gears than possible lies a gear of ratio 0, whose
// speed is 1.
std::vector<GearLimits> gearBands(const GearRatios &ratios, std::size_t count);

} // namespace recorder
