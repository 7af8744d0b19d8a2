#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

// The single steps of writing a file, each with the system's own answer.

enum class WritingStep { Create, Write, Flush, Rename };

struct Failure
{
    WritingStep step;
    int error; // of errno.h
};

// The reason in words; a full volume is called that.
QString failureText(const Failure &failure);

// A file of these bytes under a name that is free. What is left of it after a failure is the caller's to
// remove.
std::optional<Failure> writeNewFile(const QString &path, const QByteArray &bytes, bool flush);

// These bytes in the place of what the file holds, flushed to the device. After a failure it may hold
// anything.
std::optional<Failure> overwriteFile(const QString &path, const QByteArray &bytes);

// At once: there is always a whole file under the name `to`.
std::optional<Failure> renameOver(const QString &from, const QString &to);

// False when the device did not confirm the folder's entries. File systems that cannot be asked count as
// having confirmed.
bool flushFolder(const QString &folder);

} // namespace platform
