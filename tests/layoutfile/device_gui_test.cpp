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
        EXPECT_TRUE(d.world.prompts.shown().back().text.startsWith("The command could not be completed."));
    }
    EXPECT_TRUE(d.window.isEnabled() && !QApplication::overrideCursor());
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
        d.addGauge(100, 100);
        saveTo(d, path, true, !fits);
        const QByteArray kept = platform::readFile(path);
        EXPECT_EQ(layoutfile::IsValidVGL(kept), fits);
        EXPECT_EQ(kept == old, !fits);
        EXPECT_EQ(QDir(card).entryList(QDir::Files), QStringList({"DEFAULT.VGL", "video.bin"}));
    }
}

} // namespace
