#pragma once

#include "platform/prompts.h"
#include "shell/program_state.h"
#include "surface/frm_interface.h"

namespace shell {

// The commands of the main window that load, save and restore the variable definitions.
class VariableCommands
{
public:
    VariableCommands(ProgramState &state, platform::Prompts &prompts, surface::frmInterface &design);

    void mnuLoadVarInfo();
    void mnuSaveVarInfo();
    void mnuRestoreDefaultVar();

private:
    ProgramState &m_state;
    platform::Prompts &m_prompts;
    surface::frmInterface &m_design;
};

} // namespace shell
