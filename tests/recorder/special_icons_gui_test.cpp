#include "recorder/dialogs/frm_special_icons.h"
#include "support/scripted_prompts.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(SpecialIcons, keepThePictureUnlessAnotherFitsAndIsTaken)
{
    test::ScriptedPrompts prompts;
    const QTemporaryDir folder;
    recorder::SpecialIcon icon;
    icon.picture = graphics::PlanePicture::fromFile({5, 3, QByteArray(15, 'y'), "uuu", "vvv"}, {});
    const graphics::PlanePicture before = icon.picture;
    recorder::frmSpecialIcons dialog(icon, {prompts, {}, nullptr});
    dialog.show();
    const auto press = [&dialog](const char *button) {
        dialog.findChild<QAbstractButton *>(button)->click();
    };
    press("chkEnabled");
    dialog.findChild<QLineEdit *>("txtLeft")->setText("-7");
    prompts.expectMessage("The image width should be multiples of 8 and height should be multiples of 2");
    press("cmdOk");
    EXPECT_TRUE(icon.picture == before && !icon.enabled && dialog.isVisible());
    const QString path = folder.filePath("icon.bmp");
    QImage(32, 20, QImage::Format_RGB32).save(path);
    prompts.expectOpenFile(path);
    press("cmdBrowse");
    press("cmdOk");
    EXPECT_TRUE(icon.enabled && icon.left == -7 && icon.alpha == 255);
    EXPECT_EQ(icon.picture.planes().size(), QSize(40, 22));
}

} // namespace
