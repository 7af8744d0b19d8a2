#include "layoutfile/saved_design.h"

#include <set>

namespace {

using namespace layoutfile;
using controls::BarGraphValues;
using recorder::VideoStandard;
using test::DesignWindow;

// Two colours that come back from a file exactly, so that the thumbnails can be compared too.
constexpr quint32 Black = 0, White = 0xFFFFFF;

// A bar of 120 x 20 pixels lying, or standing, with its corner 5 pixels inside (x, y).
void addBar(DesignWindow &d, int x, int y, quint8 type, float min, float max)
{
    controls::BarGraph &bar = d.addBar(x, y);
    test::change(bar, [&](BarGraphValues &values) {
        values.curVarID = 3;
        values.curBarType = type;
        values.curMin = min;
        values.curMax = max;
        values.curAlfa = 128;
        values.curColour.setPacked(White);
    });
    if (type == 1)
        bar.setBox({bar.box().Left, bar.box().Top, 450, 1950});
    bar.updatePosition();
}

void fillDesign(DesignWindow &d)
{
    d.design().setVideoStandard(VideoStandard::Ntsc);
    test::change(d.addGauge(100, 100), [](controls::GaugeValues &values) {
        values.curVarID = 2;
        values.curColour.setPacked(Black);
        values.curMinAngle = -45;
        values.curMaxAngle = 225;
        values.curDefaultVal = 80.5F;
        values.curColourVariable = 3;
        values.curColourVarMin = -1;
        values.curColourVarMax = 1;
    });
    addBar(d, 50, 60, 0, 0, 100);
    addBar(d, 50, 120, 0, 100, 0);
    addBar(d, 300, 60, 1, 0, 100);
    addBar(d, 360, 60, 1, 100, 0);
    test::change(d.addGauge(701, 439), [](controls::GaugeValues &values) { // pulled into the corner
        values.curColour.setPacked(Black);
        values.curPointerWidth = 0;
    });
}

void fillSettings(shell::ProgramState &state)
{
    recorder::RecorderSettings &settings = state.settings;
    settings.CurrentBitRate = 12;
    settings.encodePattern = recorder::EncodePattern::IP;
    settings.ChapterList = {{9, -1.5F, 1, 2, 0, 3}, {0, 4, 0, 3, 1, 5}};
    settings.LapChapterActive = 1;
    settings.LapChapterType = 7;
    settings.autoStart = {2, 2, 10, 5};
    settings.autoStop = {3, 1, 0.5F, 60};
    settings.GearTable = {{0, 1}, {1.5F, 2}, {2.5F, 3}};
    settings.GearMethod = 1;
    settings.GearVariable = 2;
    settings.PulsesPerRevolution = 0.5F;
    settings.icon = {true, 8, 2, 30, 40, 128, QByteArray(16, 'Y') + QByteArray(8, 'C')};
    settings.MessageTable[0].storageRate = 9;
    settings.MessageTable[255].outputRate = 8;
    state.catalogue.live[2].SmoothingTime = 0.5F;
    state.catalogue.live[3].MaximumROC = 250;
}

using Ends = std::array<int, 4>;

std::vector<Ends> barEnds(const QByteArray &file)
{
    std::vector<Ends> ends;
    for (const auto &bar : test::recordsOf<BarGraphRecord>(file))
        ends.push_back({bar.startX, bar.startY, bar.endX, bar.endY});
    return ends;
}

TEST(RoundTrip, aLayoutComesBackWholeAndIsSavedWithTheSameBytes)
{
    DesignWindow first;
    fillDesign(first);
    fillSettings(first.world.state);
    const QByteArray file = test::savedDesign(first);

    // Vertical bars rise from their lower edge; exchanged limits turn a bar round.
    EXPECT_EQ(barEnds(file),
              (std::vector<Ends>{
                  {55, 65, 175, 65}, {175, 125, 55, 125}, {305, 185, 305, 65}, {365, 65, 365, 185}}));
    EXPECT_EQ(test::recordsOf<ProgramsRecord>(file).size(), 1U); // always there, here empty
    std::vector<std::array<int, 3>> gauges;
    for (const auto &gauge : test::recordsOf<GaugeRecord>(file))
        gauges.push_back({gauge.centreX, gauge.centreY, gauge.pointerLength});
    EXPECT_EQ(gauges, (std::vector<std::array<int, 3>>{{170, 170, 65}, {720 - 70, 480 - 70, 65}}));

    DesignWindow second;
    test::loadDesign(second, file);
    EXPECT_EQ(second.canvas().height(), 480);
    EXPECT_EQ(second.text("lblBitRate"), "Bit Rate 12 Mbps");
    EXPECT_TRUE(second.action("mnuIP").isChecked());
    EXPECT_EQ(second.design().controls().size(), 6);
    EXPECT_EQ(second.world.state.settings, first.world.state.settings);
    EXPECT_EQ(second.world.state.catalogue.live, first.world.state.catalogue.live);
    EXPECT_EQ(second.world.state.catalogue.staging, first.world.state.catalogue.live);
    EXPECT_TRUE(test::savedDesign(second) == file);

    recorder::MessageTable stored;
    recorder::readMessageTable(platform::readFile(second.world.state.folders.MessagesFile()), stored);
    EXPECT_EQ(stored, first.world.state.settings.MessageTable);
}

TEST(RoundTrip, coloursFromAFileKeepTheirBytesUntilTheyAreChanged)
{
    constexpr common::Yuv Grey{128, 128, 128}; // one of those that would climb at every load
    RecordGroups groups;
    groups.add(BarGraphRecord{.endX = 100, .barWidth = 20, .colour = Grey, .max = 100});
    groups.add(GaugeRecord{.centreX = 200, .centreY = 200, .pointerLength = 50, .colour = Grey});
    QByteArray file = assembleLayout(groups, test::stamp("driver", "pitwall"));
    DesignWindow d;
    for (int cycle = 0; cycle < 5; ++cycle) {
        d.design().mnuNew_Click();
        test::loadDesign(d, file);
        file = test::savedDesign(d);
        EXPECT_EQ(test::recordsOf<BarGraphRecord>(file).front().colour, Grey) << cycle;
        EXPECT_EQ(test::recordsOf<GaugeRecord>(file).front().colour, Grey) << cycle;
    }
    for (controls::OverlayControl *control : d.design().controls())
        control->write("newColour", 255);
    file = test::savedDesign(d);
    const common::Yuv red{82, 91, 240};
    EXPECT_EQ(test::recordsOf<BarGraphRecord>(file).front().colour, red);
    EXPECT_EQ(test::recordsOf<GaugeRecord>(file).front().colour, red);
}

TEST(RoundTrip, aLoadOnTopDoublesTheControlsAndReplacesTheSettings)
{
    DesignWindow d;
    fillDesign(d);
    fillSettings(d.world.state);
    const QByteArray file = test::savedDesign(d);
    d.world.state.settings.ChapterList.push_back({1, 0, 0, 2, 0, 1});
    d.world.state.settings.CurrentBitRate = 3;
    test::loadDesign(d, file);
    EXPECT_EQ(d.design().controls().size(), 12);
    EXPECT_EQ(d.world.state.settings.ChapterList.size(), 2U);
    EXPECT_EQ(d.world.state.settings.CurrentBitRate, 12);
    std::set<std::pair<controls::ControlType, int>> elements;
    for (const controls::OverlayControl *control : d.design().controls())
        elements.insert({control->family().type, control->Index()});
    EXPECT_EQ(elements.size(), 12U);
}

TEST(Load, aRefusedFileChangesNothing)
{
    DesignWindow d;
    fillDesign(d);
    fillSettings(d.world.state);
    QByteArray file = test::savedDesign(d);
    d.world.state.settings.CurrentBitRate = 3;
    const auto settings = d.world.state.settings;
    const auto controls = d.design().controls();
    file[60] = static_cast<char>(file[60] + 1);
    for (const QByteArray &damaged : {file, file.first(4), QByteArray()}) {
        d.world.prompts.expectMessage("Invalid File Format");
        test::loadDesign(d, damaged);
    }
    d.world.prompts.expectMessage("Invalid File Format");
    d.window.files().load(test::pathIn(d, "missing.VGL"));
    EXPECT_EQ(d.world.prompts.shown().back().icon, platform::Icon::Critical);
    EXPECT_EQ(d.world.state.settings, settings);
    EXPECT_EQ(d.design().controls(), controls);
    EXPECT_EQ(d.design().caption(), "Untitled");
    EXPECT_TRUE(d.window.isEnabled());
}

// With a good CRC every value reaches the design. It must stay one that can be looked at and saved.
TEST(Load, extremeValuesLeaveADesignThatWorks)
{
    constexpr float Nan = std::numeric_limits<float>::quiet_NaN(),
                    Infinite = std::numeric_limits<float>::infinity();
    constexpr qint16 Low = -32768, High = 32767;
    RecordGroups groups;
    for (const auto &[low, high] : {std::pair{Low, High}, std::pair{High, Low}, std::pair{High, High}}) {
        for (const auto &[min, max] :
             {std::pair{Nan, Infinite}, std::pair{-Infinite, Nan}, std::pair{1.F, 1.F}}) {
            groups.add(BarGraphRecord{
                low, high, high, high, 255, 255, {255, 255, 255}, min, max, Nan, Low, -1, Nan, Nan});
            groups.add(BarGraphRecord{low, low, low, high, 0, 0, {}, min, max, 0, 9000, 9000, 0, 0});
            groups.add(
                GaugeRecord{low, high, 255, 255, {0, 0, 0}, low, high, min, max, Nan, -1, 9000, Nan, 0});
            groups.add(GaugeRecord{high, low, 0, 0, {}, high, low, min, max, Infinite, 9000, -1, 0, Nan});
        }
    }
    for (const qint32 index : {-1, 0, 8001, 0x7FFFFFFF})
        groups.add(VariableEntry{index, 1, 5, 5, 0, 255});
    groups.add(VariableEntry{2, 1, Nan, Infinite, 0x7FFFFFFF, 255});
    groups.add(ChapterRecord{255, Nan, 255, -5, 255, Infinite});
    DesignWindow d;
    test::loadDesign(d, assembleLayout(groups, d.world.state.stamp));
    EXPECT_EQ(d.design().controls().size(), 36);
    EXPECT_FALSE(d.canvas().grab().isNull());
    const auto &speed = d.world.state.catalogue.live[2];
    EXPECT_EQ(speed.SmoothingTime, 0);
    EXPECT_EQ(speed.MaximumROC, 0);
    EXPECT_TRUE(IsValidVGL(test::savedDesign(d)));
}

} // namespace
