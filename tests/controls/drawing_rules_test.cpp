#include "controls/bar_graph/bar_graph.h"
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

GaugeValues needleAt(float value, quint8 length)
{
    GaugeValues values;
    values.curDefaultVal = value;
    values.curPointerLength = length;
    return values;
}

void expectNear(QPointF point, QPointF expected)
{
    EXPECT_NEAR(point.x(), expected.x(), 0.002);
    EXPECT_NEAR(point.y(), expected.y(), 0.002);
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
        const auto needle = designNeedle(needleAt(value, 200), pivot, VideoStandard::Pal);
        ASSERT_TRUE(needle) << value;
        expectNear(needle->tip, pivot + tip);
        expectNear(needle->tail, pivot - tip / 200); // one pixel behind
    }
    GaugeValues placed = needleAt(80, 65);
    placed.curCenterX = 100;
    placed.curCenterY = 200;
    const auto preview = previewNeedle(placed, VideoStandard::Pal);
    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->tail, QPointF(100, 200));
    expectNear(preview->tip, {100.0075, 135});
}

TEST(Needle, ntscSqueezesItDownwards)
{
    GaugeValues values = needleAt(160, 120);
    values.curMaxAngle = 180;
    expectNear(designNeedle(values, {}, VideoStandard::Ntsc)->tip, {0.0139, 100}); // 480 / 576 of 120
    expectNear(designNeedle(values, {}, VideoStandard::Ntsc)->tail, {-0.0001, -1});
    expectNear(previewNeedle(values, VideoStandard::Ntsc)->tip, {0.0139, 100});
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

} // namespace
