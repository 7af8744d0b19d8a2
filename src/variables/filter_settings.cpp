#include "variables/filter_settings.h"

#include "common/rounding.h"

#include <algorithm>

namespace variables {

namespace {

constexpr double LowestFrequency = 1;
constexpr double HighestFrequency = 50;
constexpr double LowestOrder = 2;
constexpr double HighestOrder = 10;
constexpr double LowestRipple = 0.01;
constexpr double HighestRipple = 3.0;
// Below this corner the recorder's arithmetic only bears the lowest order.
constexpr double LowCorner = 5.0;

FilterModel modelOf(qint32 stored)
{
    const auto known = std::find_if(FilterModels.begin(), FilterModels.end(), [stored](const auto &choice) {
        return static_cast<qint32>(choice.value) == stored;
    });
    return known == FilterModels.end() ? FilterModel::None : known->value;
}

FilterType typeOf(double lower, double upper)
{
    if (lower == UnusedFrequency)
        return FilterType::LowPass;
    return upper == UnusedFrequency ? FilterType::HighPass : FilterType::BandPass;
}

} // namespace

FilterSettings filterOf(const VariableRecord &record)
{
    return {modelOf(record.FilterDesign), typeOf(record.FilterLowVal, record.FilterHighVal),
            record.FilterLowVal,          record.FilterHighVal,
            record.FilterRipple,          static_cast<double>(record.FilterOrder)};
}

void storeFilter(const FilterSettings &filter, VariableRecord &record)
{
    record.FilterDesign = static_cast<qint32>(filter.model);
    record.FilterLowVal = static_cast<float>(usesLower(filter.type) ? filter.lower : UnusedFrequency);
    record.FilterHighVal = static_cast<float>(usesUpper(filter.type) ? filter.upper : UnusedFrequency);
    record.FilterRipple = static_cast<float>(filter.ripple);
    record.FilterOrder = common::toInteger<qint32>(filter.order);
}

double clampTo(double minimum, double value, double maximum)
{
    return value > minimum ? std::min(value, maximum) : minimum;
}

FilterSettings filterWithinBounds(const FilterSettings &entered)
{
    FilterSettings filter = entered;
    if (usesLower(filter.type))
        filter.lower = clampTo(LowestFrequency, entered.lower, HighestFrequency);
    if (usesUpper(filter.type))
        filter.upper = clampTo(LowestFrequency, entered.upper, HighestFrequency);
    filter.order = clampTo(LowestOrder, 2 * common::roundHalfEven(entered.order / 2), HighestOrder);
    if ((usesLower(filter.type) && filter.lower < LowCorner) ||
        (usesUpper(filter.type) && filter.upper < LowCorner))
        filter.order = LowestOrder;
    filter.ripple = clampTo(LowestRipple, entered.ripple, HighestRipple);
    return filter;
}

} // namespace variables
