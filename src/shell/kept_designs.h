#pragma once

#include "platform/file_replace.h"
#include "platform/folders.h"

#include <optional>

namespace shell {

// The layouts in the user data folder that the program keeps by itself: the workspace, the three newest
// backups of what was cleared, and the recovery file of a run that did not come to its end. All of these
// throw RunTimeError when a file cannot be written; what was there before is then as it was.

// Becomes the newest backup; the two newest before it stay as well.
platform::Standing keepAsBackup(const QByteArray &layout, const platform::Folders &folders);

// The new workspace; the one before it stays as "MORVELWorkspace.bak".
platform::Standing keepAsWorkspace(const QByteArray &layout, const platform::Folders &folders);

// Where a design that could not become the workspace was written: the newest backup, else a file in the
// temporary folder; empty when neither could be written.
QString keepAnywhere(const QByteArray &layout, const platform::Folders &folders);

// Whether an earlier run has left a whole layout to recover.
bool hasRecovery(const platform::Folders &folders);

// The recovered design becomes the newest backup. When that fails the recovery file stays.
void keepRecoveryAsBackup(const platform::Folders &folders);

} // namespace shell
