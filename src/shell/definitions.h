#pragma once

#include "platform/prompts.h"
#include "shell/program_state.h"

class QWidget;

namespace shell {

// Makes the definitions of a file the program's own and writes them to the user data folder. A damaged file
// is told of and changes nothing (false). Throws RunTimeError for one that cannot be read.
bool takeOverDefinitions(const QString &path, ProgramState &state, platform::Prompts &prompts,
                         QWidget *window);

// The same with the shipped ones, when the user wants them.
bool restoreDefaultDefinitions(ProgramState &state, platform::Prompts &prompts, QWidget *window);

// Keeps the definition file under a name that nothing writes to, once for the same bytes. Throws
// RunTimeError; the file must not be written to then.
void keepDamagedDefinitions(const platform::Folders &folders);

} // namespace shell
