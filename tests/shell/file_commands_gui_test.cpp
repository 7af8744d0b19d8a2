#include "platform/file_replace.h"
#include "shell/termination.h"
#include "support/design_window.h"

#include <QDirIterator>
#include <QTemporaryDir>

#include <csignal>

namespace {

using shell::Parting;
using test::DesignWindow;

const QString Clear = "Do you want to clear design area ?";
const QString Overload = "The designed layout file has extremely high complexity and this will result in "
                         "high CPU load on the hardware device.\nDo you want to continue?";
const QString LongName = "File name should be maximum of 8 characters, Do you want to continue?";
const QString NotACard = "Note that the file must be called DEFAULT.VGL and saved to the root \n"
                         "directory of a CF card to be recognised by the MORVEL\n\nDo you want to continue ?";

struct FileCommands : testing::Test
{
    QString path(const QString &name) { return w.world.root.filePath(name); }
    // How many controls a layout file holds.
    int count(const QString &file)
    {
        DesignWindow other;
        other.window.files().load(file);
        return static_cast<int>(other.design().controls().size());
    }

    DesignWindow w;
    test::ScriptedPrompts &prompts = w.world.prompts;
};

TEST_F(FileCommands, NewClearsTheDesignAndItsSettingsAfterAQuestion)
{
    w.world.state.settings.CurrentBitRate = 9;
    w.run("mnuNTSC");
    w.design().setCaption("RACE");
    w.addBar(100, 100);
    for (const bool clears : {false, true}) {
        prompts.expectQuestion(Clear, clears);
        w.run("mnuNew");
        EXPECT_EQ(w.design().controls().isEmpty(), clears);
        EXPECT_EQ(w.design().caption(), clears ? "Untitled" : "RACE");
        EXPECT_EQ(w.text("lblBitRate"), clears ? "Bit Rate 6 Mbps" : "Bit Rate 9 Mbps");
        EXPECT_TRUE(w.action("mnuNTSC").isChecked());
    }
}

// The folder of fonts may be out of reach.
TEST_F(FileCommands, OnlyTheUsersSaveTellsOnceOfFontsThatCannotBeMade)
{
    QDir(w.world.state.folders.FontFolder()).removeRecursively();
    platform::replaceFile(w.world.state.folders.FontFolder().chopped(1), "no folder");
    controls::TextTag &tag = w.addTag(100, 100);
    tag.write("newFont", QString("No Such Face"));
    tag.write("newFontSize", 9);
    tag.AssignProperties();
    prompts.expectSaveFile(path("A.VGL"));
    prompts.expectQuestion(NotACard, true);
    prompts.expectMessage("These fonts could not be made, the layout holds QL Sans Serif in their place:\n\n"
                          "No Such Face 9");
    w.run("mnuSaveConfig");
    EXPECT_EQ(w.window.files().saveWorkspace(), Parting::DesignIsSafe);
}

TEST_F(FileCommands, KeepTheWorkspaceBeforeTheLastAndTheThreeNewestClearedDesigns)
{
    // An empty design replaces nothing.
    const QList<int> expected[] = {{0, 0, 0, 0, 0}, {1, 0, 0, 0, 0}, {2, 1, 1, 0, 0},
                                   {3, 2, 2, 1, 0}, {4, 3, 3, 2, 1}, {5, 4, 4, 3, 2}};
    for (int bars = 0; bars < 6; ++bars) {
        prompts.expectQuestion(Clear, true);
        w.run("mnuNew");
        for (int i = 0; i < bars; ++i)
            w.addBar(10 * i, 40 * i);
        w.window.files().saveWorkspace();
        QList<int> kept;
        for (const char *name : {"MORVELWorkspace.VGL", "MORVELWorkspace.bak", "MORVELBackup.VGL",
                                 "MORVELBackup2.VGL", "MORVELBackup3.VGL"}) {
            const QString file = w.world.state.folders.inUserData(name);
            kept.append(QFile::exists(file) ? count(file) : 0);
        }
        EXPECT_EQ(kept, expected[bars]);
    }
}

TEST_F(FileCommands, AWorkspaceThatCannotBeSavedIsKeptElsewhereOrKeepsTheWindowOpen)
{
    const platform::Folders &folders = w.world.state.folders;
    w.addBar(100, 100);
    const QString refused =
        "The command could not be completed.\n" + folders.workspaceFile() + ": not a regular file";
    QDir().mkpath(folders.workspaceFile());
    platform::replaceFile(folders.inUserData("MORVELBackup3.VGL"), "oldest");
    for (const QString &place :
         {folders.inUserData("MORVELBackup.VGL"), folders.inTemporary("MORVELWorkspace.VGL")}) {
        prompts.expectMessage(refused + "\nThe design is kept in\n" + place);
        EXPECT_EQ(w.window.files().saveWorkspace(), Parting::DesignIsSafe);
        EXPECT_EQ(count(place), 1);
        QFile::remove(place);
        // At the end of the session nobody can be told.
        EXPECT_EQ(w.window.files().saveWorkspace(shell::Leaving::SessionEnds), Parting::DesignAtRisk);
        EXPECT_EQ(count(place), 1);
        QFile::remove(place);
        QDir().mkpath(place);
    }
    // The volume of the user's folders takes nothing any more, but another one does.
    QTemporaryDir other;
    w.world.state.folders.shared = other.path() + '/';
    prompts.expectMessage({});
    EXPECT_EQ(w.window.files().saveWorkspace(), Parting::DesignIsSafe);
    QDirIterator kept(other.path(), {"MORVELWorkspace.VGL"}, QDir::Files, QDirIterator::Subdirectories);
    EXPECT_EQ(count(kept.next()), 1);
    w.world.state.folders.shared.clear();
    prompts.expectQuestion(Clear, true);
    prompts.expectMessage({}); // no backup, no new design
    w.run("mnuNew");
    EXPECT_EQ(w.design().controls().size(), 1);
    EXPECT_EQ(platform::readFile(folders.inUserData("MORVELBackup3.VGL")), "oldest");
    prompts.expectMessage(refused);
    prompts.expectQuestion("The layout could not be saved. Do you want to leave anyway?", false);
    EXPECT_FALSE(w.window.close());
    shell::closeOnTermination(&w.window, w.world.state.sessionEnds); // asks nothing
    std::raise(SIGTERM);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !w.window.isVisible(); }));
}

