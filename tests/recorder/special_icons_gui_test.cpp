#include "recorder/dialogs/frm_special_icons.h"
#include "support/scripted_prompts.h"
#include "support/widgets.h"

#include <QTemporaryDir>

namespace {

TEST(SpecialIcons, keepThePictureUnlessAnotherFitsAndIsTaken)
{
    test::ScriptedPrompts prompts;
    const QTemporaryDir folder;
    recorder::SpecialIcon icon;
    icon.picture = graphics::PlanePicture::fromFile({5, 3, QByteArray(15, 'y'), "uuu", "vvv"}, {});
    recorder::frmSpecialIcons dialog(icon, {prompts, {}, nullptr});
    dialog.show();
    test::press(dialog, "chkEnabled");
    test::child<QLineEdit>(dialog, "txtLeft").setText("-7");
    prompts.expectMessage("The image width should be multiples of 8 and height should be multiples of 2");
    test::press(dialog, "cmdOk");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(icon.enabled);
    EXPECT_EQ(icon.picture.planes().width, 5);
    const QString path = folder.filePath("icon.bmp");
    QImage(32, 20, QImage::Format_RGB32).save(path);
    prompts.expectOpenFile(path);
    test::press(dialog, "cmdBrowse");
    test::press(dialog, "cmdOk");
    EXPECT_TRUE(icon.enabled);
    EXPECT_EQ(icon.left, -7);
    EXPECT_EQ(icon.picture.planes().size(), QSize(40, 22));
}

} // namespace
