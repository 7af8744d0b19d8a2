#include "surface/canvas_rules.h"

#include <gtest/gtest.h>

namespace {

using namespace surface;
using controls::Handle;
using recorder::VideoStandard;

const CanvasRules Pal{{}, VideoStandard::Pal, {80, true, true}};
const CanvasRules Ntsc{{}, VideoStandard::Ntsc, {80, true, true}};
const CanvasRules Coarse{{}, VideoStandard::Pal, {100, true, true}};
const CanvasRules Free{{}, VideoStandard::Pal, {80, true, false}};
const CanvasRules NoSpacing{{}, VideoStandard::Pal, {0, true, true}};

std::string textOf(const Box &box)
{
    return QString("%1 %2 %3 %4").arg(box.Left).arg(box.Top).arg(box.Width).arg(box.Height).toStdString();
}

TEST(Moving, snapsOnlyOnRequestAndStaysOnTheCanvas)
{
    const std::tuple<CanvasRules, Box, QPointF, const char *> cases[] = {
        {Free, {160, 160, 610, 630}, {79, -1}, "239 159 610 630"},
        {NoSpacing, {160, 160, 610, 630}, {79, -1}, "239 159 610 630"},
        {Ntsc, {160, 160, 610, 630}, {20000, 20000}, "10190 6570 610 630"},
        {Pal, {0, 0, 11000, 9000}, {500, 500}, "0 0 11000 9000"}, // larger than the canvas
    };
    for (const auto &[rules, box, shift, expected] : cases)
        EXPECT_EQ(textOf(movedBox(box, {30, 30}, QPointF(30, 30) + shift, rules)), expected);
}

TEST(Resizing, movesTheEdgesOfTheGripOnly)
{
    // The pointer stands within the control.
    const std::tuple<CanvasRules, Handle, QPointF, const char *> cases[] = {
        {Pal, Handle::TopLeft, {100, 50}, "400 320 500 580"},
        {Pal, Handle::BottomRight, {700, 650}, "300 300 660 580"},
        {Free, Handle::TopRight, {700, -50}, "300 250 700 650"},
        {Free, Handle::LeftMiddle, {-50, 999}, "250 300 650 600"},
        {Free, Handle::BottomMiddle, {999, 601}, "300 300 600 601"},
        {Free, Handle::TopLeft, {5000, 5000}, "720 720 180 180"}, // two pixels of content stay
        {Coarse, Handle::BottomRight, {10, -500}, "300 300 180 180"},
        {Pal, Handle::TopLeft, {-500, -9000}, "0 0 900 900"},
        {Pal, Handle::BottomRight, {20000, 20000}, "300 300 10500 8340"},
        {Ntsc, Handle::BottomRight, {20000, 20000}, "300 300 10500 6900"},
    };
    for (const auto &[rules, handle, pointer, expected] : cases)
        EXPECT_EQ(textOf(resizedBox({300, 300, 600, 600}, handle, pointer, rules)), expected);
}

TEST(Pointer, isMeasuredInEachUnit)
{
    EXPECT_TRUE(insideDeadZone({100, 100}, {160, 50}, {12, 10}));
    EXPECT_FALSE(insideDeadZone({100, 100}, {161, 100}, {12, 10}));
    EXPECT_FALSE(insideDeadZone({100, 100}, {100, 49}, {12, 10}));
    EXPECT_EQ(positionText({120, -20}, {12, 10}), "Pos (x, y) : 10, -2");
    EXPECT_EQ(positionText({37.5, 52.5}, {}), "Pos (x, y) : 2, 4"); // 2.5 and 3.5
}

} // namespace
