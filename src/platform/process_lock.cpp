#include "platform/process_lock.h"

#include "platform/file_replace.h"
#include "platform/program_name.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSysInfo>

#include <optional>
#include <utility>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <sys/file.h>
#endif

namespace platform {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 NobodysAfter = 10; // seconds
constexpr qint64 LongestOwner = 4096;

struct Owner
{
    qint64 process;
    QString program;
    QString host;
};

bool isYoung(const QFileInfo &file)
{
    const qint64 age = file.lastModified().secsTo(QDateTime::currentDateTime());
    return age >= 0 && age <= NobodysAfter; // clocks are set back
}

// Three lines: the process, the program, the machine.
std::optional<Owner> ownerIn(QFile &file)
{
    file.seek(0);
    const QStringList lines = QString::fromUtf8(file.read(LongestOwner)).split('\n'_L1);
    bool isNumber = false;
    const qint64 process = lines[0].toLongLong(&isNumber);
    if (!isNumber || process <= 0 || lines.size() < 3 || lines[2].isEmpty())
        return std::nullopt;
    return Owner{process, lines[1], lines[2]};
}

// Numbers come round again: a process of another program is another process. Whose program cannot be told
// counts as the owner.
bool runs(const Owner &owner)
{
    const QString program = QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(owner.process)).section('/'_L1, -1);
    // A program that was replaced by a newer one while it runs has something behind its name.
    return isAnotherProcess(owner.process) && (program.isEmpty() || program.startsWith(owner.program));
}

// Out of the way with a folder, a pipe or a link that leads nowhere.
void moveAside(const QString &path)
{
    if (!QFile::remove(path) && !QDir().rmdir(path))
        QFile::rename(path, unusedPath(path + u".old"_s));
}

} // namespace

bool isAnotherProcess(qint64 process)
{
    if (process == QCoreApplication::applicationPid())
        return false;
#ifdef Q_OS_UNIX
    return std::in_range<pid_t>(process) && (::kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM);
#else
    return true;
#endif
}

ProcessLock::ProcessLock(const QString &path, SystemLock lock) : m_file(path)
{
    const QFileInfo found(path);
    if ((found.exists() || found.isSymLink()) && !found.isFile()) {
        if (found.exists() && isYoung(found)) {
            m_state = State::Others;
            return;
        }
        moveAside(path);
    }
    constexpr auto Mode = QIODevice::ReadWrite | QIODevice::Unbuffered;
    const bool isNew = m_file.open(Mode | QIODevice::NewOnly);
    if (!isNew && !m_file.open(Mode))
        return;
    const Answer answer = lock(m_file);
    m_removes = answer == Answer::Unsupported;
    if (answer == Answer::Busy)
        m_state = State::Others;
    else if (answer == Answer::Unsupported && !isNew)
        m_state = stateByOwner();
    if (m_state == State::Ours)
        writeOwner();
}

ProcessLock::~ProcessLock()
{
    if (m_removes && m_state == State::Ours)
        m_file.remove();
}

ProcessLock::State ProcessLock::stateByOwner()
{
    const auto owner = ownerIn(m_file);
    if (!owner)
        return isYoung(QFileInfo(m_file)) ? State::Others : State::Ours;
    if (owner->host == QSysInfo::machineHostName())
        return runs(*owner) ? State::Others : State::Ours;
    m_host = owner->host;
    return State::OtherHosts;
}

void ProcessLock::takeOver()
{
    m_state = State::Ours;
    writeOwner();
}

void ProcessLock::writeOwner()
{
    m_file.resize(0);
    m_file.seek(0);
    m_file.write(u"%1\n%2\n%3\n"_s.arg(QCoreApplication::applicationPid())
                     .arg(ProgramName, QSysInfo::machineHostName())
                     .toUtf8());
}

ProcessLock::Answer ProcessLock::systemLock(QFile &file)
{
#ifdef Q_OS_UNIX
    int result = -1;
    do
        result = ::flock(file.handle(), LOCK_EX | LOCK_NB);
    while (result != 0 && errno == EINTR);
    if (result == 0)
        return Answer::Locked;
    return errno == EWOULDBLOCK ? Answer::Busy : Answer::Unsupported;
#else
    Q_UNUSED(file);
    return Answer::Unsupported;
#endif
}

} // namespace platform
