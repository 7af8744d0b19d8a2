#pragma once

#include "shell/commands.h"

namespace shell {

// The parts of the command table, in its order.
std::span<const Command> fileRows();
std::span<const Command> viewRows();
std::span<const Command> configurationRows();
std::span<const Command> toolsRows();
std::span<const Command> helpRows();
std::span<const Command> editingRows();

} // namespace shell
