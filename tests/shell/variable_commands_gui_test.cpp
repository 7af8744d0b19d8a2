#include "platform/file_replace.h"
#include "support/design_window.h"
#include "variables/definition_file.h"

#include <QTreeWidget>

namespace {

const QString Replace =
    "Are you sure you wish to replace the current variable configuration with one from file?";
const QString Restore = "Do you want to restore default variable information?";

TEST(VariableCommands, saveLoadAndRestoreDefinitions)
{
    test::DesignWindow w;
    test::ScriptedPrompts &prompts = w.world.prompts;
    const platform::Folders &folders = w.world.state.folders;
    const QString path = w.world.root.filePath("mine.var");
    const auto load = [&](const QString &file, const QString &message = {}) {
        prompts.expectQuestion(Replace, true);
        prompts.expectOpenFile(file);
        if (!message.isEmpty())
            prompts.expectMessage(message);
        w.run("mnuLoadVarInfo");
    };
    const auto nameInTree = [&] {
        return w.window.findChild<QTreeWidget *>("VarTree")->topLevelItem(0)->child(0)->text(0);
    };

    load({}); // cancelled
    const std::pair<char, QString> damages[] = {
        {'x', "The command could not be completed.\nThe variable file ends early or is ill-formed"},
        {'\xFF', variables::CorruptedDefinitions}};
    for (const auto &[byte, message] : damages) {
        platform::replaceFile(path, QByteArray(10'000'000, byte)); // longer than the definitions
        load(path, message);
    }
    EXPECT_FALSE(QFile::exists(folders.variablesFile()));
    prompts.expectSaveFile(path);
    w.run("mnuSaveVarInfo");
    w.world.addVariable(2, "Pace");
    load(path);
    EXPECT_EQ(nameInTree(), "Speed  (SPEED)");
    EXPECT_EQ(platform::readFile(folders.variablesFile()), platform::readFile(path));
    EXPECT_TRUE(platform::readFile(folders.inUserData("QLM6ConfigTool.XVR")).contains("<BaseName>Speed<"));

    prompts.expectQuestion(Restore, true);
    prompts.expectMessage("Can't find default variable file");
    w.run("mnuRestoreDefaultVar");
    w.world.addVariable(2, "Factory");
    platform::replaceFile(folders.program + "QLM6ConfigToolVars.cfg",
                          variables::saveDefinitions(w.world.state.catalogue));
    w.world.addVariable(2, "Pace");
    prompts.expectQuestion(Restore, true);
    w.run("mnuRestoreDefaultVar");
    EXPECT_EQ(nameInTree(), "Factory  (FACTORY)");
}

} // namespace
