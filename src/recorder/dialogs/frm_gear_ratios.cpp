#include "recorder/dialogs/frm_gear_ratios.h"

#include "common/number_text.h"
#include "platform/guards.h"
#include "recorder/dialogs/gear_grid.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace recorder {

using namespace Qt::StringLiterals;

namespace {

constexpr float Huge = 1e6F; // from where on a number is written with its exponent

constexpr std::array<forms::RowText, MostGears> GearRows{{{"txtGearRatio_0", "&1st Gear Ratio [-]", ":1"},
                                                          {"txtGearRatio_1", "&2nd Gear Ratio [-]", ":1"},
                                                          {"txtGearRatio_2", "&3rd Gear Ratio [-]", ":1"},
                                                          {"txtGearRatio_3", "&4th Gear Ratio [-]", ":1"},
                                                          {"txtGearRatio_4", "&5th Gear Ratio [-]", ":1"},
                                                          {"txtGearRatio_5", "&6th Gear Ratio [-]", ":1"},
                                                          {"txtGearRatio_6", "&7th Gear Ratio [-]", ":1"}}};

} // namespace

void drawBands(SpanChart &chart, const std::vector<GearLimits> &bands, const QString &decimalMark)
{
    const auto text = [&decimalMark](float limit) {
        return std::fabs(limit) < Huge ? common::fixedText(limit, 1, decimalMark)
                                       : common::shortestText(limit, decimalMark);
    };
    QList<Span> spans;
    double end = 1;
    for (std::size_t gear = 0; gear < bands.size(); ++gear) {
        const auto [lower, upper] = bands[gear];
        const QString range = u"%1 - %2"_s.arg(text(lower), text(upper));
        spans.append({gearName(gear), lower, upper, lower < upper ? range : QString()});
        end = std::max(end, double{upper});
    }
    chart.draw(spans, end);
}

frmGearRatios::frmGearRatios(const GearRatios &ratios, std::size_t gears, const forms::Context &context)
    : DialogOf(u"Enter Gear Ratios"_s, ratios, context), m_gears(gears),
      m_chart(new SpanChart("picBands", u"kph at 1000 rpm"_s, static_cast<int>(gears)))
{
    addGroup("Gearbox");
    for (std::size_t gear = 0; gear < GearRows.size(); ++gear)
        number([gear](GearRatios &r) -> double & { return r.gears.at(gear); }, GearRows.at(gear))
            .requireNumber();
    number(&GearRatios::finalDrive, {"txtGearRatio_7", "&Final Drive Ratio [-]", ":1"}).requireNumber();
    number(&GearRatios::circumference, {"txtGearRatio_8", "&Rolling Circumference Of the Wheel [m]"})
        .requireNumber();
    addBeside(m_chart);
    follow([this] { drawChart(); });
    finish(forms::okAndCancel());
}

// What cannot be read yet is drawn when it can.
void frmGearRatios::drawChart()
{
    platform::skipFailures([this] { drawBands(*m_chart, gearBands(converted(), m_gears), decimalMark()); });
}

} // namespace recorder
