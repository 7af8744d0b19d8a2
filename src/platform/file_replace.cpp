#include "platform/file_replace.h"

#include "common/run_time_error.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace platform {

namespace {

// Cards get pulled out: a rename counts only when the folder that holds it is on the device.
void flushFolder(const QString &path)
{
#ifdef Q_OS_UNIX
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
#else
    Q_UNUSED(path);
#endif
}

void flushFile(QFile &file)
{
    file.flush();
#ifdef Q_OS_UNIX
    ::fsync(file.handle());
#endif
}

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw common::RunTimeError(QStringLiteral("%1: %2").arg(path, reason));
}

bool renamedOver(const QString &path, const QByteArray &bytes, QString &reason)
{
    QSaveFile file(path);
    // commit() passes over a flush that failed, so it is asked for by itself.
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit();
    if (!written)
        reason = file.errorString();
    return written;
}

// Worth trying only when the new file fits where the old one lies: otherwise the old one would be lost for
// nothing.
bool fitsInPlace(const QString &path, qint64 size)
{
    const QFileInfo old(path);
    if (!old.isFile() || !old.isWritable())
        return false;
    const QStorageInfo volume(old.absolutePath());
    return volume.isValid() && volume.bytesAvailable() + old.size() >= size;
}

void copyOver(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        fail(path, file.errorString());
    flushFile(file);
    file.close();
    if (file.error() != QFile::NoError)
        fail(path, file.errorString());
    if (readFile(path) != bytes)
        fail(path, QStringLiteral("the written file differs"));
}

} // namespace

void replaceFile(const QString &path, const QByteArray &bytes)
{
    QString reason;
    if (!renamedOver(path, bytes, reason)) {
        if (!fitsInPlace(path, bytes.size()))
            fail(path, reason);
        copyOver(path, bytes);
    }
    flushFolder(path);
}

void updateFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    const bool same =
        file.open(QIODevice::ReadOnly) && file.size() == bytes.size() && file.readAll() == bytes;
    if (!same)
        replaceFile(path, bytes);
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(path, file.errorString());
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        fail(path, file.errorString());
    return bytes;
}

} // namespace platform
