#pragma once

#include "platform/file_replace.h"
#include "platform/folders.h"

#include <QImage>
#include <QTime>

namespace controls {

// The copies of pictures in the user's picture folder, to which bitmaps refer by their bare names.

// The name for a copy of these bytes: `wanted` as far as the library can keep it, with a number where a file
// of other bytes has it.
QString copyName(const QString &folder, const QString &wanted, const QByteArray &bytes);

// The name for a copy that nothing else refers to. A control may refer to `named` though the file is gone.
QString ownCopyName(const QString &folder, const QString &wanted, const QString &named);

// Writes the copy unless it lies there already. Throws RunTimeError with the system's reason.
void keepCopy(const QString &folder, const QString &name, const QByteArray &bytes, platform::Flush flush);

// The picture of a copy; a null image where there is none, or one that is no picture.
QImage keptPicture(const QString &folder, const QString &name);

// The name that a load gives the copy of its picture ('S') or alpha picture ('A') of this number.
QString loadedName(char kind, const QTime &time, int number);

// Removes the copies that loads made and that no entry of the control library names. Where the library cannot
// be read, none is removed.
void removeUnusedCopies(const platform::Folders &folders);

} // namespace controls
