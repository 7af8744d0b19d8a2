#include "layoutfile/layout_file.h"
#include "platform/file_replace.h"
#include "shell/termination.h"
#include "support/design_window.h"

#include <QDir>

#include <csignal>

namespace {

using shell::Parting;
using test::DesignWindow;

const QString Clear = "Do you want to clear design area ?";
const QString Overload =
    "The designed layout file has extremely high complexity and this will result in high CPU "
    "load on the hardware device.\nDo you want to continue?";
const QString LongName = "File name should be maximum of 8 characters, Do you want to continue?";
const QString RecorderName = "Note that the file must be called DEFAULT.VGL and saved to the root \n"
                             "directory of a CF card to be recognised by the MORVEL\n\n"
                             "Do you want to continue ?";

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
    w.run("mnuI");
    w.run("mnuNTSC");
    w.design().setCaption("RACE");
    w.addBar(100, 100);
    for (const bool clears : {false, true}) {
        prompts.expectQuestion(Clear, clears);
        w.run("mnuNew");
        EXPECT_EQ(w.design().controls().isEmpty(), clears);
        EXPECT_EQ(w.design().caption(), clears ? "Untitled" : "RACE");
        EXPECT_EQ(w.text("lblBitRate"), clears ? "Bit Rate 6 Mbps" : "Bit Rate 9 Mbps");
        EXPECT_TRUE(w.action(clears ? "mnuIPB" : "mnuI").isChecked());
        EXPECT_TRUE(w.action("mnuNTSC").isChecked());
    }
}

// The design keeps what it asks for, and the folder of fonts may be out of reach.
TEST_F(FileCommands, OnlyTheUsersSaveTellsOnceOfFontsThatCannotBeMade)
{
    QDir(w.world.state.folders.FontFolder()).removeRecursively();
    platform::replaceFile(w.world.state.folders.FontFolder().chopped(1), "no folder");
    for (const int x : {100, 300}) {
        controls::TextTag &tag = w.addTag(x, 100);
        tag.write("newFont", QString("No Such Face"));
        tag.write("newFontSize", x == 100 ? 0 : 9);
        tag.AssignProperties();
        EXPECT_GT(tag.innerRect().width(), 20);
    }
    prompts.expectSaveFile(path("A.VGL"));
    prompts.expectQuestion(RecorderName, true);
    prompts.expectMessage("These fonts could not be made, the layout holds QL Sans Serif in their place:\n\n"
                          "No Such Face 0\nNo Such Face 9");
    w.run("mnuSaveConfig");
    EXPECT_EQ(w.window.files().saveWorkspace(), Parting::DesignIsSafe);
    DesignWindow other;
    other.window.files().load(path("A.VGL"));
    EXPECT_EQ(other.design().controls().last()->Serialise().mid(5, 2).join(' '), "No Such Face 9");
}

TEST_F(FileCommands, KeepTheWorkspaceBeforeTheLastAndTheThreeNewestClearedDesigns)
{
    const auto bars = [this](const char *name) {
        const QString file = w.world.state.folders.inUserData(name);
        if (!QFile::exists(file))
            return 0;
        const auto records = layoutfile::parseLayout(platform::readFile(file));
        return static_cast<int>(std::count_if(records.begin(), records.end(), [](const auto &record) {
            return record.type() == layoutfile::RecordType::BarGraph;
        }));
    };
    // An empty design replaces nothing.
    const std::array<int, 5> expected[] = {{0, 0, 0, 0, 0}, {1, 0, 0, 0, 0}, {2, 1, 1, 0, 0},
                                           {3, 2, 2, 1, 0}, {4, 3, 3, 2, 1}, {5, 4, 4, 3, 2}};
    for (int count = 0; count < 6; ++count) {
        prompts.expectQuestion(Clear, true);
        w.run("mnuNew");
        for (int i = 0; i < count; ++i)
            w.addBar(10 * i, 40 * i);
        w.window.files().saveWorkspace();
        EXPECT_EQ(
            (std::array{bars("MORVELWorkspace.VGL"), bars("MORVELWorkspace.bak"), bars("MORVELBackup.VGL"),
                        bars("MORVELBackup2.VGL"), bars("MORVELBackup3.VGL")}),
            expected[count]);
    }
}

TEST_F(FileCommands, AWorkspaceThatCannotBeSavedIsKeptElsewhereOrKeepsTheWindowOpen)
{
    const platform::Folders &folders = w.world.state.folders;
    w.addBar(100, 100);
    const QString general = "The command could not be completed.\n";
    const QString refused = general + folders.workspaceFile() + ": not a regular file";
    const QString places[] = {folders.inUserData("MORVELBackup.VGL"),
                              folders.inTemporary("MORVELWorkspace.VGL")};
    QDir().mkpath(folders.workspaceFile());
    for (const QString &place : places) {
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
    for (const bool leaves : {false, true}) {
        prompts.expectMessage(refused);
        prompts.expectQuestion("The layout could not be saved. Do you want to leave anyway?", leaves);
        EXPECT_EQ(w.window.close(), leaves);
        EXPECT_EQ(w.window.isVisible(), !leaves);
    }
    EXPECT_EQ(w.window.files().saveWorkspace(shell::Leaving::SessionEnds), Parting::DesignAtRisk);
}

TEST_F(FileCommands, TheEndOfTheSessionAsksNothing)
{
    const platform::Folders &folders = w.world.state.folders;
    QDir().mkpath(folders.workspaceFile());
    w.addBar(100, 100);
    shell::closeOnTermination(&w.window, w.world.state.sessionEnds);
    std::raise(SIGTERM);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !w.window.isVisible(); }));
    EXPECT_EQ(count(folders.inUserData("MORVELBackup.VGL")), 1);
}

