#include "controls/digital_display/digital_display_dialog.h"
#include "controls/property_dialogs.h"
#include "controls/text_tag/text_tag_dialog.h"
#include "support/block_font.h"

namespace {

using namespace controls;
using test::box;
using test::list;
using test::press;
using test::type;

using DisplayProperties = test::Properties<DigitalDisplayDialog, DigitalDisplay, ControlType::DigitalDisplay>;
using TagProperties = test::Properties<TextTagDialog, TextTag, ControlType::TextTag>;

QString label(QDialog &dialog, const char *name) { return test::child<QLabel>(dialog, name).text(); }

void chooseBlocks(test::DesignWindow &w, QDialog &dialog)
{
    test::writeBlockFont(w.world, {"Block", 14, {true, true}});
    w.world.prompts.expectFont(QFont("Block [foundry]", 14, QFont::Bold, true));
    press(dialog, "cmdFont");
    EXPECT_EQ(label(dialog, "lblFont"), "Block [foundry] - Bold Italic - 14");
}

TEST_F(DisplayProperties, ArePreviewedAndAllWrittenByApply)
{
    DigitalDisplayDialog dialog(control);
    dialog.show();
    QStringList previews{label(dialog, "lblPreview")};
    const auto preview = [&] { previews.append(label(dialog, "lblPreview")); };
    type(dialog, "DefaultVal=3725.5");
    preview();
    press(dialog, "chkShowInTimeFormat");
    EXPECT_FALSE(list(dialog, "cmbDecMark").isEnabled());
    type(dialog, "DecimalPlaces=1");
    preview();
    press(dialog, "chkShowInTimeFormat");
    QTest::keyClick(&list(dialog, "cmbDecMark"), Qt::Key_Down);
    preview();
    EXPECT_EQ(previews.join(' '), "0.00 3725.50 01:02:05.5 3725,5");
    EXPECT_FALSE(box(dialog, "LowerLimit").isEnabled());
    press(dialog, "chkApplyLimits");
    chooseBlocks(w, dialog);
    type(dialog, "CenterX=-700 LowerLimit=-5 UpperLimit=10 Alfa=50");
    press(dialog, "cmdApply");
    EXPECT_EQ(control.Serialise().join('|'), "1050|300|1|1|1|Block|14|0|0|255|4864815|3725,5|2|640|205|"
                                             "255|1|-5|10|3725.5|1|128|0|0|0|0");
    press(*pressed("chkApplyLimits", {}), "cmdApply");
    EXPECT_EQ(control.Serialise().mid(17, 2).join('|'), "0|0");
    pressed("cmdApply", "CenterX=-40"); // 60 pixels wide
    EXPECT_EQ(control.get().curCenterX, -20);
}

TEST_F(DisplayProperties, ARefusedApplyWritesNothing)
{
    control.write("newUpperLimit", 1);
    expectRefusals("cmdApply", {{"DecimalPlaces=21 Alfa=256", "Invalid number of Decimal Places",
                                 platform::Icon::Critical},
                                {"CenterX=9 UpperLimit=0,5 Alfa=256", "Upper and lower limit can't be 0"},
                                {"CenterX=9 Alfa=256", "Invalid Alpha Value"},
                                {"CenterX=9 Alfa=101", {}}}); // is let through, and has no byte
}

TEST_F(TagProperties, AFieldIsStoredAsItsRowAndItsPattern)
{
    TextTagDialog dialog(control);
    dialog.show();
    EXPECT_EQ(label(dialog, "lblDefaultVal"), "Special String");
    list(dialog, "cmbTextType").setCurrentIndex(11);
    EXPECT_EQ(box(dialog, "Text").text(), "Time(hh:mm:ss)");
    chooseBlocks(w, dialog);
    press(dialog, "cmdApply");
    EXPECT_EQ(control.Serialise().join('|'), "1350|300|0|1|1|Block|14|0|0|0|0|hh:mm:ss|0|0|0|11|255|0|0|0");

    TextTagDialog again(control);
    EXPECT_EQ(label(again, "lblText") + box(again, "Text").text(), "Fieldhh:mm:ss");
    EXPECT_FALSE(box(again, "Text").isEnabled());
    list(again, "cmbTextType").setCurrentIndex(0);
    EXPECT_EQ(label(again, "lblText") + box(again, "Text").text(), "TextSimple Text");
}

TEST_F(TagProperties, AVariableTakesThePlaceOfTheType)
{
    control.write("newDefaultVal", 25); // a row beyond the list
    TextTagDialog dialog(control);
    dialog.show();
    EXPECT_EQ(list(dialog, "cmbTextType").currentIndex(), -1);
    box(dialog, "Text").setText(QString(31, 'x'));
    list(dialog, "cmbVariable").setCurrentText("Engine speed []");
    EXPECT_EQ(label(dialog, "lblDefaultVal") + box(dialog, "Text").text(), "Default ValueSimple Text");
    EXPECT_FALSE(list(dialog, "cmbTextType").isVisible());
    type(dialog, "DefaultVal=2 LowerLimit=1 UpperLimit=3.5 Text=Hot");
    press(dialog, "cmdApply");
    EXPECT_EQ(control.Serialise().mid(11, 5).join('|'), "Hot|3|1|3.5|2");
}

TEST_F(TagProperties, ARefusedOrUntouchedApplyWritesNothing)
{
    control.write("newDefaultVal", 25);
    const QStringList before = control.Serialise();
    expectRefusals("cmdApply", {{"CenterX=9 Alfa=101", "Invalid Alfa Value"}, {"CenterX=40000", {}}});
    pressed("cmdApply", {});
    EXPECT_EQ(control.Serialise(), before);
    const forms::Typed empty{{{"txtText", ""}, {"txtAlfa", "101"}}, {}};
    EXPECT_EQ(validateTextTag(empty)->text, "Please enter text to display");
}

} // namespace
