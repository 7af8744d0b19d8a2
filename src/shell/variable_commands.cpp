#include "shell/variable_commands.h"

#include "platform/guards.h"
#include "shell/definitions.h"
#include "variables/definition_file.h"

namespace shell {

using namespace Qt::StringLiterals;

namespace {

const QString Filter = u"Variable Config File (*.var)|*.var"_s;

} // namespace

VariableCommands::VariableCommands(ProgramState &state, platform::Prompts &prompts,
                                   surface::frmInterface &design)
    : m_state(state), m_prompts(prompts), m_design(design)
{
}

void VariableCommands::mnuLoadVarInfo()
{
    const QString question =
        u"Are you sure you wish to replace the current variable configuration with one from file?"_s;
    if (!m_prompts.ask(platform::Icon::Question, platform::ProductTitle, question))
        return;
    const QString path = m_prompts.openFile({u"Load Variable Information..."_s, {}, Filter, {}, {}});
    if (!path.isEmpty() && takeOverDefinitions(path, m_state, m_prompts, m_design.window()))
        m_design.refresh();
}

void VariableCommands::mnuSaveVarInfo()
{
    const QString path = m_prompts.saveFile({u"Save Variable Information..."_s, {}, Filter, {}, {}});
    if (path.isEmpty())
        return;
    const QByteArray definitions = variables::saveDefinitions(m_state.catalogue);
    platform::reportStanding(m_prompts, path,
                             platform::replaceFile(path, definitions, m_state.folders.GetAppDataFolder()));
}

void VariableCommands::mnuRestoreDefaultVar()
{
    if (restoreDefaultDefinitions(m_state, m_prompts, m_design.window()))
        m_design.refresh();
}

} // namespace shell
