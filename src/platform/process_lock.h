#pragma once

#include <QFile>
#include <QString>

namespace platform {

// Whether a process of this number runs on this machine and is not this one.
bool isAnotherProcess(qint64 process);

// A lock that the operating system holds for as long as the process lives, so that a crash leaves nothing
// behind. The file names its owner, for file systems that have no such locks.
class ProcessLock
{
public:
    enum class State {
        Ours,
        Others,    // another process on this machine, or one that has just begun
        OtherHosts // of the machine host(), which cannot be asked whether its process still runs
    };
    enum class Answer { Locked, Busy, Unsupported };
    using SystemLock = Answer (*)(QFile &);

    // A lock that cannot be made (a folder that cannot be written to) locks nobody out: it counts as ours.
    // Whatever lies under the name and names no owner has none once it is older than ten seconds.
    explicit ProcessLock(const QString &path, SystemLock lock = &systemLock);
    ~ProcessLock();
    Q_DISABLE_COPY_MOVE(ProcessLock)

    State state() const { return m_state; }
    const QString &host() const { return m_host; }
    void takeOver(); // from another host

    static Answer systemLock(QFile &file);

private:
    State stateByOwner();
    void writeOwner();

    QFile m_file;
    State m_state = State::Ours;
    QString m_host;
    bool m_removes = false; // the file alone is the lock
};

} // namespace platform
