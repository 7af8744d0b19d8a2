#pragma once

#include "platform/folders.h"

namespace shell {

// Copies the shipped definition files and backgrounds into the folder of a new user; what is there stays as
// it is. A user who has one of the definition files is not new: a lost one is told of at the start, never
// replaced in silence by the shipped one. Throws RunTimeError when a file cannot be written.
void seedUserData(const platform::Folders &folders);

} // namespace shell
