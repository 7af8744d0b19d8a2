#include "shell/variable_commands.h"

#include "platform/desktop/busy.h"
#include "platform/file_replace.h"
#include "variables/definition_file.h"
#include "variables/edit_cycle.h"

namespace shell {

using platform::Icon;
using platform::ProductTitle;

namespace {

const QString Filter = QStringLiteral("Variable Config File (*.var)|*.var");

} // namespace

VariableCommands::VariableCommands(ProgramState &state, platform::Prompts &prompts,
                                   surface::frmInterface &design)
    : m_state(state), m_prompts(prompts), m_design(design)
{
}

void VariableCommands::replaceDefinitions(const QString &path)
{
    const platform::Busy busy(m_design.window());
    variables::Catalogue &catalogue = m_state.catalogue;
    if (variables::loadDefinitions(platform::readFile(path), catalogue) ==
        variables::DefinitionStatus::Corrupted) {
        m_prompts.message(Icon::None, ProductTitle, variables::CorruptedDefinitions);
        return;
    }
    catalogue.staging = catalogue.live;
    m_design.refresh();
    variables::writeCatalogueFiles(catalogue, m_state.folders, m_state.locale);
}

void VariableCommands::mnuLoadVarInfo()
{
    const QString question = QStringLiteral(
        "Are you sure you wish to replace the current variable configuration with one from file?");
    if (!m_prompts.ask(Icon::Question, ProductTitle, question))
        return;
    const QString path =
        m_prompts.openFile({QStringLiteral("Load Variable Information..."), {}, Filter, {}, {}});
    if (!path.isEmpty())
        replaceDefinitions(path);
}

void VariableCommands::mnuSaveVarInfo()
{
    const QString path =
        m_prompts.saveFile({QStringLiteral("Save Variable Information..."), {}, Filter, {}, {}});
    if (!path.isEmpty())
        platform::replaceFile(path, variables::saveDefinitions(m_state.catalogue));
}

void VariableCommands::mnuRestoreDefaultVar()
{
    if (!m_prompts.ask(Icon::Question, ProductTitle,
                       QStringLiteral("Do you want to restore default variable information?")))
        return;
    const QString shipped = m_state.folders.program + QStringLiteral("QLM6ConfigToolVars.cfg");
    if (platform::FileExists(shipped))
        replaceDefinitions(shipped);
    else
        m_prompts.message(Icon::Critical, ProductTitle, QStringLiteral("Can't find default variable file"));
}

} // namespace shell
