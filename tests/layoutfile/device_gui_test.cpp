#include "layoutfile/saved_design.h"

#include <QDir>
#include <QProcess>
#include <QScopeGuard>

namespace {

using test::DesignWindow;

void saveTo(DesignWindow &d, const QString &path, bool inRoot, bool fails)
{
    d.world.prompts.expectSaveFile(path);
    if (!inRoot)
        d.world.prompts.expectQuestion({}, true);
    if (fails)
        d.world.prompts.expectMessage({});
    d.run("mnuSaveConfig");
    if (fails) {
        EXPECT_EQ(d.world.prompts.shown().back().icon, platform::Icon::Critical);
        EXPECT_TRUE(d.world.prompts.shown().back().text.startsWith("The command could not be completed."));
    }
    EXPECT_TRUE(d.window.isEnabled());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(d.design().caption(), fails ? "Untitled" : "DEFAULT");
    EXPECT_TRUE(QDir(d.world.state.folders.temporary).isEmpty());
}

TEST(FailingDevice, aSaveIntoNoFolderIsReportedAndLeavesEverythingAsItWas)
{
    DesignWindow d;
    d.addGauge(100, 100);
    platform::replaceFile(test::pathIn(d, "file"), "content");
    saveTo(d, test::pathIn(d, "file/DEFAULT.VGL"), false, true);
    EXPECT_EQ(platform::readFile(test::pathIn(d, "file")), "content");
    saveTo(d, test::pathIn(d, "DEFAULT.VGL"), false, false);
    EXPECT_TRUE(layoutfile::IsValidVGL(platform::readFile(test::pathIn(d, "DEFAULT.VGL"))));
}

TEST(FailingDevice, aFullCardKeepsTheOldLayoutOrHoldsTheNewOneInItsPlace)
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
        video.close();

        d.addGauge(100, 100);
        saveTo(d, path, true, !fits);
        const QByteArray kept = platform::readFile(path);
        EXPECT_EQ(layoutfile::IsValidVGL(kept), fits);
        EXPECT_EQ(kept == old, !fits);
        EXPECT_EQ(QDir(card).entryList(QDir::Files), QStringList({"DEFAULT.VGL", "video.bin"}));
    }
}

// The pivot's x of the one gauge tells the designs apart; 0 for no file.
int pivotIn(DesignWindow &d, const char *name)
{
    const QString path = d.world.state.folders.inUserData(name);
    return QFile::exists(path)
               ? test::recordsOf<layoutfile::GaugeRecord>(platform::readFile(path)).at(0).centreX
               : 0;
}

TEST(KeptDesigns, theWorkspaceBeforeTheLastAndTheThreeNewestClearedDesignsStay)
{
    DesignWindow d;
    const std::array<int, 5> expected[] = {{0, 0, 0, 0, 0}, // nothing to keep in an empty design
                                           {170, 0, 0, 0, 0},        {171, 170, 170, 0, 0},
                                           {172, 171, 171, 170, 0},  {173, 172, 172, 171, 170},
                                           {174, 173, 173, 172, 171}};
    for (int i = 0; i < 6; ++i) {
        d.world.prompts.expectQuestion({}, true);
        d.run("mnuNew");
        if (i > 0)
            d.addGauge(99 + i, 100);
        d.window.files().saveWorkspace();
        EXPECT_EQ((std::array{pivotIn(d, "MORVELWorkspace.VGL"), pivotIn(d, "MORVELWorkspace.bak"),
                              pivotIn(d, "MORVELBackup.VGL"), pivotIn(d, "MORVELBackup2.VGL"),
                              pivotIn(d, "MORVELBackup3.VGL")}),
                  expected[i]);
    }
}

} // namespace
