#include "layoutfile/saved_design.h"

#include <QDir>
#include <QProcess>

namespace {

using layoutfile::GaugeRecord;
using test::DesignWindow;

const QString RootQuestion = "Note that the file must be called DEFAULT.VGL and saved to the root \n"
                             "directory of a CF card to be recognised by the MORVEL\n\n"
                             "Do you want to continue ?";

void expectSave(DesignWindow &d, const QString &path, bool inRoot)
{
    d.world.prompts.expectSaveFile(path);
    if (!inRoot)
        d.world.prompts.expectQuestion(RootQuestion, true);
}

void expectIdle(DesignWindow &d, const QString &caption)
{
    EXPECT_TRUE(d.window.isEnabled());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(d.design().caption(), caption);
    EXPECT_EQ(QDir(d.world.state.folders.temporary).entryList(QDir::Files), QStringList());
}

void expectReported(DesignWindow &d)
{
    const auto &shown = d.world.prompts.shown();
    ASSERT_FALSE(shown.empty());
    EXPECT_EQ(shown.back().icon, platform::Icon::Critical);
    EXPECT_TRUE(shown.back().text.startsWith("The command could not be completed."));
}

// A memory card of 64 KB.
class Card
{
public:
    explicit Card(const QString &folder) : m_folder(folder)
    {
        QDir().mkpath(folder);
        m_mounted = QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=65536", "tmpfs", folder}) == 0;
    }
    ~Card()
    {
        if (m_mounted)
            QProcess::execute("umount", {m_folder});
    }
    Q_DISABLE_COPY_MOVE(Card)

    bool isMounted() const { return m_mounted; }
    // Leaves no room for anything more.
    void fill() const
    {
        QFile file(m_folder + "/video.bin");
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (file.write(QByteArray(1024, 'v')) == 1024) {
        }
    }

private:
    QString m_folder;
    bool m_mounted;
};

TEST(FailingDevice, aSaveIntoNoFolderIsReportedAndLeavesEverythingAsItWas)
{
    DesignWindow d;
    d.addGauge(100, 100);
    platform::replaceFile(test::pathIn(d, "file"), "content");
    expectSave(d, test::pathIn(d, "file/DEFAULT.VGL"), false);
    d.world.prompts.expectMessage({});
    d.run("mnuSaveConfig");
    expectReported(d);
    expectIdle(d, "Untitled");
    EXPECT_EQ(platform::readFile(test::pathIn(d, "file")), "content");

    expectSave(d, test::pathIn(d, "DEFAULT.VGL"), false);
    d.run("mnuSaveConfig");
    expectIdle(d, "DEFAULT");
    EXPECT_TRUE(layoutfile::IsValidVGL(platform::readFile(test::pathIn(d, "DEFAULT.VGL"))));
}

TEST(FailingDevice, aFullCardKeepsTheOldLayoutOrHoldsTheNewOneInItsPlace)
{
    for (const auto &[oldSize, fits] : {std::pair{100, false}, std::pair{40000, true}}) {
        DesignWindow d;
        const Card card(test::pathIn(d, "card"));
        if (!card.isMounted())
            GTEST_SKIP() << "no small volume can be mounted here";
        d.addGauge(100, 100);
        const QByteArray old(oldSize, 'o');
        const QString path = test::pathIn(d, "card/DEFAULT.VGL");
        platform::replaceFile(path, old);
        card.fill();
        expectSave(d, path, true);
        if (!fits)
            d.world.prompts.expectMessage({});
        d.run("mnuSaveConfig");
        if (!fits)
            expectReported(d);
        expectIdle(d, fits ? "DEFAULT" : "Untitled");
        const QByteArray kept = platform::readFile(path);
        EXPECT_EQ(layoutfile::IsValidVGL(kept), fits);
        EXPECT_EQ(kept == old, !fits);
        EXPECT_EQ(QDir(test::pathIn(d, "card")).entryList(QDir::Files),
                  QStringList({"DEFAULT.VGL", "video.bin"}));
    }
}

// The pivot's x of the one gauge tells the designs apart; 0 for no file.
int pivotIn(DesignWindow &d, const char *name)
{
    const QString path = d.world.state.folders.inUserData(name);
    if (!QFile::exists(path))
        return 0;
    const QByteArray file = platform::readFile(path);
    EXPECT_TRUE(layoutfile::IsValidVGL(file)) << name;
    return test::recordsOf<GaugeRecord>(file).at(0).centreX;
}

TEST(KeptDesigns, theThreeNewestClearedDesignsStay)
{
    DesignWindow d;
    const auto newLayout = [&] {
        d.world.prompts.expectQuestion("Do you want to clear design area ?", true);
        d.run("mnuNew");
    };
    newLayout(); // an empty design is no reason for a backup
    const std::array<int, 3> expected[] = {{170, 0, 0}, {171, 170, 0}, {172, 171, 170}, {173, 172, 171}};
    for (int i = 0; i < 4; ++i) {
        d.addGauge(100 + i, 100);
        newLayout();
        EXPECT_EQ((std::array{pivotIn(d, "MORVELBackup.VGL"), pivotIn(d, "MORVELBackup2.VGL"),
                              pivotIn(d, "MORVELBackup3.VGL")}),
                  expected[i]);
    }
}

TEST(KeptDesigns, theWorkspaceBeforeTheLastOneStays)
{
    DesignWindow d;
    d.window.files().saveWorkspace(); // nothing to keep
    EXPECT_EQ(pivotIn(d, "MORVELWorkspace.VGL"), 0);
    d.addGauge(100, 100);
    d.window.files().saveWorkspace();
    EXPECT_EQ(pivotIn(d, "MORVELWorkspace.bak"), 0);
    d.design().mnuNew_Click();
    d.addGauge(101, 100);
    d.window.files().saveWorkspace();
    EXPECT_EQ(pivotIn(d, "MORVELWorkspace.VGL"), 171);
    EXPECT_EQ(pivotIn(d, "MORVELWorkspace.bak"), 170);
    expectIdle(d, "Untitled");
}

} // namespace
