#include "platform/file_replace.h"

#include "common/run_time_error.h"
#include "platform/file_writing.h"
#include "platform/guards.h"
#include "platform/process_lock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QSysInfo>
#include <QUrl>

#include <cerrno>
#include <optional>

namespace platform {

using namespace Qt::StringLiterals;

namespace {

// A file that is being written has the name of its writer, so that two machines can save to one folder, and
// what a killed process leaves is known for what it is.
const QString StagedSuffix = u".morvel-new"_s;
constexpr qint64 NobodysAfter = 3600; // seconds

QString writerName(qint64 process)
{
    static const QString host = QString::fromLatin1(QUrl::toPercentEncoding(QSysInfo::machineHostName()));
    return u"%1-%2"_s.arg(host.left(40)).arg(process);
}

QString stagedPath(const QString &path)
{
    return QFileInfo(path).absolutePath() + '/'_L1 + writerName(QCoreApplication::applicationPid()) +
           StagedSuffix;
}

// Whether the writer of this file is gone.
bool isLeftOver(const QFileInfo &staged)
{
    const QString writer = staged.fileName().chopped(StagedSuffix.size());
    const qint64 process = writer.section('-'_L1, -1).toLongLong();
    const bool isOurs = process > 0 && writer == writerName(process);
    return (isOurs && !isAnotherProcess(process)) ||
           staged.lastModified().secsTo(QDateTime::currentDateTime()) > NobodysAfter;
}

bool isTaken(const QString &path) { return QFileInfo::exists(path) || QFileInfo(path).isSymLink(); }

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw common::RunTimeError(u"%1: %2"_s.arg(path, reason));
}

[[noreturn]] void fail(const QString &path, const Failure &failure) { fail(path, failureText(failure)); }

// Where a file under this name lies, by way of links. Refuses what is there and no regular file.
QString targetOf(const QString &path)
{
    const QFileInfo file(path);
    if (file.isFile())
        return file.canonicalFilePath();
    if (file.exists() || QFileInfo(file.symLinkTarget()).isSymLink())
        fail(path, u"not a regular file"_s);
    return file.isSymLink() ? file.symLinkTarget() : file.absoluteFilePath();
}

std::optional<Failure> stage(const QString &path, const QByteArray &bytes, Flush flush)
{
    const QString staged = stagedPath(path);
    const QFileInfo old(path);
    if (old.exists() && !old.isWritable())
        return Failure{WritingStep::Rename, EACCES}; // what is locked against writing is not swapped either
    removeStagedFiles(old.absolutePath());
    auto failure = writeNewFile(staged, bytes, flush == Flush::ToDevice);
    if (failure)
        QFile::remove(staged);
    else if (old.exists())
        QFile::setPermissions(staged, old.permissions()); // where the volume knows such things
    return failure;
}

// Whole or not at all.
std::optional<Failure> put(const QString &path, const QByteArray &bytes, Flush flush)
{
    if (auto failure = stage(path, bytes, flush))
        return failure;
    auto failure = renameOver(stagedPath(path), path);
    if (failure)
        QFile::remove(stagedPath(path));
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
    constexpr qsizetype LongestName = 200; // leaves room for the prefix; the end of a name tells its kind
    const QString name = QFileInfo(path).fileName().right(LongestName);
    QString kept = folder + KeptPrefix + '-'_L1 + name;
    for (int number = 2; isTaken(kept); ++number)
        kept = u"%1%2%3-%4"_s.arg(folder, KeptPrefix).arg(number).arg(name);
    if (replaceFile(kept, bytes) == Standing::NotConfirmed) {
        QFile::remove(kept);
        fail(path, u"The old file could not be kept while a new one takes its place"_s);
    }
    return kept;
}

void copyOver(const QString &path, const QByteArray &bytes, const QString &keepIn)
{
    const QByteArray old = readFile(path);
    const QString kept = keepApart(path, old, keepIn);
    const auto failure = overwrite(path, bytes);
    const bool touched = failure && failure->step != WritingStep::Create;
    if (touched && overwrite(path, old))
        fail(path, u"%1.\nWhat it held before is in %2"_s.arg(failureText(*failure), kept));
    QFile::remove(kept);
    if (failure)
        fail(path, *failure);
}

} // namespace

Standing replaceFile(const QString &path, const QByteArray &bytes, Flush flush)
{
    const QString target = targetOf(path);
    if (const auto failure = put(target, bytes, flush))
        fail(path, *failure);
    return flush == Flush::None ? Standing::Confirmed : standingOf(target);
}

Standing replaceFile(const QString &path, const QByteArray &bytes, const QString &keepIn)
{
    const QString target = targetOf(path);
    const auto failure = put(target, bytes, Flush::ToDevice);
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
        fail(path, u"No such file"_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(path, file.errorString());
    QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        fail(path, file.errorString());
    return bytes;
}

QString unusedPath(const QString &path)
{
    QString unused = path;
    for (int number = 2; isTaken(unused); ++number)
        unused = path + QString::number(number);
    return unused;
}

void removeStagedFiles(const QString &folder)
{
    const QDir dir(folder);
    for (const QFileInfo &staged : dir.entryInfoList({'*'_L1 + StagedSuffix}, QDir::Files)) {
        if (isLeftOver(staged))
            QFile::remove(staged.filePath());
    }
}

} // namespace platform
