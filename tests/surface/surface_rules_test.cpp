#include "surface/canvas_rules.h"
#include "surface/panel_layout.h"
#include "surface/variable_labels.h"

#include <gtest/gtest.h>

namespace {

using namespace surface;

using controls::Handle;
using recorder::VideoStandard;

const CanvasRules Pal{{}, VideoStandard::Pal, {80, true, true}};
const CanvasRules Ntsc{{}, VideoStandard::Ntsc, {80, true, true}};
const CanvasRules Coarse{{}, VideoStandard::Pal, {100, true, true}};
const CanvasRules Free{{}, VideoStandard::Pal, {80, true, false}};

std::string textOf(const Box &box)
{
    return QString("%1 %2 %3 %4").arg(box.Left).arg(box.Top).arg(box.Width).arg(box.Height).toStdString();
}

TEST(Resizing, movesTheEdgesOfTheGripOnly)
{
    // The pointer stands within the control.
    const std::tuple<CanvasRules, Handle, QPointF, const char *> cases[] = {
        {Pal, Handle::TopLeft, {100, 50}, "400 320 500 580"},
        {Pal, Handle::BottomRight, {700, 650}, "300 300 660 580"},
        {Free, Handle::LeftMiddle, {-50, 999}, "250 300 650 600"},
        {Free, Handle::BottomMiddle, {999, 601}, "300 300 600 601"},
        {Free, Handle::TopLeft, {5000, 5000}, "720 720 180 180"}, // two pixels of content stay
        {Coarse, Handle::BottomRight, {10, -500}, "300 300 180 180"},
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

using variables::VariableRecord;

TEST(Panels, fitTheirWindowAndFollowItUntilOneIsMoved)
{
    for (const QSize &area : {QSize(1280, 690), QSize(640, 380), QSize(1920, 1000), QSize(5000, 400)}) {
        PanelRects panels = defaultPanels(area);
        SCOPED_TRACE(area.width());
        EXPECT_TRUE(isDefaultArrangement(panels));
        EXPECT_GE(panels[std::size_t(PanelId::Design)].width(),
                  area.width() < 1280 ? 320 : 720); // of the canvas
        for (std::size_t i = 0; i < panels.size(); ++i) {
            EXPECT_TRUE(QRect(QPoint(), area).contains(panels[i])) << i;
            EXPECT_FALSE(panels[i].intersects(panels[(i + 1) % 3])) << i;
            EXPECT_GE(std::min(panels[i].width(), panels[i].height()), 100) << i;
            panels[i].translate(0, 1);
            EXPECT_FALSE(isDefaultArrangement(panels)) << i;
            panels[i].translate(0, -1);
        }
    }
}

TEST(Panels, storedRectanglesArePulledIntoView)
{
    const std::pair<QRect, QRect> cases[] = {
        {{10, 20, 300, 200}, {10, 20, 300, 200}}, {{5000, 5000, 300, 200}, {340, 180, 300, 200}},
        {{-50, -60, 300, 200}, {0, 0, 300, 200}}, {{0, 12, 817, 465}, {0, 0, 640, 380}},
        {{817, 12, -3, 0}, {520, 12, 120, 80}},   {{-143165576, 0, 143165576, 80}, {0, 0, 640, 80}}};
    for (const auto &[stored, shown] : cases)
        EXPECT_EQ(pulledIntoView(stored, {640, 380}), shown) << stored.left() << ' ' << stored.width();
    EXPECT_EQ(pulledIntoView({10, 10, 300, 300}, {100, 50}), QRect(0, 0, 100, 50));
}

// Key and text of each line below a variable.
QStringList linesOf(int index, const VariableRecord &record)
{
    QStringList lines;
    std::vector<VariableDetail> open = variableDetails(record, index, {{}, {"kmh", "", "", "km/h"}}, ",");
    for (std::size_t i = 0; i < open.size(); ++i) {
        const VariableDetail detail = open[i];
        lines.append(detail.key(index) + ' ' + detail.text);
        open.insert(open.end(), detail.children.begin(), detail.children.end());
    }
    return lines;
}

TEST(VariableLines, tellUnitNameAndLimits)
{
    VariableRecord record;
    record.BaseName = "Speed";
    record.ApplyTransformation = "kmh";
    record.CustomUnits = "own";
    record.SmoothingTime = 0.5F;
    record.MaximumROC = 1e7F;
    EXPECT_EQ(
        linesOf(6999, record),
        (QStringList{"#AVAILABLETYPE#6999#ADVANCED Advanced options", "#TRANSFORMTYPE#6999 units: [km/h]",
                     "#USERNAME#6999 Variable Name: Speed", "#SMOOTHING#6999 Smoothed over: 0,5 seconds",
                     "#MAXROC#6999 Maximum rate of change: 1E+07"}));
    record.UseCustomTrans = true;
    record.VariableType = 2;
    EXPECT_EQ(linesOf(7000, record)[0], "#TRANSFORMTYPE#7000 sensor type/units: [own]"); // no options
    record.VariableType = 4;
    EXPECT_EQ(linesOf(1, record)[0], "#TRANSFORMTYPE#1 edit equation");
}

} // namespace