TEST_F(FileCommands, BeginInTheFolderOfTheLastLayout)
{
    const platform::Folders &folders = w.world.state.folders;
    QDir().mkpath(path("card"));
    // The program's own folder does not count.
    for (const QString &file : {path("card/A.VGL"), folders.workspaceFile()}) {
        test::writeLayout(file, 1);
        w.window.files().load(file);
        prompts.expectSaveFile({});
        w.run("mnuSaveConfig");
        EXPECT_EQ(prompts.lastFileRequest().folder, path("card"));
    }
    QDir(path("")).mkdir("new");
    prompts.expectSaveFile(path("new/B.VGL"));
    prompts.expectQuestion(NotACard, false);
    w.run("mnuSaveConfig");
    EXPECT_EQ(w.window.files().used().folder(), path("new"));
    EXPECT_TRUE(w.window.close());
    // The card may be out at the next start.
    QDir(path("")).rmdir("new");
    for (const bool isIn : {false, true}) {
        shell::UsedLayouts next(folders);
        next.read();
        EXPECT_EQ(next.folder(), isIn ? path("new") : "");
        next.keep();
        QDir(path("")).mkdir("new");
    }
}

TEST_F(FileCommands, LoadAsksWhatBecomesOfTheDesign)
{
    test::writeLayout(path("TWO.VGL"), 2);
    const std::tuple<std::optional<int>, bool, bool, int> cases[] = {{0, false, true, 2},
                                                                     {1, true, true, 2},
                                                                     {2, false, true, 3},
                                                                     {3, false, false, 1},
                                                                     {{}, false, false, 1}};
    for (const auto &[option, saves, loads, controls] : cases) {
        w.design().mnuNew_Click();
        w.addBar(300, 300);
        prompts.expectChoice(option);
        if (saves) {
            prompts.expectSaveFile(path("KEEP.VGL"));
            prompts.expectQuestion(NotACard, true);
        }
        if (loads)
            prompts.expectOpenFile(path("TWO.VGL"));
        w.run("mnuLoadConfig");
        EXPECT_EQ(w.design().controls().size(), controls);
        EXPECT_EQ(w.design().caption(), loads ? "TWO" : "Untitled");
    }
    EXPECT_FALSE(prompts.lastFileRequest().preview(path("TWO.VGL")).isNull());
    EXPECT_EQ(count(path("KEEP.VGL")), 1);
}

TEST_F(FileCommands, SaveAsksInItsOrderAndARefusalWritesNothing)
{
    const QString file = path("NINECHARS.VGL");
    const QStringList steps{Overload, {}, LongName, NotACard}; // no text stands for the file dialog
    w.addBar(300, 100);
    controls::Gauge &gauge = w.addGauge(100, 100);
    gauge.write("newPointerWidth", 255);
    gauge.write("newPointerLength", 255);
    prompts.expectMessage({});
    w.run("mnuPrdCPULoad");
    EXPECT_TRUE(prompts.shown().back().text.contains(" 40%\n")); // 40.32 of the gauge, 0.01 of the bar
    for (qsizetype refused = 0; refused <= steps.size(); ++refused) {
        for (qsizetype i = 0; i <= refused && i < steps.size(); ++i) {
            if (steps[i].isNull())
                prompts.expectSaveFile(i < refused ? file : QString());
            else
                prompts.expectQuestion(steps[i], i < refused);
        }
        QDir(w.world.state.folders.temporary).removeRecursively(); // as those do who clear caches
        w.run("mnuSaveConfig");
        EXPECT_EQ(QFile::exists(file), refused == steps.size());
        EXPECT_EQ(w.design().caption(), refused == steps.size() ? "NINECHARS" : "Untitled");
    }
    EXPECT_EQ(prompts.lastFileRequest().fileName, "DEFAULT.VGL");
    EXPECT_EQ(count(file), 2);
}

} // namespace
