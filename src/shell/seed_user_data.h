#pragma once

#include "platform/folders.h"
#include "platform/prompts.h"

#include <QStringList>

namespace shell {

// The names of all shipped files for a new user's data folder.
QStringList shippedFiles(const platform::Folders &folders);

// Copies these shipped files into the user data folder. What is there stays as it is. Throws RunTimeError
// when a file cannot be written.
void seedUserData(const platform::Folders &folders, const QStringList &names);

// Gives a new user the shipped files, and asks others whether to put the shipped definition files there that
// their folder has lost, or never got when a first start was cut short. False when one cannot be written,
// which was told then.
bool completeUserData(const platform::Folders &folders, platform::Prompts &prompts);

} // namespace shell
