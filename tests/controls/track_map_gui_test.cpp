#include "controls/track_map/track_map_dialog.h"
#include "support/design_window.h"

namespace {

using controls::Box;
using controls::TrackMap;
using controls::TrackMapDialog;
using forms::Verdict;
using test::DesignWindow;

TrackMap &addTrackMap(DesignWindow &w, int x, int y)
{
    w.design().addControl(controls::ControlType::TrackMap, QPointF(x * 15, y * 15));
    return static_cast<TrackMap &>(*w.design().controls().last());
}

TEST(TrackMapRules, TheFirstComplaintCounts)
{
    const QString steps =
        "Left and top coordinates of the track map control must be divisible by 8.\nPress OK "
        "to continue with automatic correction";
    const QString wide = " width exceeds the maximum limit of 255,reduce and try again";
    const struct
    {
        const char *texts, *on;
        QString said, corrections;
    } cases[] = {
        {"BorderWidth=256 MarkerWidth=256", "", "Border" + wide, ""},
        {"MarkerWidth=256 LineWidth=256", "", "Marker" + wide, ""},
        {"LineWidth=256 IniWidth=0", "", "Line" + wide, ""},
        {"IniWidth=0 Width=800", "", "Initial width & height can't be 0", ""},
        {"IniHeight=-1", "", "Initial width & height can't be 0", ""},
        {"IniHeight=0 IniWidth=0 LeftCoordinates=13", "chkRescale", {}, "none"},
        {"Width=800 Height=600", "", {}, "txtWidth=720"}, // the other one in its turn
        {"Width=720 Height=481", "", {}, "txtHeight=480"},
        {"IniWidth=0 LeftCoordinates=13 TopCoordinates=-9", "chkEnableMap", steps,
         "txtLeftCoordinates=8 txtTopCoordinates=-8"},
        {"IniWidth=0 LeftCoordinates=16 TopCoordinates=8.5", "chkEnableMap", steps, "txtTopCoordinates=8"},
        {"IniWidth=0 LeftCoordinates=16", "chkEnableMap", {}, "none"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.texts);
        forms::Typed typed{{{"txtIniWidth", "100"}, {"txtIniHeight", "100"}}, {{c.on, 1}}};
        for (const QString &text : QString(c.texts).split(' '))
            typed.texts["txt" + text.section('=', 0, 0)] = text.section('=', 1);
        const auto verdict = controls::validateTrackMap(typed, recorder::VideoStandard::Ntsc);
        ASSERT_EQ(verdict.has_value(), c.corrections != "none");
        if (!verdict)
            continue;
        QStringList corrections;
        for (const forms::Correction &correction : verdict->corrections)
            corrections.append(correction.field + '=' + correction.text);
        EXPECT_EQ(verdict->text, c.said);
        EXPECT_EQ(corrections.join(' '), c.corrections);
        EXPECT_EQ(verdict->icon == platform::Icon::Critical, c.said == steps);
    }
}

TEST(TrackMapDialog, SpeaksOfTheMapFileOnlyWhenTheUserTicksTheMap)
{
    DesignWindow w;
    TrackMap &map = addTrackMap(w, 13, 24);
    map.write("newAutoRescale", 1);
    const auto press = [](QDialog &dialog, const char *name) {
        dialog.findChild<QAbstractButton *>(QLatin1String(name))->click();
    };
    const auto textIn = [](QDialog &dialog, const char *name) {
        return dialog.findChild<QLineEdit *>(QLatin1String(name))->text();
    };
    TrackMapDialog first(map);
    first.show();
    w.world.prompts.expectMessage(
        "To use this mode you must include a map file from the map generator program, "
        "please see the help file for more information");
    press(first, "chkEnableMap");
    press(first, "optUseRoad");
    press(first, "optHeight");
    for (const bool ok : {false, true}) {
        EXPECT_TRUE(first.isVisible());
        w.world.prompts.expectConfirm(
            "Left and top coordinates of the track map control must be divisible by "
            "8.\nPress OK to continue with automatic correction",
            ok);
        press(first, "cmdApply");
    }
    EXPECT_EQ(map.Serialise().join(' '), "1650 1650 2 0 1 7 4227327 1 2 11579568 204 2 0 0 0 1 1 0 204");
    EXPECT_EQ(map.box(), (Box{120, 360, 1650, 1650}));

    map.write("newIniWidth", 70); // of no use with a map
    TrackMapDialog second(map);   // says nothing while it is filled
    second.show();
    EXPECT_FALSE(second.findChild<QWidget *>("chkRescale")->isEnabled());
    press(second, "chkEnableMap");
    EXPECT_TRUE(second.findChild<QWidget *>("txtIniWidth")->isEnabled());
    EXPECT_EQ(textIn(second, "txtIniWidth") + textIn(second, "txtIniHeight"), "00");
    EXPECT_FALSE(second.findChild<QWidget *>("optUseRoad")->isEnabled());
}

TEST(TrackMap, StandsInItsOuterBoxOnEveryPath)
{
    DesignWindow w;
    TrackMap &map = addTrackMap(w, 700, 40); // pulled in: 110 pixels wide
    const auto place = [&map] { return QPoint(map.get().curLeftCoord, map.get().curTopCoord); };
    EXPECT_EQ(place(), QPoint(610, 40));
    test::press(w, Qt::Key_Left);
    EXPECT_EQ(map.box(), (Box{609 * 15, 40 * 15, 1650, 1650}));
    test::drag(w, {620, 60}, {{-9, 460}});
    EXPECT_EQ(place(), QPoint(600, 466));
    test::drag(w, {600, 466}, {{-100, -100}});
    EXPECT_EQ(QSize(map.get().curWidth, map.get().curHeight), QSize(200, 200));
    EXPECT_EQ(map.read("curHeight"), controls::PropertyValue(200));
    w.run("mnuNTSC");
    EXPECT_EQ(place(), QPoint(500, 270));
    EXPECT_FALSE(map.takesVariable());
    EXPECT_NEAR(map.complexity(), 200 * 200 * 0.000098, 1e-9);
    // The recorder's border is that of the outer box; on the canvas it stands within the frame.
    map.write("newBorderWidth", 3);
    map.write("NewBordercolor", 255);
    map.redraw();
    const QImage recorded = w.design().renderPreview();
    EXPECT_EQ(recorded.pixelColor(502, 372), QColor(Qt::red));
    EXPECT_EQ(recorded.pixelColor(503, 372), test::NtscGround);
    EXPECT_EQ(w.shown({507, 372}), QColor(Qt::red));
}

} // namespace
