#include "controls/property_dialogs.h"
#include "controls/track_map/track_map_dialog.h"

namespace {

using controls::Box;
using controls::TrackMapDialog;

const QString Correction =
    "Left and top coordinates of the track map control must be divisible by 8.\nPress OK "
    "to continue with automatic correction";

TEST(TrackMapRules, TheFirstComplaintCounts)
{
    const QString wide = " width exceeds the maximum limit of 255,reduce and try again";
    const std::tuple<const char *, const char *, QString, QString> cases[] = {
        {"BorderWidth=256 MarkerWidth=256", "", "Border" + wide, ""},
        {"MarkerWidth=256 LineWidth=256", "", "Marker" + wide, ""},
        {"LineWidth=256 IniWidth=0", "", "Line" + wide, ""},
        {"IniWidth=0 Width=800", "", "Initial width & height can't be 0", ""},
        {"IniHeight=0 IniWidth=0 LeftCoordinates=13", "chkRescale", {}, ""},
        {"Width=800 Height=600", "", {}, "txtWidth=720"}, // the other one in its turn
        {"Width=720 Height=481", "", {}, "txtHeight=480"},
        {"IniWidth=0 LeftCoordinates=13 TopCoordinates=-9", "chkEnableMap", Correction,
         "txtLeftCoordinates=8 txtTopCoordinates=-8"},
        {"IniWidth=0 LeftCoordinates=16 TopCoordinates=8.5", "chkEnableMap", Correction,
         "txtTopCoordinates=8"},
        {"IniWidth=0 LeftCoordinates=16", "chkEnableMap", {}, ""},
        {"LeftCoordinates=696 Width=100", "chkEnableMap", Correction,
         "txtLeftCoordinates=608"}, // pulled in to 610
    };
    for (const auto &[texts, on, said, corrected] : cases) {
        SCOPED_TRACE(texts);
        forms::Typed typed{{{"txtIniWidth", "100"}, {"txtIniHeight", "100"}}, {{on, 1}}};
        for (const QString &text : QString(texts).split(' '))
            typed.texts["txt" + text.section('=', 0, 0)] = text.section('=', 1);
        const auto verdict =
            controls::validateTrackMap(typed, recorder::VideoStandard::Ntsc).value_or(forms::Verdict());
        QStringList corrections;
        for (const forms::Correction &correction : verdict.corrections)
            corrections.append(correction.field + '=' + correction.text);
        EXPECT_EQ(verdict.text, said);
        EXPECT_EQ(corrections.join(' '), corrected);
        EXPECT_EQ(verdict.icon == platform::Icon::Critical, said == Correction);
    }
}

struct TrackMap
    : test::Properties<TrackMapDialog, controls::TrackMap, controls::ControlType::TrackMap, 700, 40>
{
    QPoint place() const { return {control.get().curLeftCoord, control.get().curTopCoord}; }
};

TEST_F(TrackMap, SpeaksOfTheMapFileOnlyWhenTheUserTicksTheMap)
{
    control.write("newAutoRescale", 1);
    TrackMapDialog first(control);
    first.show();
    test::type(first, "LeftCoordinates=13 TopCoordinates=24");
    w.world.prompts.expectMessage(
        "To use this mode you must include a map file from the map generator program, "
        "please see the help file for more information");
    for (const char *button : {"chkEnableMap", "optUseRoad", "optHeight"})
        test::press(first, button);
    for (const bool ok : {false, true}) {
        EXPECT_TRUE(first.isVisible());
        w.world.prompts.expectConfirm(Correction, ok);
        test::press(first, "cmdApply");
    }
    EXPECT_EQ(control.Serialise().join(' '), "1650 1650 2 0 1 7 4227327 1 2 11579568 204 2 0 0 0 1 1 0 204");
    EXPECT_EQ(control.box(), (Box{120, 360, 1650, 1650}));

    control.write("newIniWidth", 70); // of no use with a map
    TrackMapDialog second(control);   // says nothing while it is filled
    second.show();
    EXPECT_FALSE(test::child<QWidget>(second, "chkRescale").isEnabled());
    test::press(second, "chkEnableMap");
    EXPECT_TRUE(test::box(second, "IniWidth").isEnabled());
    EXPECT_EQ(test::box(second, "IniWidth").text() + test::box(second, "IniHeight").text(), "00");
    EXPECT_FALSE(test::child<QWidget>(second, "optUseRoad").isEnabled());
}

TEST_F(TrackMap, StandsInItsOuterBoxOnEveryPath)
{
    EXPECT_EQ(place(), QPoint(610, 40)); // pulled in: 110 pixels wide
    test::press(w, Qt::Key_Left);
    EXPECT_EQ(control.box(), (Box{609 * 15, 40 * 15, 1650, 1650}));
    test::drag(w, {620, 60}, {{-9, 460}});
    EXPECT_EQ(place(), QPoint(600, 466));
    test::drag(w, {600, 466}, {{-100, -100}});
    EXPECT_EQ(QSize(control.get().curWidth, control.get().curHeight), QSize(200, 200));
    w.run("mnuNTSC");
    EXPECT_EQ(place(), QPoint(500, 270));
    // The recorder's border is that of the outer box; on the canvas it stands within the frame.
    control.write("newBorderWidth", 3);
    control.write("NewBordercolor", 255);
    control.redraw();
    const QImage recorded = w.design().renderPreview();
    EXPECT_EQ(recorded.pixelColor(502, 372), QColor(Qt::red));
    EXPECT_EQ(recorded.pixelColor(503, 372), test::NtscGround);
    EXPECT_EQ(w.shown({507, 372}), QColor(Qt::red));
}

} // namespace
