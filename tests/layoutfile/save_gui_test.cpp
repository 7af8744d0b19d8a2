#include "layoutfile/saved_design.h"

#include <QDir>
#include <QProcess>
#include <QScopeGuard>

namespace {

using layoutfile::SaveKind;
using recorder::VideoStandard;
using test::DesignWindow;

TEST(Save, onlyTheUsersSaveEndsAtAControlThatCannotBeStored)
{
    DesignWindow d;
    EXPECT_EQ(test::save(d).refusal, "System can't detect any object(s) to save");
    d.addBar(0, 0).setBox({1e20F, 0, 1950, 450});
    d.addGauge(100, 100);
    EXPECT_THROW(test::save(d), common::RunTimeError);
    for (const SaveKind kind : {SaveKind::Workspace, SaveKind::Backup, SaveKind::Recovery}) {
        const auto records = layoutfile::parseLayout(test::save(d, kind).file);
        EXPECT_TRUE(std::any_of(records.begin(), records.end(), [](const auto &record) {
            return record.type() == layoutfile::RecordType::Gauge;
        }));
    }
}

TEST(Save, aSharedCameraRefusesAllButTheSpareFiles)
{
    DesignWindow d;
    for (int i = 0; i < 2; ++i)
        d.design().addControl(controls::ControlType::VideoSource, {});
    for (const auto &[kind, isRefused] : {std::pair{SaveKind::Command, true},
                                          {SaveKind::Workspace, true},
                                          {SaveKind::Backup, false},
                                          {SaveKind::Recovery, false}}) {
        const layoutfile::LayoutBytes made = test::save(d, kind);
        EXPECT_EQ(made.refusal.isEmpty(), !isRefused) << static_cast<int>(kind);
        EXPECT_EQ(made.file.isEmpty(), isRefused) << static_cast<int>(kind);
    }
}

TEST(Save, whatIsNotInForceHasNoRecord)
{
    DesignWindow d;
    d.addGauge(100, 100);
    recorder::RecorderSettings &settings = d.world.state.settings;
    settings.autoStart = settings.autoStop = {.variable = 2, .condition = 0, .value = 5, .time = 3};
    settings.LapChapterType = 4;
    settings.icon.left = 30;
    for (const layoutfile::LayoutRecord &record : layoutfile::parseLayout(test::savedDesign(d))) {
        const auto type = static_cast<int>(record.type());
        EXPECT_FALSE((type >= 8 && type <= 11) || type == 27) << type;
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

TEST(Save, ontoAFullCardKeepsTheOldLayoutOrHoldsTheNewOneInItsPlace)
{
    for (const auto &[oldSize, fits] : {std::pair{100, false}, std::pair{40000, true}}) {
        DesignWindow d;
        const QString card = test::pathIn(d, "card"), path = card + "/DEFAULT.VGL";
        QDir().mkpath(card);
        if (QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=65536", "tmpfs", card}) != 0)
            GTEST_SKIP() << "no small volume can be mounted here";
        const auto unmounting = qScopeGuard([&card] { QProcess::execute("umount", {card}); });
        const QByteArray old(oldSize, 'o');
        platform::replaceFile(path, old);
        QFile video(card + "/video.bin");
        ASSERT_TRUE(video.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (video.write(QByteArray(1024, 'v')) == 1024) {
        }
        d.addGauge(100, 100);
        d.world.prompts.expectSaveFile(path);
        if (!fits) {
            d.world.prompts.expectMessage("The command could not be completed.\n" + path +
                                          ": There is no room left on the volume");
        }
        d.run("mnuSaveConfig");
        EXPECT_TRUE(d.window.isEnabled());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(d.design().caption(), fits ? "DEFAULT" : "Untitled");
        const QByteArray kept = platform::readFile(path);
        EXPECT_EQ(layoutfile::IsValidVGL(kept), fits);
        EXPECT_EQ(kept == old, !fits);
        EXPECT_EQ(QDir(card).entryList(QDir::Files), QStringList({"DEFAULT.VGL", "video.bin"}));
    }
}

} // namespace
