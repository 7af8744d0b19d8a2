#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

// Whether the device is asked to confirm that it holds a file before the file takes its place.
enum class Flush { ToDevice, None };

// How far a replaced file got: the new one stands in either case.
enum class Standing {
    Confirmed,
    NotConfirmed // the device did not confirm the folder's new entry
};

inline const QString KeptPrefix = QStringLiteral("kept");

// Puts `bytes` under `path` as a whole: written beside the old file, flushed to the device, renamed over it,
// the folder flushed. Throws RunTimeError with the system's reason; the old file is then as it was. Names
// that lead to anything but a regular file are refused.
Standing replaceFile(const QString &path, const QByteArray &bytes, Flush flush = Flush::ToDevice);

// The same for a place that the user chose, where a new file beside the old one may be refused (permission,
// other device, name too long) or the volume may have room for one file only. There the old file is copied
// over, flushed and compared, while its bytes are kept in the folder `keepIn` (which ends in a separator).
// They are put back when that fails; where not even that works, the error names the file that holds them. Its
// name begins with KeptPrefix and is left there also by a process that is killed in the middle.
Standing replaceFile(const QString &path, const QByteArray &bytes, const QString &keepIn);

// The same as the first, but a file that holds these bytes already is left alone.
void updateFile(const QString &path, const QByteArray &bytes);

// Gives a file of one folder another name there, over what has that name. Throws RunTimeError.
void moveFile(const QString &from, const QString &to);

// The whole file. Throws RunTimeError when it cannot be read; anything but a regular file counts as missing.
QByteArray readFile(const QString &path);

// `path`, or `path` with the first number from 2 on under which nothing lies.
QString unusedPath(const QString &path);

// Removes what killed processes left of files that they were writing in `folder`.
void removeStagedFiles(const QString &folder);

} // namespace platform
