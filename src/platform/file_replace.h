#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

// Puts `bytes` under `path` as a whole: written beside the old file, flushed to the device, renamed over it,
// the folder flushed. Where the volume refuses that (no rename, no room for two files) the file is copied
// over, flushed and compared. Throws RunTimeError with the system's reason; before the copy-over route begins
// the old file is whole.
void replaceFile(const QString &path, const QByteArray &bytes);

// The same, but a file that holds these bytes already is left alone.
void updateFile(const QString &path, const QByteArray &bytes);

// The whole file. Throws RunTimeError when it cannot be read.
QByteArray readFile(const QString &path);

} // namespace platform