TEST_F(FileCommands, ABackupThatFailsCostsNoOlderOne)
{
    const platform::Folders &folders = w.world.state.folders;
    const QString newest = folders.inUserData("MORVELBackup.VGL"),
                  third = folders.inUserData("MORVELBackup3.VGL");
    QDir().mkpath(newest);
    platform::replaceFile(third, "oldest");
    w.addBar(100, 100);
    prompts.expectQuestion(Clear, true);
    prompts.expectMessage({});
    w.run("mnuNew");
    EXPECT_EQ(w.design().controls().size(), 1);
    EXPECT_EQ(platform::readFile(third), "oldest");
}

TEST_F(FileCommands, BeginInTheFolderOfTheLastLayout)
{
    const QString card = path("card");
    QDir().mkpath(card);
    test::writeLayout(card + "/A.VGL", 1);
    test::writeLayout(w.world.state.folders.workspaceFile(), 1);
    const auto proposed = [this] {
        prompts.expectSaveFile({});
        w.run("mnuSaveConfig");
        return prompts.lastFileRequest().folder;
    };
    w.window.files().load(card + "/A.VGL");
    EXPECT_EQ(proposed(), card);
    w.window.files().load(w.world.state.folders.workspaceFile()); // the program's own folder does not count
    EXPECT_EQ(proposed(), card);
    EXPECT_TRUE(w.window.close());
    EXPECT_EQ(platform::keys::LayoutFolder.read(platform::SettingsFile(w.world.state.folders.ConfigFile())),
              card);
}

TEST_F(FileCommands, LoadAsksWhatBecomesOfTheDesign)
{
    test::writeLayout(path("TWO.VGL"), 2);
    const struct
    {
        std::optional<int> option;
        bool saves, loads;
        int controls;
    } cases[] = {
        {0, false, true, 2},  {1, true, true, 2},    {2, false, true, 3},
        {3, false, false, 1}, {{}, false, false, 1},
    };
    for (const auto &c : cases) {
        w.design().mnuNew_Click();
        w.addBar(300, 300);
        prompts.expectChoice(c.option);
        if (c.saves) {
            prompts.expectSaveFile(path("KEEP.VGL"));
            prompts.expectQuestion(RecorderName, true);
        }
        if (c.loads)
            prompts.expectOpenFile(path("TWO.VGL"));
        w.run("mnuLoadConfig");
        EXPECT_EQ(w.design().controls().size(), c.controls);
        EXPECT_EQ(w.design().caption(), c.loads ? "TWO" : "Untitled");
        EXPECT_TRUE(w.window.isEnabled());
    }
    EXPECT_FALSE(prompts.lastFileRequest().preview(path("TWO.VGL")).isNull());
    EXPECT_EQ(count(path("KEEP.VGL")), 1);
}

TEST_F(FileCommands, SaveAsksInItsOrderAndARefusalWritesNothing)
{
    const struct
    {
        const char *name;
        QList<std::pair<QString, bool>> questions; // no text stands for the file dialog
        bool written;
    } cases[] = {
        {"LAYOUT.VGL", {{Overload, false}}, false},
        {"LAYOUT.VGL", {{Overload, true}, {{}, false}}, false},
        {"NINECHARS.VGL", {{Overload, true}, {{}, true}, {LongName, false}}, false},
        {"NINECHARS.VGL", {{Overload, true}, {{}, true}, {LongName, true}, {RecorderName, false}}, false},
        {"EIGHTCHA.VGL", {{Overload, true}, {{}, true}, {RecorderName, true}}, true},
        {"NINECHARS.VGL", {{Overload, true}, {{}, true}, {LongName, true}, {RecorderName, true}}, true},
    };
    w.addBar(300, 100);
    controls::Gauge &gauge = w.addGauge(100, 100);
    gauge.write("newPointerWidth", 255);
    gauge.write("newPointerLength", 255);
    for (const auto &c : cases) {
        for (const auto &[question, answer] : c.questions) {
            if (question.isNull())
                prompts.expectSaveFile(answer ? path(c.name) : QString());
            else
                prompts.expectQuestion(question, answer);
        }
        QDir(w.world.state.folders.temporary).removeRecursively(); // as those do who clear caches
        const QString before = w.design().caption();
        w.run("mnuSaveConfig");
        EXPECT_EQ(QFile::exists(path(c.name)), c.written) << c.name;
        EXPECT_EQ(w.design().caption(), c.written ? QFileInfo(c.name).baseName() : before);
    }
    EXPECT_EQ(prompts.lastFileRequest().fileName, "DEFAULT.VGL");
    EXPECT_EQ(count(path("NINECHARS.VGL")), 2);
    EXPECT_TRUE(QDir(w.world.state.folders.temporary).isEmpty());
}

} // namespace
