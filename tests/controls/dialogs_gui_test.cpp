#include "controls/bar_graph/bar_graph_dialog.h"
#include "controls/gauge/gauge_dialog.h"
#include "controls/property_dialogs.h"

namespace {

using namespace controls;
using test::list;
using test::press;
using test::shown;
using test::type;

struct GaugeProperties : test::Properties<GaugeDialog, Gauge, ControlType::Gauge>
{
    GaugeProperties() { w.world.state.locale.decimalSeparator = ","; }
};

using BarProperties = test::Properties<BarGraphDialog, BarGraph, ControlType::BarGraph>;

TEST_F(GaugeProperties, AreShownAndAllWrittenByApply)
{
    w.world.addVariable(16, "Accel [long]");
    w.world.addVariable(22, "Speed [GPS]");
    control.write("newVarID", 3);
    control.write("newMin", 0.5F);
    GaugeDialog dialog(control);
    dialog.show();
    EXPECT_EQ(list(dialog, "cmbVariable").currentText(), "Engine speed []");
    EXPECT_EQ(shown(dialog), "CenterX=170 CenterY=270 ColourVarMax=0 ColourVarMin=0 DefaultVal=0 Max=160 "
                             "MaxAngle=120 Min=0,5 MinAngle=-120 PointerLen=65 PointerWidth=4");
    list(dialog, "cmbVariable").setCurrentText("Speed [GPS] []");
    list(dialog, "cmbColourVariable").setCurrentText("Accel [long] []");
    type(dialog, "CenterX=300 CenterY=210 PointerLen=80 PointerWidth=7 MinAngle=-90 MaxAngle=95 Min=-2,5 "
                 "Max=12.25 DefaultVal=3 ColourVarMin=10 ColourVarMax=2x0a");
    press(dialog, "cmdAdd");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(control.Serialise().join(' '), "2550 2550 22 300 210 80 7 0 -90 95 -2,5 12,25 3 16 10 20");
    EXPECT_EQ(control.box(), (Box{3225, 1875, 2550, 2550}));
}

TEST_F(GaugeProperties, ARefusedApplyWritesNothing)
{
    expectRefusals("cmdAdd",
                   {{"CenterX=1 Min=7 Max=7", "Can't use same value for minimum and maximum "},
                    {"Max=0,5", "Can't use same value for minimum and maximum "}, // cut at the comma
                    {"CenterX=1 Min=8 Max=7", "Invalid Min and Max value "},
                    {"CenterX=1 PointerLen=300 ColourVarMax=1", {}},
                    {"CenterX=40000 Min=3", {}}});
}

// Half the box is 85 pixels at this length; on the way past 0 a nudge must not land on it.
TEST_F(GaugeProperties, APivotOfZeroIsTheMiddleOfTheBoxOnEveryPath)
{
    control.write("newCenterX", 0);
    w.run("mnuNTSC");
    EXPECT_EQ(control.get().curCenterX, 0);
    EXPECT_EQ(w.design().renderPreview().pixelColor(70 - 43, 270 + 21), QColor(Qt::red)); // as it reads
    pressed("cmdAdd", "CenterX=0 CenterY=0 PointerLen=80");
    EXPECT_EQ(control.box(), (Box{0, 0, 2550, 2550}));
    EXPECT_EQ(QPoint(control.get().curCenterX, control.get().curCenterY), QPoint(85, 85));
    pressed("cmdAdd", "CenterX=1");
    test::press(w, Qt::Key_Left);
    EXPECT_EQ(test::placeOf(control), QPoint(-86, 0));
    EXPECT_EQ(control.get().curCenterX, -1);
}

TEST_F(GaugeProperties, CancelAndAnUntouchedApplyLeaveThemAsTheyAre)
{
    control.write("newVarID", 10);
    control.write("newColourVariable", 2);
    variables::VariableTable &table = w.world.state.catalogue.live;
    table[2].DisplayName = table[3].DisplayName = table[10].DisplayName; // one name for all
    const QStringList before = control.Serialise();
    EXPECT_FALSE(pressed("cmdExit", "CenterX=5 PointerLen=9")->isVisible());
    EXPECT_EQ(control.Serialise(), before);
    pressed("cmdAdd", {});
    EXPECT_EQ(control.Serialise(), before);
}

TEST_F(GaugeProperties, AColourVariableTakesThePlaceOfTheColour)
{
    GaugeDialog dialog(control);
    dialog.show();
    const auto open = [&] {
        QStringList names;
        for (const char *name : {"lblColour", "picForeColour", "cmdResetForeColour", "lblColourMin",
                                 "txtColourVarMin", "lblColourMax", "txtColourVarMax"}) {
            if (const auto &part = test::child<QWidget>(dialog, name); part.isVisible() && part.isEnabled())
                names += name;
        }
        return names.join(' ');
    };
    const QString fixed = "lblColour picForeColour cmdResetForeColour";
    EXPECT_EQ(open(), fixed);
    QTest::keyClick(&list(dialog, "cmbColourVariable"), Qt::Key_Down);
    EXPECT_EQ(open(), "lblColourMin txtColourVarMin lblColourMax txtColourVarMax");
    QTest::keyClick(&list(dialog, "cmbColourVariable"), Qt::Key_Up);
    EXPECT_EQ(open(), fixed);
    press(dialog, "cmdAdd");
    EXPECT_EQ(control.get().curColour.packed(), 0U); // black for the variable, and it stays
}

TEST_F(BarProperties, AreShownForTheChosenTypeAndAllWrittenByApply)
{
    BarGraphDialog dialog(control);
    dialog.show();
    const QString before = "Alfa=100 BarWidth=%1 ColourVarMax=0 ColourVarMin=0 DefaultVal=0 EndX=%2 EndY=%3 "
                           "Max=100 Min=0 StartX=105 StartY=205";
    EXPECT_EQ(shown(dialog), before.arg(20).arg(225).arg(205));
    QTest::keyClick(&list(dialog, "cmbBarType"), Qt::Key_Down);
    EXPECT_EQ(shown(dialog), before.arg(120).arg(105).arg(225));
    type(dialog, "StartX=10 StartY=20 EndY=220 BarWidth=30 Min=-1.5 Max=2 DefaultVal=1 Alfa=50");
    w.world.prompts.expectColour(qRgb(0, 0, 255));
    press(dialog, "picForeColour");
    press(dialog, "cmdApply");
    EXPECT_EQ(control.Serialise().join(' '), "600 3150 2 30 16711680 -1.5 2 1 1 128 0 0 0");
    EXPECT_EQ(control.box(), (Box{75, 225, 600, 3150}));
}

TEST_F(BarProperties, ARefusedApplyWritesNothing)
{
    const QString outside = "Default value should be between Min and Max value";
    expectRefusals("cmdApply",
                   {{"Min=7 Max=7 DefaultVal=9 Alfa=101", "Can't use same value for minimum and maximum "},
                    {"DefaultVal=100.5 Alfa=101", outside},
                    {"DefaultVal=-1", outside},
                    {"Min=100 Max=0 DefaultVal=150", outside},
                    {"StartX=1 Alfa=100.5", "Invalid Alpha Value"},
                    {"Max=9 BarWidth=256", {}},
                    {"Max=9 EndX=5000", {}}}); // would be pushed out of reach on the left
}

TEST_F(BarProperties, ApplyPlacesAndSizesTheBar)
{
    const auto expect = [this](const char *texts, const Box &box) {
        EXPECT_FALSE(pressed("cmdApply", texts)->isVisible());
        EXPECT_EQ(control.box(), box) << texts;
        EXPECT_EQ(control.get().curLeft, box.Left + 75) << texts;
    };
    expect("Min=100 Max=0 DefaultVal=50", {1500, 3000, 1950, 450}); // reversed
    expect("DefaultVal=100", {1500, 3000, 1950, 450});              // an end belongs to the range
    expect("StartX=90 EndX=20", {1275, 3000, 1950, 450}); // the end before the start keeps the length
    expect("StartX=700 EndX=800", {9150, 3000, 1650, 450});
    expect("StartY=570", {9150, 8190, 1650, 450});
    control.write("newBarType", 1);
    expect("StartY=100 EndY=150 BarWidth=40", {9150, 1425, 750, 900});
    control.moveTo(1520, 2960); // between two pixels
    control.updatePosition();
    expect("", {1520, 2960, 750, 900});
}

} // namespace
