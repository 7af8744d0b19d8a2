#pragma once

#include "platform/folders.h"
#include "platform/prompts.h"

#include <optional>

namespace shell {

// Shows the help that is installed with the program. Throws RunTimeError when that fails.
void openLocalHelp(const platform::Folders &folders, platform::Prompts &prompts);

// The page of the on-line help; nothing where the build names no server.
std::optional<QUrl> onlineHelp();

} // namespace shell
