#pragma once

#include "forms/dialog_of.h"
#include "recorder/dialogs/span_chart.h"
#include "recorder/gear_bands.h"

namespace recorder {

// The bands of gears in a chart; a band without a gear is not drawn.
void drawBands(SpanChart &chart, const std::vector<GearLimits> &bands, const QString &decimalMark);

// "Enter Gear Ratios": what a gearbox is made of, and the bands that come of it for so many gears.
class frmGearRatios final : public forms::DialogOf<GearRatios>
{
public:
    frmGearRatios(const GearRatios &ratios, std::size_t gears, const forms::Context &context);

protected:
    void set(GearRatios &ratios) override { gearBands(ratios, m_gears); } // throws where one does not fit

private:
    void drawChart();

    std::size_t m_gears;
    SpanChart *m_chart;
};

} // namespace recorder
