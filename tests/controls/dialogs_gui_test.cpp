#include "controls/bar_graph/bar_graph_dialog.h"
#include "controls/digital_display/digital_display_dialog.h"
#include "controls/gauge/gauge_dialog.h"
#include "controls/property_dialogs.h"
#include "controls/text_tag/text_tag_dialog.h"

namespace {

using controls::BarGraph;
using controls::BarGraphDialog;
using controls::Box;
using controls::Gauge;
using controls::GaugeDialog;
using forms::ColourSwatch;
using test::box;
using test::DesignWindow;
using test::list;
using test::press;
using test::Properties;
using test::shown;
using test::type;

struct GaugeProperties : Properties<GaugeDialog, Gauge>
{
    GaugeProperties() : Properties(&DesignWindow::addGauge) { w.world.state.locale.decimalSeparator = ","; }
};

struct BarProperties : Properties<BarGraphDialog, BarGraph>
{
    BarProperties() : Properties(&DesignWindow::addBar) {}
};

TEST_F(GaugeProperties, AreShownAndAllWrittenByApply)
{
    w.world.addVariable(15, "Accel [lat]");
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
                    {"CenterX=1 PointerWidth=-1", {}},
                    {"CenterX=1 MaxAngle=32768", {}},
                    {"CenterX=40000 Min=3", {}}});
}

// Half the box is 85 pixels at this length; on the way past 0 a nudge must not land on it.
TEST_F(GaugeProperties, APivotOfZeroIsTheMiddleOfTheBoxOnEveryPath)
{
    control.write("newCenterX", 0);
    w.run("mnuNTSC");
    EXPECT_EQ(control.get().curCenterX, 0);
    EXPECT_TRUE(w.design().renderPreview().pixelColor(70 - 43, 270 + 21) == QColor(Qt::red)); // as it reads
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
    EXPECT_EQ(test::placeOf(control), QPoint(100, 200));
}

TEST_F(GaugeProperties, AColourVariableTakesThePlaceOfTheColour)
{
    GaugeDialog dialog(control);
    dialog.show();
    auto &swatch = test::child<ColourSwatch>(dialog, "picForeColour");
    const auto expectFixedColour = [&](bool fixed) {
        for (const char *name : {"picForeColour", "cmdResetForeColour"})
            EXPECT_EQ(test::child<QWidget>(dialog, name).isEnabled(), fixed) << name;
        for (const char *name : {"txtColourVarMin", "txtColourVarMax"})
            EXPECT_NE(test::child<QWidget>(dialog, name).isEnabled(), fixed) << name;
        EXPECT_EQ(test::child<QWidget>(dialog, "lblColour").isVisible(), fixed);
        for (const char *name : {"lblColourMin", "lblColourMax"})
            EXPECT_NE(test::child<QWidget>(dialog, name).isVisible(), fixed) << name;
    };
    expectFixedColour(true);
    swatch.setColour(0x332211);
    press(dialog, "cmdResetForeColour");
    EXPECT_EQ(swatch.colour(), 255u);
    QTest::keyClick(&list(dialog, "cmbColourVariable"), Qt::Key_Down);
    expectFixedColour(false);
    EXPECT_EQ(swatch.colour(), 0u);
    QTest::keyClick(&list(dialog, "cmbColourVariable"), Qt::Key_Up);
    expectFixedColour(true);
    press(dialog, "cmdAdd");
    EXPECT_EQ(control.get().curColourVariable, 0);
}

TEST_F(BarProperties, AreShownForTheChosenTypeAndAllWrittenByApply)
{
    control.write("newAlfa", 153);
    BarGraphDialog dialog(control);
    dialog.show();
    const QString before = "Alfa=60 BarWidth=%1 ColourVarMax=0 ColourVarMin=0 DefaultVal=0 EndX=%2 EndY=%3 "
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
                    {"Min=100 Max=0 DefaultVal=-1", outside},
                    {"StartX=1 Alfa=100.5", "Invalid Alpha Value"},
                    {"StartX=1 Alfa=-1", "Invalid Alpha Value"},
                    {"Max=9 BarWidth=256", {}},
                    {"Max=9 EndX=5000", {}}, // would be pushed out of reach on the left
                    {"Max=9 StartX=2300 EndX=2400", {}}});
}

TEST_F(BarProperties, ApplyPlacesAndSizesTheBar)
{
    const struct
    {
        const char *texts;
        int barType;
        Box box;
    } cases[] = {
        {"Min=100 Max=0 DefaultVal=50", 0, {1500, 3000, 1950, 450}}, // reversed
        {"DefaultVal=100", 0, {1500, 3000, 1950, 450}},              // an end belongs to the range
        {"EndX=305", 0, {1500, 3000, 3150, 450}},
        {"StartX=90 EndX=20", 0, {1275, 3000, 3150, 450}}, // the end before the start keeps the length
        {"StartX=700 EndX=800", 0, {9150, 3000, 1650, 450}},
        {"StartY=570", 0, {9150, 8190, 1650, 450}},
        {"StartY=100 EndY=150 BarWidth=40", 1, {9150, 1425, 750, 900}},
    };
    for (const auto &c : cases) {
        EXPECT_FALSE(pressed("cmdApply", c.texts, c.barType)->isVisible());
        EXPECT_EQ(control.box(), c.box) << c.texts;
        EXPECT_EQ(control.get().curLeft, c.box.Left + 75) << c.texts;
    }
}

TEST_F(BarProperties, AnUntouchedApplyKeepsOpacityAndAPlaceBetweenTwoPixels)
{
    control.write("newVarID", 3);
    control.write("newAlfa", 100); // 39 percent would come back as 99
    control.moveTo(1520, 2960);
    control.updatePosition();
    const QStringList before = control.Serialise();
    pressed("cmdApply", {});
    EXPECT_EQ(control.Serialise(), before);
    EXPECT_EQ(control.box(), (Box{1520, 2960, 1950, 450}));
}

TEST(Dialogs, TabReachesTheFieldsFromTopToBottom)
{
    DesignWindow w;
    GaugeDialog gauge(w.addGauge(100, 200));
    BarGraphDialog bar(w.addBar(100, 200));
    controls::DigitalDisplayDialog display(w.addDisplay(100, 200));
    controls::TextTagDialog tag(w.addTag(100, 200));
    for (QDialog *dialog : QList<QDialog *>{&gauge, &bar, &display, &tag}) {
        dialog->show();
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return dialog->isAncestorOf(QApplication::focusWidget()); }));
        QSet<QWidget *> unreached;
        for (QWidget *field : dialog->findChildren<QWidget *>()) {
            if (field->isEnabled() && field->isVisible() && field->focusPolicy() & Qt::TabFocus)
                unreached.insert(field);
        }
        for (QPoint last; !unreached.isEmpty();) {
            QWidget *field = QApplication::focusWidget();
            ASSERT_TRUE(unreached.remove(field)) << field->objectName().toStdString() << " comes twice";
            const QPoint place = field->mapTo(dialog, field->rect().center());
            EXPECT_TRUE(place.y() > last.y() + 3 || place.x() > last.x()) // or in the next column
                << field->objectName().toStdString();
            last = place;
            QTest::keyClick(field, Qt::Key_Tab);
        }
        dialog->hide();
    }
}

} // namespace
