#include "layoutfile/layout_file.h"
#include "platform/file_replace.h"
#include "platform/guards.h"
#include "shell/start_up.h"
#include "support/design_window.h"
#include "surface/library_panel.h"
#include "surface/panel_area.h"
#include "variables/definition_file.h"

#include <QDir>
#include <QToolButton>

namespace {

using controls::ControlType;
using surface::PanelId;
namespace keys = platform::keys;

const QString LastQuestion = "Do you want to load last layout ?";
const QString DefaultQuestion = "Do you want to load default layout ?";

// A user's folders with all that the program needs, and starts of the program over them.
struct Start : testing::Test
{
    Start()
    {
        platform::replaceFile(folders.variablesFile(), variables::saveDefinitions(world.state.catalogue));
        platform::replaceFile(folders.MessagesFile(),
                              recorder::writeMessageTable(world.state.settings.MessageTable));
    }
    bool start(const QStringList &arguments = {})
    {
        program.emplace(shell::StartUpInput{folders, {}, world.state.stamp, arguments}, world.prompts);
        return program->run();
    }
    void restart()
    {
        EXPECT_TRUE(program->window()->close());
        EXPECT_TRUE(start());
    }
    surface::frmInterface &design() { return program->window()->design(); }
    surface::Panel &panel(PanelId id) { return design().panels().panel(id); }
    QAction &action(const char *name) { return test::child<QAction>(*program->window(), name); }
    void expectOpen(PanelId id, const char *command, bool open)
    {
        EXPECT_EQ(panel(id).isVisible(), open) << command;
        EXPECT_EQ(action(command).isChecked(), open);
    }

    test::World world;
    const platform::Folders folders = world.state.folders;
    std::optional<shell::StartUp> program;
};

TEST_F(Start, EndsWithAMessageWhenAFileIsMissing)
{
    const std::pair<QString, QString> files[] = {{folders.MessagesFile(), folders.MessagesFile()},
                                                 {folders.variablesFile(), "QLM6ConfigToolVars.cfg"}};
    for (const auto &[path, named] : files) {
        QFile::remove(path);
        world.prompts.expectMessage(
            "An important system file cannot be found, please uninstall and re-install\n" + named);
        EXPECT_FALSE(start());
        EXPECT_EQ(program->window(), nullptr);
        EXPECT_EQ(world.prompts.shown().back().title, "File not found");
        EXPECT_EQ(world.prompts.shown().back().icon, platform::Icon::Critical);
    }
}

TEST_F(Start, WithADamagedCatalogueKeepsAllFilesAsTheyAre)
{
    const QByteArray shipped = platform::readFile(folders.variablesFile());
    const QString backup = folders.inUserData("MORVELBackup.VGL");
    const auto startDamaged = [&](const QByteArray &damaged, bool restores) {
        platform::replaceFile(folders.variablesFile(), QByteArray(4, '\xFF') + damaged); // a bound below 0
        world.prompts.expectMessage("The variable file appears to be corrupted, cannot continue operation");
        world.prompts.expectQuestion("Do you want to restore default variable information?", restores);
        ASSERT_TRUE(start());
    };
    startDamaged("first", false);
    test::writeLayout(folders.inUserData("TWO.VGL"), 2);
    platform::replaceFile(folders.workspaceFile(), "of better days");
    program->window()->files().load(folders.inUserData("TWO.VGL"));
    world.prompts.expectQuestion(
        "No variable definitions are loaded, the layout will hold none. Do you want to "
        "continue ?",
        false);
    action("mnuSaveConfig").trigger();
    EXPECT_TRUE(program->window()->close());
    EXPECT_EQ(platform::readFile(folders.variablesFile()).mid(4), "first");
    EXPECT_EQ(platform::readFile(folders.workspaceFile()), "of better days");
    EXPECT_TRUE(layoutfile::IsValidVGL(platform::readFile(backup)));

    QFile::remove(folders.workspaceFile());
    startDamaged("first", false);
    startDamaged("second", false);
    platform::replaceFile(folders.program + "QLM6ConfigToolVars.cfg", shipped);
    startDamaged("second", true);
    EXPECT_EQ(platform::readFile(folders.variablesFile()), shipped);
    EXPECT_EQ(QDir(folders.GetAppDataFolder()).entryList({"*.damaged*"}),
              (QStringList{"QLM6ConfigToolVars.damaged", "QLM6ConfigToolVars.damaged2"}));
    design().addControl(ControlType::BarGraph, {4500, 3000});
    EXPECT_TRUE(program->window()->close());
    EXPECT_TRUE(layoutfile::IsValidVGL(platform::readFile(folders.workspaceFile())));
}

TEST_F(Start, OffersWhatARunLeftThatDidNotComeToItsEnd)
{
    const QString left = folders.recoveryFile(), backup = folders.inUserData("MORVELBackup.VGL");
    const QString named = folders.inUserData("NAMED.VGL");
    test::writeLayout(named, 3);
    const struct
    {
        bool isWhole;
        QStringList arguments;
        QList<bool> answers;
        int controls;
        bool becomesBackup;
    } cases[] = {
        {true, {}, {true}, 1, false},
        {true, {}, {false, true}, 2, true},
        {true, {"/F" + named}, {}, 3, true},
        {false, {}, {true}, 2, false},
    };
    for (const auto &c : cases) {
        test::writeLayout(left, 1);
        test::writeLayout(folders.workspaceFile(), 2);
        QFile::remove(backup);
        const QByteArray recovered = platform::readFile(left);
        if (!c.isWhole)
            platform::replaceFile(left, "half a file");
        for (const bool answer : c.answers)
            world.prompts.expectQuestion(LastQuestion, answer);
        ASSERT_TRUE(start(c.arguments));
        EXPECT_EQ(design().controls().size(), c.controls);
        EXPECT_EQ(QFile::exists(backup) && platform::readFile(backup) == recovered, c.becomesBackup);
        EXPECT_TRUE(program->window()->close());
        EXPECT_FALSE(QFile::exists(left));
    }
}

TEST_F(Start, KeepsTheDesignSafeFromEveryFinishedChangeOn)
{
    EXPECT_TRUE(start());
    const auto kept = [&] {
        qsizetype gauges = 0;
        platform::skipFailures([&] {
            for (const auto &record : layoutfile::parseLayout(platform::readFile(folders.recoveryFile())))
                gauges += record.type() == layoutfile::RecordType::Gauge;
        });
        return gauges;
    };
    for (int i = 1; i <= 2; ++i) {
        design().addControl(ControlType::Gauge, {1500.0 * i, 1500});
        EXPECT_TRUE(QTest::qWaitFor([&] { return kept() == i; }));
    }
    design().controls()[0]->mnuDelete_Click();
    design().controls()[0]->mnuDelete_Click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !QFile::exists(folders.recoveryFile()); }));
}

