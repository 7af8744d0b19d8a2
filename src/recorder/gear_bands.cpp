#include "recorder/gear_bands.h"

#include "common/number_parser.h"
#include "common/rounding.h"

#include <algorithm>

namespace recorder {

namespace {

constexpr double HighestRatio = 10;
constexpr double LongestCircumference = 50; // metres
constexpr double MinutesPerHour = 60;       // revolutions a minute in thousands, metres to kilometres
constexpr double OuterShare = 0.7;          // of the speed of the first and the last possible gear

// The road speed in kph at 1000 rpm.
double speedOf(double ratio, double finalDrive, double circumference)
{
    if (finalDrive * circumference <= 0)
        return 0;
    if (ratio * finalDrive == 0)
        return 1;
    return circumference / (ratio * finalDrive) * MinutesPerHour;
}

} // namespace

std::optional<std::size_t> gearCount(const QString &text)
{
    const double number = common::parseNumber(text);
    if (number < 1 || number > static_cast<double>(MostGears))
        return std::nullopt;
    return common::toInteger<quint8>(number);
}

std::vector<GearLimits> gearBands(const GearRatios &ratios, std::size_t count)
{
    const double finalDrive = std::clamp(ratios.finalDrive, 0.0, HighestRatio);
    const double circumference = std::clamp(ratios.circumference, 0.0, LongestCircumference);
    std::array<double, MostGears> speeds{};
    std::ranges::transform(ratios.gears, speeds.begin(), [&](double ratio) {
        return speedOf(std::clamp(ratio, 0.0, HighestRatio), finalDrive, circumference);
    });
    std::vector<GearLimits> bands(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double lower = i == 0 ? speeds[0] * OuterShare : (speeds[i - 1] + speeds[i]) / 2;
        const double upper = i == MostGears - 1 ? speeds[i] / OuterShare : (speeds[i] + speeds[i + 1]) / 2;
        bands[i] = {common::toSingle(lower), common::toSingle(upper)};
    }
    return bands;
}

} // namespace recorder
