#pragma once

#include "platform/folders.h"

#include <QStringList>

namespace shell {

// Whether this user has no data folder yet.
bool isNewUser(const platform::Folders &folders);

// Copies what the user data folder lacks of the shipped files into it. What is there stays as it is. Throws
// RunTimeError when a file cannot be written.
void seedUserData(const platform::Folders &folders);

// The question whether to put back the definition files that the data folder of a user has lost, or never got
// when a first start was cut short; empty when nothing is missing.
QString missingFilesQuestion(const platform::Folders &folders);

} // namespace shell
