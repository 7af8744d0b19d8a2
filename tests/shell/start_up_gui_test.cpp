#include "layoutfile/layout_file.h"
#include "platform/file_replace.h"
#include "platform/guards.h"
#include "shell/frm_start_splash.h"
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
        if (!design().controls().isEmpty())
            world.prompts.expectQuestion(LastQuestion, true);
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

TEST_F(Start, TellsOnceWhereTheOldBytesOfAKilledSaveAre)
{
    for (const char *name : {"kept-DEFAULT.VGL", "kept2-DEFAULT.VGL"}) {
        platform::replaceFile(folders.inUserData(name), name);
        world.prompts.expectMessage("A save did not come to its end. What the file held before is kept in\n" +
                                    folders.inUserData("old-") + name);
    }
    EXPECT_TRUE(start());
    EXPECT_EQ(platform::readFile(folders.inUserData("old-kept2-DEFAULT.VGL")), "kept2-DEFAULT.VGL");
    EXPECT_TRUE(start());
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
    }
    design().controls()[0]->mnuDelete_Click();
    design().controls()[0]->mnuDelete_Click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !QFile::exists(folders.recoveryFile()); }));
}

// One bar graph was left by a run that did not come to its end; the workspace has two, the default layout
// three.
TEST_F(Start, ChoosesTheFirstLayout)
{
    const QString left = folders.recoveryFile(), last = folders.workspaceFile(),
                  usual = folders.defaultLayoutFile(), named = folders.inUserData("NAMED.VGL"),
                  backup = folders.inUserData("MORVELBackup.VGL");
    const QStringList all{left, last, usual, named};
    const std::tuple<QStringList, QStringList, QList<std::pair<QString, bool>>, int> cases[] = {
        {{}, {last, usual}, {{LastQuestion, true}}, 2},
        {{}, {last, usual}, {{LastQuestion, false}, {DefaultQuestion, true}}, 3},
        {{}, {usual}, {{DefaultQuestion, false}}, 0},
        {{"/t", "pal", "/F" + named}, {named, last, usual}, {}, 4},
        {{"/F" + named}, {last}, {{LastQuestion, true}}, 2}, // missing
        {{}, {left, last}, {{LastQuestion, true}}, 1},
        {{}, {left, last}, {{LastQuestion, false}, {LastQuestion, true}}, 2},
        {{"/F" + named}, {named, left, last}, {}, 4},
    };
    const auto expectStart = [&](const auto &arguments, const auto &questions, int controls, bool backsUp) {
        for (const auto &[question, answer] : questions)
            world.prompts.expectQuestion(question, answer);
        ASSERT_TRUE(start(arguments));
        EXPECT_EQ(design().controls().size(), controls);
        EXPECT_EQ(QFile::exists(backup), backsUp);
        EXPECT_TRUE(program->window()->close());
        EXPECT_FALSE(QFile::exists(left));
    };
    for (const auto &[arguments, files, questions, controls] : cases) {
        for (const QString &old : all + QStringList{backup})
            QFile::remove(old);
        for (const QString &file : files)
            test::writeLayout(file, 1 + static_cast<int>(all.indexOf(file)));
        expectStart(arguments, questions, controls, files.contains(left) && controls != 1);
    }
    QFile::remove(backup);
    platform::replaceFile(left, "half a file");
    expectStart(QStringList(), QList{std::pair(LastQuestion, true)}, 4, false);
    platform::replaceFile(last, "half a file"); // and yet the user has chosen
    world.prompts.expectQuestion(LastQuestion, true);
    world.prompts.expectMessage("Invalid File Format");
    expectStart(QStringList(), QList<std::pair<QString, bool>>(), 0, false);
}

TEST_F(Start, FindsStandardDesignAndPanelsAsTheLastRunLeftThem)
{
    EXPECT_TRUE(start({"/T", "PAL", "/Tntsc", "/Tsecam"}));
    design().addControl(ControlType::BarGraph, {4500, 3000});
    surface::Panel &moved = panel(PanelId::Functions);
    const int left = moved.x();
    test::drag(moved, {1, 200}, {{-60, 0}});
    test::drag(moved, {60, 10}, {{-150, 40}});
    EXPECT_EQ(moved.x(), left - 210);
    const QRect place = moved.geometry();
    restart();
    EXPECT_TRUE(action("mnuNTSC").isChecked());
    EXPECT_EQ(test::placeOf(*design().controls().value(0)), QPoint(300, 200));
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel(PanelId::Functions).geometry() == place; }));
}

TEST_F(Start, AClosedPanelStaysClosedAndKeepsItsBarUntilTheViewMenuBringsItBack)
{
    platform::SettingsFile file(folders.ConfigFile());
    platform::keys::Functions.left.write(file, 90000); // out of sight
    file.save();
    const auto library = [this] { return program->window()->findChild<surface::LibraryPanel *>(); };
    EXPECT_TRUE(start());
    EXPECT_TRUE(design().panels().rect().contains(panel(PanelId::Functions).geometry()));
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

TEST(Splash, HasTheOutlineOfItsPicture)
{
    test::World world;
    const shell::frmStartSplash rounded(world.state.folders, nullptr);
    EXPECT_TRUE(rounded.mask().contains(rounded.rect().center()));
    EXPECT_FALSE(rounded.mask().contains(QPoint(1, 1)));
    QImage square(40, 30, QImage::Format_RGB32);
    square.fill(Qt::white);
    square.save(world.state.folders.program + "Splash.jpg");
    const shell::frmStartSplash plain(world.state.folders, nullptr);
    EXPECT_EQ(plain.size(), square.size());
    EXPECT_TRUE(plain.mask().isEmpty()); // all of it
}

} // namespace
