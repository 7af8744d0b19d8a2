#pragma once

#include "platform/folders.h"

#include <QStringList>

namespace shell {

// Whether this user has no data folder yet.
bool isNewUser(const platform::Folders &folders);

// The names of all shipped files for a new user's data folder.
QStringList shippedFiles(const platform::Folders &folders);

// The shipped definition files that the data folder has lost, or never got when a first start was cut short.
QStringList missingDefinitions(const platform::Folders &folders);

// Whether the program finds all that it needs there.
bool isComplete(const platform::Folders &folders);

// The question whether to put these files there.
QString missingFilesQuestion(const platform::Folders &folders, const QStringList &missing);

// Copies these shipped files into the user data folder. What is there stays as it is. Throws RunTimeError
// when a file cannot be written.
void seedUserData(const platform::Folders &folders, const QStringList &names);

} // namespace shell
