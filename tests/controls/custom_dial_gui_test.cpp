#include "controls/custom_dial/custom_dial_dialog.h"
#include "controls/property_dialogs.h"

namespace {

using controls::CustomDialDialog;

using CustomDial =
    test::Properties<CustomDialDialog, controls::CustomDial, controls::ControlType::CustomDial, 100, 50>;

// Its face is 200 x 200 pixels and begins 5 pixels from the corner.
TEST_F(CustomDial, ThePointerIsDrawnUponTheFaceThatIsStoredWithoutIt)
{
    control.write("newDefaultVal", 120.0F);
    control.write("newAlfa", 255);
    control.redraw();
    const QPoint onPointer(205, 155 - 40), onFace(205, 155 + 80);
    for (const QImage &shown : {w.canvas().grab().toImage(), w.design().renderPreview()}) {
        EXPECT_EQ(shown.pixelColor(onPointer), QColor(Qt::red));
        EXPECT_LT(shown.pixelColor(onFace).green(), 3);        // black, but for a trace
        EXPECT_EQ(shown.pixelColor(108, 58), test::PalGround); // outside the circle
    }
    EXPECT_EQ(control.face().picture().pixelColor(100, 60), QColor(Qt::black));
}

TEST_F(CustomDial, AGripKeepsItsSidesEvenAndTheCanvasItsPlace)
{
    test::drag(w, {100, 50}, {{-11, -21}});
    EXPECT_EQ(control.innerRect().size(), QSize(210, 220));
    EXPECT_EQ(test::placeOf(control), QPoint(90, 30)); // the grabbed edge gave way
    EXPECT_EQ(control.face().planes().size(), QSize(210, 220));
    control.write("newWidth", 31);
    control.write("NewHeight", 0); // keeps the side
    control.AssignProperties();
    test::drag(w, {111, 258}, {{0, -100}});
    EXPECT_EQ(control.innerRect().size(), QSize(31, 118)); // not moved, so not made even
    test::drag(w, {111, 60}, {{0, 560}});
    EXPECT_EQ(test::placeOf(control).y(), 576 - 128);
    w.run("mnuNTSC");
    EXPECT_EQ(test::placeOf(control).y(), 480 - 128);
    control.write("newWidth", 800);
    control.AssignProperties();
    EXPECT_EQ(control.innerRect().size(), QSize(720, 118));
    EXPECT_EQ(control.get().curCenterX, 0); // all of it on the canvas
    control.write("newWidth", -2);
    EXPECT_THROW(control.AssignProperties(), common::RunTimeError);
}

TEST_F(CustomDial, KeepsPlanesFromAFileUntilAPropertyOfTheFaceChanges)
{
    graphics::Planes planes = graphics::Planes::ofSize({200, 200});
    for (QByteArray *plane : {&planes.y, &planes.u, &planes.v})
        plane->fill('P');
    control.keepFace(graphics::PlanePicture::fromFile(planes, {}));
    control.write("newAlfa", 7);
    control.write("newPointerLength", 7);
    control.write("newDefaultVal", 7.0F);
    test::press(w, Qt::Key_Up);
    control.AssignProperties();
    EXPECT_EQ(control.face().planes(), planes);
    control.write("newCaption", "OIL");
    EXPECT_NE(control.face().planes(), planes);
}

TEST_F(CustomDial, DialogShowsWhatIsTypedAndWritesItOnApply)
{
    CustomDialDialog dialog(control);
    dialog.show();
    const auto preview = [&] {
        return test::child<QLabel>(dialog, "picPreview").pixmap(Qt::ReturnByValue).toImage();
    };
    QImage last = preview();
    for (const char *text : {"Caption=RPM", "TicDelta=40", "DefaultVal=99", "Alfa=100", "Width=101"}) {
        test::type(dialog, text);
        EXPECT_NE(preview(), last) << text;
        last = preview();
    }
    test::box(dialog, "PointerLength").setText("99999"); // no dial can be made of it
    EXPECT_EQ(preview(), last);
    test::type(dialog, "PointerLength=50");
    for (const char *colour :
         {"PointerColour", "BackColour", "TicColour", "CaptionColour", "AnnularColour"}) {
        w.world.prompts.expectColour(qRgb(1, 2, 3));
        test::press(dialog, qPrintable(QString("pic") + colour));
        if (qstrcmp(colour, "TicColour") != 0)
            test::press(dialog, qPrintable(QString("cmdReset") + colour));
    }
    expectRefusals("cmdOk", {{"Alfa=101", "Invalid Alfa Value"}, {"Alfa=-1", "Invalid Alfa Value"}});
    test::press(dialog, "cmdApply");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(
        control.Serialise().join('|'),
        "1650|3150|2|50|3|255|-140|140|0|240|99|255|0|40|0.7|0.85|0.02|1|197121|"
        "MS Sans Serif                 |1|0|18|0|0|1|0|0.34|16777215|RPM                           |1|160|"
        "240|0.75|0.85|65535|0|0");
    test::press(dialog, "chkCaption");
    EXPECT_FALSE(test::box(dialog, "Caption").isEnabled());
    EXPECT_TRUE(test::box(dialog, "AnnularStart").isEnabled());
    test::press(dialog, "cmdOk");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(control.get().curCaptions, 0);
}

} // namespace
