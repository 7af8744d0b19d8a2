#include "platform/file_replace.h"

#include "common/run_time_error.h"
#include "platform/file_writing.h"
#include "platform/folders.h"
#include "platform/guards.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <cerrno>
#include <optional>
#include <utility>

namespace platform {

namespace {

// A name of its own, so that what a killed process leaves is known for what it is and written over.
const QString StagedSuffix = QStringLiteral(".morvel-new");

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw common::RunTimeError(QStringLiteral("%1: %2").arg(path, reason));
}

[[noreturn]] void fail(const QString &path, const Failure &failure) { fail(path, failureText(failure)); }

// Where a file under this name lies, by way of links. Refuses what is there and no regular file.
QString targetOf(const QString &path)
{
    const QFileInfo file(path);
    if (file.isFile())
        return file.canonicalFilePath();
    if (file.exists() || QFileInfo(file.symLinkTarget()).isSymLink())
        fail(path, QStringLiteral("not a regular file"));
    return file.isSymLink() ? file.symLinkTarget() : file.absoluteFilePath();
}

std::optional<Failure> stage(const QString &path, const QByteArray &bytes, Flush flush)
{
    const QString staged = path + StagedSuffix;
    const QFileInfo old(path);
    if (old.exists() && !old.isWritable())
        return Failure{WritingStep::Rename, EACCES}; // what is locked against writing is not swapped either
    QFile::remove(staged);
    auto failure = writeNewFile(staged, bytes, flush == Flush::ToDevice);
    if (failure)
        QFile::remove(staged);
    else if (old.exists())
        QFile::setPermissions(staged, old.permissions()); // where the volume knows such things
    return failure;
}

std::optional<Failure> swapIn(const QString &path)
{
    auto failure = renameOver(path + StagedSuffix, path);
    if (failure)
        QFile::remove(path + StagedSuffix);
    return failure;
}

Standing standingOf(const QString &path)
{
    return flushFolder(QFileInfo(path).absolutePath()) ? Standing::Confirmed : Standing::NotConfirmed;
}

bool wasRefused(const Failure &failure)
{
    const bool placing = failure.step == WritingStep::Create || failure.step == WritingStep::Rename;
    return placing && (failure.error == EACCES || failure.error == EPERM || failure.error == EXDEV ||
                       failure.error == ENAMETOOLONG);
}

bool fitsInPlace(const QFileInfo &old, qint64 size)
{
    const QStorageInfo volume(old.absolutePath());
    return volume.isValid() && volume.bytesAvailable() + old.size() >= size;
}

// Only where the old file stands in the way of a new one: a device that fails would take both.
bool mayCopyOver(const QString &path, qint64 size, const Failure &failure)
{
    const QFileInfo old(path);
    if (!old.isFile() || !old.isWritable())
        return false;
    return wasRefused(failure) || (failure.error == ENOSPC && fitsInPlace(old, size));
}

std::optional<Failure> overwrite(const QString &path, const QByteArray &bytes)
{
    if (auto failure = overwriteFile(path, bytes))
        return failure;
    QByteArray written;
    if (!skipFailures([&] { written = readFile(path); }) || written != bytes)
        return Failure{WritingStep::Write, EIO};
    return std::nullopt;
}

// The path of a confirmed copy.
QString keepApart(const QString &path, const QByteArray &bytes, const QString &folder)
{
    const QString kept = unusedPath(folder + QFileInfo(path).fileName() + QStringLiteral(".kept"));
    if (replaceFile(kept, bytes) == Standing::NotConfirmed)
        fail(kept, QStringLiteral("the old file could not be kept"));
    return kept;
}

void copyOver(const QString &path, const QByteArray &bytes, const QString &keepIn)
{
    const QByteArray old = readFile(path);
    const QString kept = keepApart(path, old, keepIn);
    const auto failure = overwrite(path, bytes);
    const bool touched = failure && failure->step != WritingStep::Create;
    if (touched && overwrite(path, old))
        fail(path, QStringLiteral("%1.\nWhat it held before is in %2").arg(failureText(*failure), kept));
    QFile::remove(kept);
    if (failure)
        fail(path, *failure);
}

} // namespace

StagedFile::StagedFile(const QString &path, const QByteArray &bytes, Flush flush)
    : m_path(targetOf(path)), m_flush(flush)
{
    if (const auto failure = stage(m_path, bytes, flush))
        fail(path, *failure);
}

StagedFile::~StagedFile()
{
    if (!m_path.isEmpty())
        QFile::remove(m_path + StagedSuffix);
}

Standing StagedFile::commit()
{
    const QString path = std::exchange(m_path, {});
    if (const auto failure = swapIn(path))
        fail(path, *failure);
    return m_flush == Flush::None ? Standing::Confirmed : standingOf(path);
}

Standing replaceFile(const QString &path, const QByteArray &bytes)
{
    return StagedFile(path, bytes).commit();
}

Standing replaceFile(const QString &path, const QByteArray &bytes, const QString &keepIn)
{
    const QString target = targetOf(path);
    auto failure = stage(target, bytes, Flush::ToDevice);
    if (!failure)
        failure = swapIn(target);
    if (!failure)
        return standingOf(target);
    if (!mayCopyOver(target, bytes.size(), *failure))
        fail(path, *failure);
    copyOver(target, bytes, keepIn);
    return Standing::Confirmed;
}

void updateFile(const QString &path, const QByteArray &bytes)
{
    const QFileInfo old(path);
    const bool same = old.isFile() && old.size() == bytes.size() && readFile(path) == bytes;
    if (!same)
        replaceFile(path, bytes);
}

void moveFile(const QString &from, const QString &to)
{
    if (const auto failure = renameOver(from, to))
        fail(to, *failure);
}

QByteArray readFile(const QString &path)
{
    if (!QFileInfo(path).isFile())
        fail(path, QStringLiteral("No such file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(path, file.errorString());
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        fail(path, file.errorString());
    return bytes;
}

QString unusedPath(const QString &path)
{
    QString unused = path;
    for (int number = 2; QFileInfo::exists(unused) || QFileInfo(unused).isSymLink(); ++number)
        unused = path + QString::number(number);
    return unused;
}

void removeStagedFiles(const QString &folder) { wipeFiles(folder, QLatin1Char('*') + StagedSuffix); }

} // namespace platform
