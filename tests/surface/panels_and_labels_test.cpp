#include "surface/panel_layout.h"
#include "surface/variable_labels.h"

#include <QSet>

#include <gtest/gtest.h>

namespace {

using namespace surface;
using variables::VariableRecord;

TEST(Panels, fitTheirWindowAndFollowItUntilOneIsMoved)
{
    for (const QSize &area : {QSize(1280, 690), QSize(640, 380), QSize(1920, 1000), QSize(5000, 400)}) {
        PanelRects panels = defaultPanels(area);
        EXPECT_TRUE(isDefaultArrangement(panels)) << area.width();
        EXPECT_GE(panels[std::size_t(PanelId::Design)].width(),
                  area.width() < 1280 ? 320 : 720); // of the canvas
        for (std::size_t i = 0; i < panels.size(); ++i) {
            EXPECT_TRUE(QRect(QPoint(), area).contains(panels[i])) << area.width() << ' ' << i;
            EXPECT_FALSE(panels[i].intersects(panels[(i + 1) % 3])) << area.width() << ' ' << i;
            EXPECT_GE(std::min(panels[i].width(), panels[i].height()), 100) << area.width() << ' ' << i;
            panels[i].translate(0, 1);
            EXPECT_FALSE(isDefaultArrangement(panels)) << area.width() << ' ' << i;
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

// Role, index and text of each line below a variable; no two nodes may have the same key.
QStringList linesOf(int index, const VariableRecord &record)
{
    QSet<QString> keys{variableKey("AVAILABLETYPE", index)};
    QStringList lines;
    std::vector<VariableDetail> open = variableDetails(record, index, {{}, {"kmh", "", "", "km/h"}}, ",");
    for (std::size_t i = 0; i < open.size(); ++i) {
        const VariableDetail detail = open[i];
        EXPECT_FALSE(keys.contains(detail.key(index))) << qPrintable(detail.key(index));
        keys.insert(detail.key(index));
        lines.append(detail.key(index).section('#', 1, 2) + ' ' + detail.text);
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
    record.MaximumROC = -1;
    EXPECT_EQ(linesOf(6999, record),
              (QStringList{"AVAILABLETYPE#6999 Advanced options", "TRANSFORMTYPE#6999 units: [km/h]",
                           "USERNAME#6999 Variable Name: Speed", "SMOOTHING#6999 Smoothed over: 0,5 seconds",
                           "MAXROC#6999 Maximum rate of change: None Set"}));
    EXPECT_EQ(linesOf(7000, record).size(), 3); // no advanced options
    EXPECT_EQ(linesOf(1, record).size(), 3);
    record.MaximumROC = 1e7F;
    record.UseCustomTrans = true;
    record.VariableType = 2;
    EXPECT_EQ(linesOf(2, record)[1], "TRANSFORMTYPE#2 sensor type/units: [own]");
    EXPECT_EQ(linesOf(2, record)[4], "MAXROC#2 Maximum rate of change: 1E+07");
    record.VariableType = 4;
    EXPECT_EQ(linesOf(2, record)[1], "TRANSFORMTYPE#2 edit equation");
}

} // namespace
