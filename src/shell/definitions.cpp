#include "shell/definitions.h"

#include "platform/desktop/busy.h"
#include "platform/file_replace.h"
#include "platform/guards.h"
#include "variables/definition_file.h"
#include "variables/edit_cycle.h"

#include <QDir>

namespace shell {

using namespace Qt::StringLiterals;
using platform::Icon;
using platform::ProductTitle;

bool takeOverDefinitions(const QString &path, ProgramState &state, platform::Prompts &prompts,
                         QWidget *window)
{
    const platform::Busy busy(window);
    variables::Catalogue &catalogue = state.catalogue;
    if (catalogue.definitionsLost)
        keepDamagedDefinitions(state.folders);
    if (variables::loadDefinitions(platform::readFile(path), catalogue) ==
        variables::DefinitionStatus::Corrupted) {
        prompts.message(Icon::None, ProductTitle, variables::CorruptedDefinitions);
        return false;
    }
    platform::reportFailures(prompts,
                             [&] { variables::writeCatalogueFiles(catalogue, state.folders, state.locale); });
    return true;
}

bool restoreDefaultDefinitions(ProgramState &state, platform::Prompts &prompts, QWidget *window)
{
    if (!prompts.ask(Icon::Question, ProductTitle, u"Do you want to restore default variable information?"_s))
        return false;
    const QString shipped = state.folders.shippedVariablesFile();
    if (platform::FileExists(shipped))
        return takeOverDefinitions(shipped, state, prompts, window);
    prompts.message(Icon::Critical, ProductTitle, u"Can't find default variable file"_s);
    return false;
}

void keepDamagedDefinitions(const platform::Folders &folders)
{
    const QString path = folders.variablesFile();
    const QString kept = folders.inUserData("QLM6ConfigToolVars.damaged");
    if (!QFileInfo::exists(path))
        return;
    QByteArray bytes;
    if (!platform::skipFailures([&] { bytes = platform::readFile(path); })) {
        platform::moveFile(path, platform::unusedPath(kept));
        return;
    }
    const QDir folder(folders.GetAppDataFolder());
    for (const QString &name : folder.entryList({QFileInfo(kept).fileName() + '*'_L1}, QDir::Files)) {
        QByteArray earlier;
        platform::skipFailures([&] { earlier = platform::readFile(folder.filePath(name)); });
        if (earlier == bytes)
            return;
    }
    platform::replaceFile(platform::unusedPath(kept), bytes);
}

} // namespace shell
