#pragma once

#include "platform/file_replace.h"
#include "platform/folders.h"

namespace shell {

// The layouts in the user data folder that the program keeps by itself: the workspace, the three newest
// backups of what was cleared, and the recovery file of a run that did not come to its end. All of these
// throw RunTimeError when a file cannot be written; what they would have replaced is then still there.

// Becomes the newest backup; the two newest before it stay as well.
platform::Standing keepAsBackup(const QByteArray &layout, const platform::Folders &folders);

// The new workspace; the one before it stays as "MORVELWorkspace.bak".
platform::Standing keepAsWorkspace(const QByteArray &layout, const platform::Folders &folders);

// Where a design that could not become the workspace was written: the newest backup, else a file in the
// user's or the system's temporary folder; empty when none could be written.
QString keepAnywhere(const QByteArray &layout, const platform::Folders &folders);

// The whole layout that an earlier run has left in the recovery file; empty for none.
QByteArray leftToRecover(const platform::Folders &folders);

} // namespace shell
