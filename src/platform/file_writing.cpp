#include "platform/file_writing.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#else
#include <io.h>
#endif

namespace platform {

namespace {

struct Closing
{
    void operator()(std::FILE *file) const { std::fclose(file); }
};
using Stream = std::unique_ptr<std::FILE, Closing>;

enum class Existing { Refused, Emptied };

#ifdef Q_OS_UNIX
std::filesystem::path systemPath(const QString &path) { return QFile::encodeName(path).toStdString(); }

Stream openStream(const QString &path, Existing existing)
{
    const char *mode = existing == Existing::Refused ? "wbxe" : "wbe";
    return Stream(std::fopen(QFile::encodeName(path).constData(), mode));
}

bool flushToDevice(std::FILE *file) { return ::fsync(::fileno(file)) == 0; }
#else
std::filesystem::path systemPath(const QString &path) { return path.toStdWString(); }

Stream openStream(const QString &path, Existing existing)
{
    const wchar_t *mode = existing == Existing::Refused ? L"wbx" : L"wb";
    return Stream(_wfopen(path.toStdWString().c_str(), mode));
}

bool flushToDevice(std::FILE *file) { return _commit(_fileno(file)) == 0; }
#endif

std::optional<Failure> writeFile(const QString &path, const QByteArray &bytes, Existing existing, bool flush)
{
    Stream file = openStream(path, existing);
    if (!file)
        return Failure{WritingStep::Create, errno};
    std::setvbuf(file.get(), nullptr, _IONBF, 0); // the system's answer belongs to this very call
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, file.get()) != size)
        return Failure{WritingStep::Write, errno};
    if (flush && !flushToDevice(file.get()))
        return Failure{WritingStep::Flush, errno};
    if (std::fclose(file.release()) != 0) // network volumes tell of a failed write only here
        return Failure{WritingStep::Flush, errno};
    return std::nullopt;
}

} // namespace

QString failureText(const Failure &failure)
{
    if (failure.error == ENOSPC || failure.error == EDQUOT)
        return QStringLiteral("There is no room left on the volume");
    return QString::fromLocal8Bit(std::generic_category().message(failure.error).c_str());
}

std::optional<Failure> writeNewFile(const QString &path, const QByteArray &bytes, bool flush)
{
    return writeFile(path, bytes, Existing::Refused, flush);
}

std::optional<Failure> overwriteFile(const QString &path, const QByteArray &bytes)
{
    return writeFile(path, bytes, Existing::Emptied, true);
}

std::optional<Failure> renameOver(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(systemPath(from), systemPath(to), error);
    return error ? std::optional(Failure{WritingStep::Rename, error.value()}) : std::nullopt;
}

bool flushFolder(const QString &folder)
{
#ifdef Q_OS_UNIX
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return errno == EACCES || errno == EPERM; // may be written to, but not looked into
    const int error = ::fsync(descriptor) == 0 ? 0 : errno;
    ::close(descriptor);
    return error == 0 || error == EINVAL || error == ENOTSUP || error == ENOSYS;
#else
    Q_UNUSED(folder);
    return true;
#endif
}

} // namespace platform
