#include "controls/custom_dial/custom_dial_dialog.h"
#include "support/design_window.h"

namespace {

using controls::CustomDial;
using controls::CustomDialDialog;
using test::DesignWindow;

const QColor Red(Qt::red);

CustomDial &addDial(DesignWindow &w, int x, int y)
{
    w.design().addControl(controls::ControlType::CustomDial, QPointF(x * 15, y * 15));
    return static_cast<CustomDial &>(*w.design().controls().last());
}

QSize sizeOf(const CustomDial &dial) { return {dial.get().curWidth, dial.get().curHeight}; }

// Its face is 200 x 200 pixels and begins 5 pixels from the corner.
TEST(CustomDial, ThePointerIsDrawnUponTheFaceThatIsStoredWithoutIt)
{
    DesignWindow w;
    CustomDial &dial = addDial(w, 100, 50);
    dial.write("newDefaultVal", 120.0F);
    dial.write("newAlfa", 255);
    dial.redraw();
    const QPoint onPointer(205, 155 - 40);
    const QPoint onFace(205, 155 + 80);
    for (const QImage &shown : {w.canvas().grab().toImage(), w.design().renderPreview()}) {
        EXPECT_EQ(shown.pixelColor(onPointer), Red);
        EXPECT_LT(shown.pixelColor(onFace).green(), 3);        // black, but for a trace
        EXPECT_EQ(shown.pixelColor(108, 58), test::PalGround); // outside the circle
    }
    EXPECT_EQ(dial.face().picture().pixelColor(100, 60), QColor(Qt::black));
    EXPECT_EQ(dial.complexity(), 0);
    EXPECT_TRUE(dial.takesVariable());
}

TEST(CustomDial, AGripKeepsItsSidesEvenAndTheCanvasItsPlace)
{
    DesignWindow w;
    CustomDial &dial = addDial(w, 100, 50);
    test::drag(w, {100, 50}, {{-11, -21}});
    EXPECT_EQ(sizeOf(dial), QSize(210, 220));
    EXPECT_EQ(test::placeOf(dial), QPoint(90, 30)); // the grabbed edge gave way
    EXPECT_EQ(dial.face().planes().size(), QSize(210, 220));
    dial.write("newWidth", 31);
    dial.write("NewHeight", 0); // keeps the side
    dial.AssignProperties();
    test::drag(w, {111, 258}, {{0, -100}});
    EXPECT_EQ(sizeOf(dial), QSize(31, 118)); // not moved, so not made even
    test::drag(w, {111, 60}, {{0, 560}});
    EXPECT_EQ(test::placeOf(dial).y(), 576 - 128);
    w.run("mnuNTSC");
    EXPECT_EQ(test::placeOf(dial).y(), 480 - 128);
    test::press(w, Qt::Key_Up);
    EXPECT_EQ(dial.get().curCenterY, 480 - 128 + 5 - 1);
    dial.write("newWidth", 800);
    dial.AssignProperties();
    EXPECT_EQ(sizeOf(dial), QSize(720, 118));
    dial.write("newWidth", -2);
    EXPECT_THROW(dial.AssignProperties(), common::RunTimeError);
}

TEST(CustomDial, KeepsPlanesFromAFileUntilAPropertyOfTheFaceChanges)
{
    DesignWindow w;
    CustomDial &dial = addDial(w, 100, 50);
    graphics::Planes planes = graphics::Planes::ofSize({200, 200});
    for (QByteArray *plane : {&planes.y, &planes.u, &planes.v})
        plane->fill('P');
    dial.keepFace(graphics::PlanePicture::fromFile(planes, {}));
    dial.write("newAlfa", 7);
    dial.write("newPointerLength", 7);
    dial.write("newDefaultVal", 7.0F);
    test::press(w, Qt::Key_Up);
    dial.AssignProperties();
    EXPECT_EQ(dial.face().planes(), planes);
    dial.write("newCaption", "OIL");
    EXPECT_NE(dial.face().planes(), planes);
}

TEST(CustomDialDialog, ShowsWhatIsTypedAndWritesItOnApply)
{
    DesignWindow w;
    CustomDial &dial = addDial(w, 100, 50);
    CustomDialDialog dialog(dial);
    dialog.show();
    const auto preview = [&] {
        return dialog.findChild<QLabel *>("picPreview")->pixmap(Qt::ReturnByValue).toImage();
    };
    const auto type = [&](const char *field, const char *text) {
        dialog.findChild<QLineEdit *>(QLatin1String(field))->setText(QLatin1String(text));
    };
    const auto press = [&](const char *name) {
        dialog.findChild<QAbstractButton *>(QLatin1String(name))->click();
    };
    const QStringList before = dial.Serialise();
    QImage last = preview();
    EXPECT_EQ(last.size(), QSize(200, 200));
    for (const auto &[field, text] : {std::pair{"txtCaption", "RPM"},
                                      {"txtTicDelta", "40"},
                                      {"txtDefaultVal", "99"},
                                      {"txtAlfa", "100"},
                                      {"txtWidth", "101"}}) {
        type(field, text);
        EXPECT_NE(preview(), last) << field;
        last = preview();
    }
    type("txtPointerLength", "99999"); // no dial can be made of it
    EXPECT_EQ(preview(), last);
    type("txtPointerLength", "50");
    for (const char *alpha : {"101", "-1"}) {
        type("txtAlfa", alpha);
        w.world.prompts.expectMessage("Invalid Alfa Value");
        press("cmdOk");
        EXPECT_TRUE(dialog.isVisible());
    }
    EXPECT_EQ(dial.Serialise(), before);
    type("txtAlfa", "100");
    for (const char *name : {"cmdResetPointerColour", "cmdResetBackColour", "cmdResetTicColour",
                             "cmdResetCaptionColour", "cmdResetAnnularColour"}) {
        w.world.prompts.expectColour(qRgb(1, 2, 3));
        press(QByteArray(name).replace("cmdReset", "pic"));
        if (qstrcmp(name, "cmdResetTicColour") != 0)
            press(name);
    }
    press("cmdApply");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(
        dial.Serialise().join('|'),
        "1650|3150|2|50|3|255|-140|140|0|240|99|255|0|40|0.7|0.85|0.02|1|197121|"
        "MS Sans Serif                 |1|0|18|0|0|1|0|0.34|16777215|RPM                           |1|160|"
        "240|0.75|0.85|65535|0|0");
    press("chkCaption");
    EXPECT_FALSE(dialog.findChild<QWidget *>("txtCaption")->isEnabled());
    EXPECT_TRUE(dialog.findChild<QWidget *>("txtAnnularStart")->isEnabled());
    press("cmdOk");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dial.get().curCaptions, 0);
}

} // namespace
