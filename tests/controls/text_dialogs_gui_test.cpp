#include "controls/digital_display/digital_display_dialog.h"
#include "controls/property_dialogs.h"
#include "controls/text_tag/text_tag_dialog.h"
#include "support/block_font.h"

namespace {

using controls::DigitalDisplay;
using controls::DigitalDisplayDialog;
using controls::TextTag;
using controls::TextTagDialog;
using test::box;
using test::DesignWindow;
using test::list;
using test::press;
using test::shown;
using test::type;

struct DisplayProperties : test::Properties<DigitalDisplayDialog, DigitalDisplay>
{
    DisplayProperties() : Properties(&DesignWindow::addDisplay) {}
};

struct TagProperties : test::Properties<TextTagDialog, TextTag>
{
    TagProperties() : Properties(&DesignWindow::addTag) {}
};

QString label(QDialog &dialog, const char *name) { return dialog.findChild<QLabel *>(name)->text(); }

void chooseBlocks(DesignWindow &w, QDialog &dialog)
{
    test::writeBlockFont(w.world, {"Block", 14, {true}});
    QFont font("Block [foundry]");
    font.setPointSize(14);
    font.setBold(true);
    w.world.prompts.expectFont(font);
    press(dialog, "cmdFont");
    EXPECT_EQ(label(dialog, "lblFont"), "Block [foundry] - Bold - 14");
}

TEST_F(DisplayProperties, AreShownPreviewedAndAllWrittenByApply)
{
    DigitalDisplayDialog dialog(control);
    dialog.show();
    EXPECT_EQ(shown(dialog), "Alfa=100 CenterX=105 CenterY=205 ColourVarMax=0 ColourVarMin=0 DecimalPlaces=2 "
                             "DefaultVal=0 LowerLimit=0 UpperLimit=0");
    EXPECT_EQ(label(dialog, "lblFont"), "Arial - Regular - 12");
    const auto preview = [&dialog] { return label(dialog, "lblPreview"); };
    EXPECT_EQ(preview(), "0.00");
    type(dialog, "DefaultVal=3725.5");
    EXPECT_EQ(preview(), "3725.50");
    press(dialog, "chkShowInTimeFormat");
    EXPECT_EQ(preview(), "00:00:00.00");
    EXPECT_FALSE(list(dialog, "cmbDecMark").isEnabled());
    type(dialog, "DecimalPlaces=1");
    EXPECT_EQ(preview(), "01:02:05.5");
    press(dialog, "chkShowInTimeFormat");
    EXPECT_EQ(preview(), "0.00");
    QTest::keyClick(&list(dialog, "cmbDecMark"), Qt::Key_Down);
    EXPECT_EQ(preview(), "3725,5");
    EXPECT_FALSE(box(dialog, "LowerLimit").isEnabled());
    press(dialog, "chkApplyLimits");
    chooseBlocks(w, dialog);
    type(dialog, "CenterX=-700 LowerLimit=-5 UpperLimit=10 Alfa=50");
    press(dialog, "cmdApply");
    EXPECT_EQ(control.Serialise().join('|'),
              "1050|300|1|1|0|Block [foundry]|14|0|0|255|4864815|3725,5|2|640|205|"
              "255|1|-5|10|3725.5|1|128|0|0|0|0");
    pressed("chkApplyLimits", {})->findChild<QPushButton *>("cmdApply")->click();
    EXPECT_TRUE(control.get().curLowerLimit == 0 && control.get().curUpperLimit == 0);
}

TEST_F(DisplayProperties, ARefusedApplyWritesNothing)
{
    const auto expect = [this](const char *texts, const QString &message, platform::Icon icon) {
        const QStringList before = control.Serialise();
        w.world.prompts.expectMessage(message);
        DigitalDisplayDialog dialog(control);
        dialog.show();
        press(dialog, "chkApplyLimits");
        type(dialog, texts);
        press(dialog, "cmdApply");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(w.world.prompts.shown().back().icon, icon);
        EXPECT_EQ(control.Serialise(), before);
    };
    using platform::Icon;
    expect("DecimalPlaces=21 Alfa=256", "Invalid number of Decimal Places", Icon::Critical);
    expect("CenterX=9 LowerLimit=0,5 Alfa=256", "Upper and lower limit can't be 0", Icon::Information);
    expect("CenterX=9 LowerLimit=1 Alfa=256", "Invalid Alpha Value", Icon::Information);
    expect("CenterX=9 LowerLimit=1 Alfa=101", {}, Icon::Critical); // is let through, and has no byte
}

TEST_F(TagProperties, AFieldIsStoredAsItsRowAndItsPattern)
{
    auto dialog = std::make_unique<TextTagDialog>(control);
    dialog->show();
    EXPECT_EQ(box(*dialog, "Text").text(), "Simple Text");
    EXPECT_EQ(label(*dialog, "lblDefaultVal"), "Special String");
    EXPECT_FALSE(box(*dialog, "DefaultVal").isVisible() || box(*dialog, "LowerLimit").isEnabled());
    list(*dialog, "cmbTextType").setCurrentIndex(11);
    EXPECT_EQ(box(*dialog, "Text").text(), "Time(hh:mm:ss)");
    EXPECT_EQ(label(*dialog, "lblText"), "Field");
    chooseBlocks(w, *dialog);
    press(*dialog, "cmdApply");
    EXPECT_EQ(control.Serialise().join('|'),
              "1350|300|0|1|0|Block [foundry]|14|0|0|0|0|hh:mm:ss|0|0|0|11|255|0|0|0");

    dialog = std::make_unique<TextTagDialog>(control);
    dialog->show();
    EXPECT_EQ(box(*dialog, "Text").text() + list(*dialog, "cmbTextType").currentText(),
              "hh:mm:ssTime(hh:mm:ss)");
    EXPECT_FALSE(box(*dialog, "Text").isEnabled());
    list(*dialog, "cmbTextType").setCurrentIndex(0);
    EXPECT_EQ(label(*dialog, "lblText") + box(*dialog, "Text").text(), "TextSimple Text");
}

TEST_F(TagProperties, AVariableTakesThePlaceOfTheType)
{
    control.write("newDefaultVal", 25); // a row beyond the list
    TextTagDialog dialog(control);
    dialog.show();
    EXPECT_EQ(list(dialog, "cmbTextType").currentIndex(), -1);
    box(dialog, "Text").setText(QString(31, 'x'));
    list(dialog, "cmbVariable").setCurrentText("Engine speed []");
    EXPECT_EQ(box(dialog, "Text").text(), "Simple Text");
    EXPECT_EQ(label(dialog, "lblDefaultVal"), "Default Value");
    EXPECT_FALSE(list(dialog, "cmbTextType").isVisible());
    type(dialog, "DefaultVal=2 LowerLimit=1 UpperLimit=3.5 Text=Hot");
    press(dialog, "cmdApply");
    EXPECT_EQ(control.Serialise().mid(11, 5).join('|'), "Hot|3|1|3.5|2");
    EXPECT_EQ(control.get().curCenterX, 105);
}

TEST_F(TagProperties, ARefusedOrUntouchedApplyWritesNothing)
{
    control.write("newDefaultVal", 25);
    control.write("newTText", QString(30, 'x'));
    control.AssignProperties();
    expectRefusals("cmdApply", {{"CenterX=9 Alfa=101", "Invalid Alfa Value"},
                                {"CenterX=9 Alfa=-1", "Invalid Alfa Value"},
                                {"CenterX=40000", {}}});
    const QStringList before = control.Serialise();
    pressed("cmdApply", {});
    EXPECT_EQ(control.Serialise(), before);
    TextTagDialog dialog(control);
    dialog.show();
    box(dialog, "Text").clear();
    w.world.prompts.expectMessage("Please enter text to display");
    press(dialog, "cmdApply");
    EXPECT_EQ(control.Serialise(), before);
}

} // namespace
