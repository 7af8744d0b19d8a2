#pragma once

#include "platform/folders.h"

namespace shell {

// Copies each shipped definition file and background that the user data folder lacks; what is there stays as
// it is. Throws RunTimeError when a file cannot be written.
void seedUserData(const platform::Folders &folders);

} // namespace shell
