#include "layoutfile/saved_design.h"

namespace {

using layoutfile::SaveKind;
using layoutfile::SaveResult;
using recorder::VideoStandard;
using test::DesignWindow;

// A design that cannot be seen.
struct BlindSurface final : controls::ControlSurface
{
    explicit BlindSurface(surface::frmInterface &shown) : design(shown) {}

    QList<controls::OverlayControl *> controls() const override { return design.controls(); }
    controls::OverlayControl *loadControl(controls::ControlType) override { return nullptr; }
    void showControl(controls::OverlayControl &) override {}
    QImage renderPreview() const override { return {}; }
    void setVideoStandard(VideoStandard) override {}
    void refresh() override {}

    surface::frmInterface &design;
};

TEST(Save, refusesAnEmptyDesignAndGoesOnWithoutAThumbnail)
{
    DesignWindow d;
    BlindSurface surface(d.design());
    const QString path = test::pathIn(d, "saved.VGL");
    for (const auto &[kind, empty] : {std::pair{SaveKind::Command, SaveResult::Refused},
                                      std::pair{SaveKind::Workspace, SaveResult::NothingToDo},
                                      std::pair{SaveKind::Backup, SaveResult::NothingToDo}}) {
        if (kind == SaveKind::Command)
            d.world.prompts.expectMessage("System can't detect any object(s) to save");
        EXPECT_EQ(test::save(d, path, surface, kind), empty);
        EXPECT_FALSE(QFile::exists(path));

        controls::OverlayControl &bar = d.addBar(0, 0);
        if (kind != SaveKind::Backup)
            d.world.prompts.expectMessage({}); // the encoder's words
        EXPECT_EQ(test::save(d, path, surface, kind), SaveResult::Written);
        EXPECT_TRUE(QFile::remove(path));
        EXPECT_EQ(test::save(d, {}, surface, kind), SaveResult::NothingToDo);
        bar.mnuDelete_Click();
    }
}

TEST(Save, theThumbnailIsASixthOfTheOverlay)
{
    const std::pair<VideoStandard, int> heights[] = {{VideoStandard::Pal, 96}, {VideoStandard::Ntsc, 80}};
    for (const auto &[standard, height] : heights) {
        DesignWindow d;
        d.design().setVideoStandard(standard);
        // Pixels 120 to 360 and 240 to 360, filled up to 240.
        controls::BarGraph &bar = d.addBar(0, 0);
        bar.setBox({120 * 15 - 75, 240 * 15 - 75, 240 * 15 + 150, 120 * 15 + 150});
        bar.updatePosition();
        bar.write("newDefaultVal", 50);
        platform::replaceFile(test::pathIn(d, "a.VGL"), test::savedDesign(d));
        const QImage shown(layoutfile::ExtractThumbnail(test::pathIn(d, "a.VGL"), d.world.state.folders));
        ASSERT_EQ(shown.size(), QSize(120, height));
        EXPECT_GT(shown.pixelColor(25, 50).red(), 200);
        for (const QPoint &place : {QPoint(50, 50), QPoint(10, 50), QPoint(30, 35), QPoint(30, 65)})
            EXPECT_LT(shown.pixelColor(place).red(), 60);
    }
}

} // namespace