TEST_F(Start, ChoosesTheFirstLayout)
{
    const QString named = folders.inUserData("NAMED.VGL");
    test::writeLayout(named, 3);
    using Questions = QList<std::pair<QString, bool>>;
    const struct
    {
        QStringList arguments;
        bool haveWorkspace, haveDefault;
        Questions questions;
        int controls;
    } cases[] = {
        {{}, false, false, {}, 0},
        {{}, true, true, {{LastQuestion, true}}, 1},
        {{}, true, true, {{LastQuestion, false}, {DefaultQuestion, true}}, 2},
        {{}, false, true, {{DefaultQuestion, false}}, 0},
        {{"/t", "pal", "/F" + named}, true, true, {}, 3},
        {{"/F" + named + "x.VGL"}, true, false, {{LastQuestion, true}}, 1}, // missing
        {{named}, true, false, {{LastQuestion, false}}, 0},                 // without its letter
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.arguments.join(' ').toStdString());
        QFile::remove(folders.workspaceFile());
        QFile::remove(folders.defaultLayoutFile());
        if (c.haveWorkspace)
            test::writeLayout(folders.workspaceFile(), 1);
        if (c.haveDefault)
            test::writeLayout(folders.defaultLayoutFile(), 2);
        for (const auto &[question, answer] : c.questions)
            world.prompts.expectQuestion(question, answer);
        ASSERT_TRUE(start(c.arguments));
        EXPECT_EQ(design().controls().size(), c.controls);
    }
}

TEST_F(Start, AStandardFromTheCommandLineStaysForTheNextRun)
{
    EXPECT_TRUE(start({"/T", "PAL", "/Tntsc", "/Tsecam"}));
    EXPECT_EQ(program->window()->findChild<surface::Canvas *>()->height(), 480);
    restart();
    EXPECT_EQ(keys::VideoType.read(platform::SettingsFile(folders.ConfigFile())), 0);
    EXPECT_TRUE(action("mnuNTSC").isChecked());
}

TEST_F(Start, FindsDesignAndPanelsAsTheLastRunLeftThem)
{
    EXPECT_TRUE(start());
    design().addControl(ControlType::BarGraph, {4500, 3000});
    surface::Panel &moved = panel(PanelId::Functions);
    const int left = moved.x();
    test::drag(moved, {moved.width() - 2, 200}, {{300, 0}}); // an edge that is pulled out of the window
    EXPECT_EQ(moved.x(), left);
    test::drag(moved, {1, 200}, {{-60, 0}});
    EXPECT_EQ(moved.x(), left - 60);
    test::drag(moved, {60, 10}, {{-150, 40}});
    const QRect place = moved.geometry();
    world.prompts.expectQuestion(LastQuestion, true);
    restart();
    ASSERT_EQ(design().controls().size(), 1);
    EXPECT_EQ(test::placeOf(*design().controls()[0]), QPoint(300, 200));
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel(PanelId::Functions).geometry() == place; }));
}

TEST_F(Start, AClosedPanelStaysClosedAndKeepsItsBarUntilTheViewMenuBringsItBack)
{
    EXPECT_TRUE(start());
    auto *library = program->window()->findChild<surface::LibraryPanel *>();
    test::drag(*library->handle(1), {2, 50}, {{20, 0}});
    const QList<int> sizes = library->sizes();
    QTest::mouseClick(panel(PanelId::Library).findChild<QToolButton *>(), Qt::LeftButton);
    restart();
    expectOpen(PanelId::Library, "mnuPanelLibrary", false);
    expectOpen(PanelId::Functions, "mnuPanelFunctions", true);
    action("mnuPanelLibrary").trigger();
    restart();
    expectOpen(PanelId::Library, "mnuPanelLibrary", true);
    EXPECT_EQ(program->window()->findChild<surface::LibraryPanel *>()->sizes(), sizes);
}

TEST_F(Start, PanelsThatWereStoredOutOfSightArePulledIntoView)
{
    platform::SettingsFile file(folders.ConfigFile());
    keys::Functions.left.write(file, 90000);
    keys::Functions.width.write(file, 3000);
    file.save();
    EXPECT_TRUE(start());
    EXPECT_TRUE(design().panels().rect().contains(panel(PanelId::Functions).geometry()));
    EXPECT_EQ(panel(PanelId::Functions).width(), 200);
}

} // namespace
