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
    }
}

TEST_F(Start, WithADamagedCatalogueKeepsAllFilesAsTheyAre)
{
    const QByteArray shipped = platform::readFile(folders.variablesFile());
    const auto startDamaged = [&](const QByteArray &damaged, bool restores) {
        platform::replaceFile(folders.variablesFile(), QByteArray(4, '\xFF') + damaged); // a bound below 0
        world.prompts.expectMessage("The variable file appears to be corrupted, cannot continue operation");
        world.prompts.expectQuestion("Do you want to restore default variable information?", restores);
        ASSERT_TRUE(start());
    };
    startDamaged("first", false);
    platform::replaceFile(folders.workspaceFile(), "of better days");
    design().addControl(ControlType::BarGraph, {4500, 3000});
    world.prompts.expectQuestion(
        "No variable definitions are loaded, the layout will hold none. Do you want to continue ?", false);
    action("mnuSaveConfig").trigger();
    EXPECT_TRUE(program->window()->close());
    EXPECT_EQ(platform::readFile(folders.variablesFile()).mid(4), "first");
    EXPECT_EQ(platform::readFile(folders.workspaceFile()), "of better days");
    EXPECT_TRUE(layoutfile::IsValidVGL(platform::readFile(folders.inUserData("MORVELBackup.VGL"))));
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

TEST_F(Start, KeepsTheDesignSafeFromEveryFinishedChangeOn)
{
    EXPECT_TRUE(start());
    QByteArray kept;
    for (int i = 1; i <= 2; ++i) {
        design().addControl(ControlType::Gauge, {1500.0 * i, 1500});
        EXPECT_TRUE(QTest::qWaitFor([&, last = kept] {
            platform::skipFailures([&] { kept = platform::readFile(folders.recoveryFile()); });
            return kept != last;
        }));
        EXPECT_TRUE(layoutfile::IsValidVGL(kept));
    }
    design().controls()[0]->mnuDelete_Click();
    design().controls()[0]->mnuDelete_Click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !QFile::exists(folders.recoveryFile()); }));
}

// One bar graph was left by a run that did not come to its end; the workspace has two, the default layout
// three, the named one four.
TEST_F(Start, ChoosesTheFirstLayout)
{
    enum Left { Nothing, Half, Whole };
    const QString named = folders.inUserData("NAMED.VGL"), backup = folders.inUserData("MORVELBackup.VGL");
    test::writeLayout(named, 4);
    using Questions = QList<std::pair<QString, bool>>;
    const struct
    {
        QStringList arguments;
        Left left;
        bool haveWorkspace, haveDefault;
        Questions questions;
        int controls;
        bool becomesBackup;
    } cases[] = {
        {{}, Nothing, false, false, {}, 0, false},
        {{}, Nothing, true, true, {{LastQuestion, true}}, 2, false},
        {{}, Nothing, true, true, {{LastQuestion, false}, {DefaultQuestion, true}}, 3, false},
        {{}, Nothing, false, true, {{DefaultQuestion, false}}, 0, false},
        {{"/t", "pal", "/F" + named}, Nothing, true, true, {}, 4, false},
        {{"/F" + named + "x.VGL"}, Nothing, true, false, {{LastQuestion, true}}, 2, false}, // missing
        {{}, Whole, true, false, {{LastQuestion, true}}, 1, false},
        {{}, Whole, true, false, {{LastQuestion, false}, {LastQuestion, true}}, 2, true},
        {{"/F" + named}, Whole, true, false, {}, 4, true},
        {{}, Half, true, false, {{LastQuestion, true}}, 2, false},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(&c - cases);
        for (const QString &old : {folders.workspaceFile(), folders.defaultLayoutFile(), backup})
            QFile::remove(old);
        if (c.haveWorkspace)
            test::writeLayout(folders.workspaceFile(), 2);
        if (c.haveDefault)
            test::writeLayout(folders.defaultLayoutFile(), 3);
        if (c.left != Nothing)
            test::writeLayout(folders.recoveryFile(), 1);
        if (c.left == Half)
            platform::replaceFile(folders.recoveryFile(), "half a file");
        for (const auto &[question, answer] : c.questions)
            world.prompts.expectQuestion(question, answer);
        ASSERT_TRUE(start(c.arguments));
        EXPECT_EQ(design().controls().size(), c.controls);
        EXPECT_EQ(QFile::exists(backup), c.becomesBackup);
        EXPECT_TRUE(program->window()->close());
        EXPECT_FALSE(QFile::exists(folders.recoveryFile()));
    }
}

TEST_F(Start, AStandardFromTheCommandLineStaysForTheNextRun)
{
    EXPECT_TRUE(start({"/T", "PAL", "/Tntsc", "/Tsecam"}));
    restart();
    EXPECT_TRUE(action("mnuNTSC").isChecked());
}

TEST_F(Start, FindsDesignAndPanelsAsTheLastRunLeftThem)
{
    EXPECT_TRUE(start());
    design().addControl(ControlType::BarGraph, {4500, 3000});
    surface::Panel &moved = panel(PanelId::Functions);
    const QRect first = moved.geometry();
    test::drag(moved, {moved.width() - 2, 200}, {{300, 0}}); // an edge that is pulled out of the window
    EXPECT_EQ(moved.x(), first.x());
    test::drag(moved, {1, 200}, {{-60, 0}});
    test::drag(moved, {60, 10}, {{-150, 40}});
    EXPECT_EQ(moved.x(), first.x() - 210);
    const QRect place = moved.geometry();
    world.prompts.expectQuestion(LastQuestion, true);
    restart();
    ASSERT_EQ(design().controls().size(), 1);
    EXPECT_EQ(test::placeOf(*design().controls()[0]), QPoint(300, 200));
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel(PanelId::Functions).geometry() == place; }));
}

TEST_F(Start, AClosedPanelStaysClosedAndKeepsItsBarUntilTheViewMenuBringsItBack)
{
    const auto library = [this] { return program->window()->findChild<surface::LibraryPanel *>(); };
    EXPECT_TRUE(start());
    test::drag(*library()->handle(1), {2, 50}, {{20, 0}});
    const QList<int> sizes = library()->sizes();
    QTest::mouseClick(panel(PanelId::Library).findChild<QToolButton *>(), Qt::LeftButton);
    for (const bool open : {false, true}) {
        restart();
        EXPECT_EQ(panel(PanelId::Library).isVisible(), open);
        EXPECT_EQ(action("mnuPanelLibrary").isChecked(), open);
        action("mnuPanelLibrary").trigger();
    }
    EXPECT_EQ(library()->sizes(), sizes);
}

TEST_F(Start, PanelsThatWereStoredOutOfSightArePulledIntoView)
{
    platform::SettingsFile file(folders.ConfigFile());
    keys::Functions.left.write(file, 90000);
    file.save();
    EXPECT_TRUE(start());
    EXPECT_TRUE(design().panels().rect().contains(panel(PanelId::Functions).geometry()));
}

} // namespace
