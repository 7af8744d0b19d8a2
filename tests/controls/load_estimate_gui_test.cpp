#include "support/design_window.h"

#include <tuple>
#include <vector>

namespace {

using namespace controls;

// New controls but for these properties. The inner size of a new bar is 120 x 20 pixels, that of a new bitmap
// and of a track map 100 x 100.
TEST(LoadEstimate, HasATermOfEachFamily)
{
    const std::tuple<ControlType, std::vector<std::pair<const char *, qint32>>, double> cases[] = {
        {ControlType::VideoSource, {{"NewDivisor", 1}}, 1.25},
        {ControlType::VideoSource, {{"NewDivisor", 4}}, 0.65},
        {ControlType::Gauge, {{"newPointerWidth", 10}, {"newPointerLength", 100}}, 0.62},
        {ControlType::BarGraph, {{"newBarWidth", 100}}, 120 / 15.0 * 0.0067}, // pixels, taken for twips
        {ControlType::BarGraph, {{"newBarWidth", 100}, {"newBarType", 1}}, 20 / 15.0 * 0.0067},
        {ControlType::Bitmap, {}, 0.18},
        {ControlType::Bitmap, {{"newVarID", 2}}, 0},
        {ControlType::DigitalDisplay, {{"newFontSize", 20}}, 0.096}, // "0.00"
        {ControlType::TextTag, {{"newFontSize", 20}}, 0.462},        // "Simple Text"
        {ControlType::TrackMap, {}, 0.98},
        {ControlType::TrackMap, {{"newMapEnable", 1}}, 1.55},
        {ControlType::CustomDial, {}, 0},
    };
    test::DesignWindow w;
    for (const auto &[family, values, load] : cases) {
        w.design().addControl(family, {});
        OverlayControl &control = *w.design().controls().last();
        for (const auto &[writer, value] : values)
            control.write(writer, value);
        EXPECT_NEAR(control.complexity(), load, 1e-6) << static_cast<int>(family);
    }
    OverlayControl &source = *w.design().controls().first();
    source.write("NewDivisor", 0);
    EXPECT_THROW(source.complexity(), common::RunTimeError);
}

} // namespace
