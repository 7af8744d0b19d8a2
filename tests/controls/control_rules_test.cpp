#include "common/run_time_error.h"
#include "controls/bar_graph/bar_graph.h"
#include "controls/complexity.h"
#include "controls/gauge/gauge.h"

#include <gtest/gtest.h>

namespace {

using namespace controls;

using recorder::VideoStandard;

TEST(Grips, standOnTheEdgesAndTheFirstSlotWins)
{
    const HandleTable all = handleTable(1950, 450, GripSet::All); // halves: 937.5 and 187.5
    EXPECT_EQ(all[1], (GripBox{938, 0, 1013, 75}));
    EXPECT_EQ(all[4], (GripBox{1875, 188, 1950, 263}));
    EXPECT_EQ(all[5], (GripBox{0, 375, 75, 450}));
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

TEST(PixelRect, roundsHalvesToEvenInBothUnits)
{
    EXPECT_EQ(pixelRect({7.5F, 22.5F, 1650, 1650}, {15, 15}), QRect(0, 2, 110, 110));
    EXPECT_EQ(pixelRect({1200, 1200, 600, 600}, {12, 10}), QRect(100, 120, 50, 60));
}

// 0..160 on -120..120 degrees. The divisor 57.3 turns every needle a little: the tip for 0 is 0.027 and 0.047
// pixels off the true -120 degrees, (-173.205, 100) at this length.
TEST(Needle, turnsClockwiseFromTwelveAndIsNotLimitedToTheScale)
{
    const QPointF pivot(300, 250);
    const std::pair<float, QPointF> tips[] = {
        {80, {0.0231, -200}},
        {0, {-173.2321, 99.9532}},
        {160, {173.2089, 99.9933}},
        {320, {-0.0694, -200}}, // once round beyond the end, to the top again
    };
    for (const auto &[value, tip] : tips) {
        GaugeValues values;
        values.curDefaultVal = value;
        values.curPointerLength = 200;
        values.curCenterX = 300;
        values.curCenterY = 250;
        const auto needle = needleOf(values, VideoStandard::Pal, {});
        ASSERT_TRUE(needle) << value;
        const QPointF missed = needle->tip - pivot - tip;
        EXPECT_LT(missed.manhattanLength(), 0.002) << value;
        EXPECT_EQ(needle->pivot, pivot);
    }
}

TEST(Bar, staysInItsAreaWhateverItsValue)
{
    const QRectF area(10, 20, 200, 100);
    BarGraphValues values;
    values.curDefaultVal = 150; // of 0 to 100
    EXPECT_EQ(filledPart(values, area), area);
    values.curDefaultVal = -1;
    EXPECT_TRUE(filledPart(values, area).isEmpty());
    values.curMax = values.curMin;
    EXPECT_TRUE(filledPart(values, area).isEmpty());
}

TEST(LoadEstimate, termsOfTheKinds)
{
    using namespace complexity;
    const std::pair<double, double> terms[] = {
        {videoSource(1), 1.25},
        {videoSource(4), 0.65},
        {gauge(4, 50), 0.124},
        {barGraph(50, 60, 20), 0.0134},
        {bitmap(1650, 900, 0, {15, 15}), 0.09},
        {bitmap(1650, 900, 0, {10, 15}), 0.135},
        {bitmap(1650, 900, 2, {15, 15}), 0},
        {digitalDisplay(12, 6), 0.0864},
        {textTag(9, 11), 0.2079},
        {trackMap(100, 50, false), 0.49},
        {trackMap(100, 50, true), 0.775},
    };
    for (const auto &[term, expected] : terms)
        EXPECT_NEAR(term, expected, 1e-9);
    EXPECT_THROW(videoSource(0), common::RunTimeError);
}

TEST(LoadEstimate, asksOverFifteenAndMoreUrgentlyOverTwenty)
{
    const QString question =
        "The designed layout file has %1high complexity and this %2 result in high CPU load on "
        "the hardware device.\nDo you want to continue?";
    const QString high = question.arg("", "may");
    const QString extreme = question.arg("extremely ", "will");
    const std::pair<double, QString> cases[] = {{14.5, {}},   {15.49, {}},      {15.5, high},
                                                {20.5, high}, {20.51, extreme}, {250, extreme}};
    for (const auto &[load, asked] : cases)
        EXPECT_EQ(overloadQuestion(shownLoad(load)).value_or(QString()), asked) << load;
}

} // namespace
