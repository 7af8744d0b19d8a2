#include "platform/file_replace.h"
#include "support/design_window.h"
#include "variables/definition_file.h"

#include <QTreeWidget>

namespace {

TEST(VariableCommands, saveLoadAndRestoreDefinitions)
{
    test::DesignWindow w;
    test::ScriptedPrompts &prompts = w.world.prompts;
    const platform::Folders &folders = w.world.state.folders;
    const QString path = w.world.root.filePath("mine.var");
    const auto load = [&](const QString &file, const QString &message = {}) {
        prompts.expectQuestion(
            "Are you sure you wish to replace the current variable configuration with one from file?", true);
        prompts.expectOpenFile(file);
        if (!message.isEmpty())
            prompts.expectMessage(message);
        w.run("mnuLoadVarInfo");
    };
    const auto nameInTree = [&] {
        return w.window.findChild<QTreeWidget *>("VarTree")->topLevelItem(0)->child(0)->text(0);
    };

    load({});                                                    // cancelled
    platform::replaceFile(path, QByteArray(10'000'000, '\xFF')); // longer than the definitions
    load(path, variables::CorruptedDefinitions);
    EXPECT_FALSE(QFile::exists(folders.variablesFile()));
    prompts.expectSaveFile(path);
    w.run("mnuSaveVarInfo");
    w.world.addVariable(2, "Pace");
    load(path);
    EXPECT_EQ(nameInTree(), "Speed  (SPEED)");
    EXPECT_EQ(platform::readFile(folders.variablesFile()), platform::readFile(path));

    const QString restore = "Do you want to restore default variable information?";
    prompts.expectQuestion(restore, true);
    prompts.expectMessage("Can't find default variable file");
    w.run("mnuRestoreDefaultVar");
    w.world.addVariable(2, "Factory");
    platform::replaceFile(folders.shippedVariablesFile(), saveDefinitions(w.world.state.catalogue));
    w.world.addVariable(2, "Pace");
    prompts.expectQuestion(restore, true);
    w.run("mnuRestoreDefaultVar");
    EXPECT_EQ(nameInTree(), "Factory  (FACTORY)");
}

} // namespace
