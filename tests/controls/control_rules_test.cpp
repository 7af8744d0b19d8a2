#include "controls/bar_graph/bar_graph.h"
#include "controls/complexity.h"
#include "controls/gauge/gauge.h"

#include <gtest/gtest.h>

namespace {

using namespace controls;

using recorder::VideoStandard;

TEST(Grips, standOnTheEdgesAndTheFirstSlotWins)
{
    EXPECT_EQ(handleTable(1950, 450, GripSet::All)[4], (GripBox{1875, 188, 1950, 263})); // half is 187.5
    const std::tuple<GripSet, QPointF, std::optional<Handle>> cases[] = {
        {GripSet::All, {75, 75}, Handle::TopLeft}, // the far edge is inside
        {GripSet::All, {76, 75}, std::nullopt},     {GripSet::All, {938, 0}, Handle::TopMiddle},
        {GripSet::Corners, {938, 0}, std::nullopt}, {GripSet::Corners, {1950, 450}, Handle::BottomRight},
        {GripSet::None, {0, 0}, std::nullopt}, // an empty slot is never hit
    };
    for (const auto &[set, point, expected] : cases)
        EXPECT_EQ(handleAt(handleTable(1950, 450, set), point), expected) << point.x() << ' ' << point.y();
    EXPECT_EQ(handleAt(handleTable(180, 180, GripSet::All), {60, 10}), Handle::TopLeft); // boxes overlap
}

// 0..160 on -120..120 degrees. The divisor 57.3 turns every needle a little: the tip for 0 is 0.027 and 0.047
// pixels off the true -120 degrees, (-173.205, 100) at this length.
TEST(Needle, turnsClockwiseFromTwelveSqueezedOnNtscAndIsNotLimitedToTheScale)
{
    const std::tuple<VideoStandard, float, QPointF> tips[] = {
        {VideoStandard::Pal, 80, {0.0231, -200}},
        {VideoStandard::Pal, 0, {-173.2321, 99.9532}},
        {VideoStandard::Pal, 320, {-0.0694, -200}}, // once round beyond the end, to the top again
        {VideoStandard::Ntsc, 160, {173.2089, 99.9933 * 480 / 576}},
    };
    for (const auto &[standard, value, tip] : tips) {
        GaugeValues values;
        values.curDefaultVal = value;
        values.curPointerLength = 200;
        values.curCenterX = 300;
        values.curCenterY = 250;
        const auto needle = needleOf(values, standard, {});
        ASSERT_TRUE(needle) << value;
        EXPECT_EQ(needle->pivot, QPointF(300, 250));
        EXPECT_LT((needle->tip - needle->pivot - tip).manhattanLength(), 0.002) << value;
    }
}

TEST(Bar, growsFromItsZeroEndWithinItsArea)
{
    constexpr quint8 Across = 0, Upright = 1;
    const std::tuple<quint8, float, float, float, QRectF> cases[] = {
        {Across, 0, 100, 25, {10, 20, 50, 100}},
        {Across, 100, 0, 25, {60, 20, 150, 100}},
        {Upright, 0, 100, 25, {10, 95, 200, 25}},
        {Upright, 100, 0, 25, {10, 20, 200, 75}},
        {Across, 0, 100, 150, {10, 20, 200, 100}},
        {Across, 0, 100, -1, {10, 20, 0, 100}},
        {Across, 7, 7, 7, {}},
    };
    for (const auto &[type, min, max, value, filled] : cases) {
        BarGraphValues values;
        values.curBarType = type;
        std::tie(values.curMin, values.curMax, values.curDefaultVal) = std::tie(min, max, value);
        EXPECT_EQ(filledPart(values, {10, 20, 200, 100}), filled) << int(type) << ' ' << min << ' ' << value;
    }
}

TEST(LoadEstimate, asksOverFifteenAndMoreUrgentlyOverTwenty)
{
    const QString question =
        "The designed layout file has %1high complexity and this %2 result in high CPU load on "
        "the hardware device.\nDo you want to continue?";
    const QString high = question.arg("", "may"), extreme = question.arg("extremely ", "will");
    const std::pair<double, QString> cases[] = {{15.49, {}}, {15.5, high}, {20.5, high}, {20.51, extreme}};
    for (const auto &[load, asked] : cases)
        EXPECT_EQ(overloadQuestion(shownLoad(load)).value_or(QString()), asked) << load;
}

} // namespace
