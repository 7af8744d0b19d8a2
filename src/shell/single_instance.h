#pragma once

#include <QLockFile>

namespace shell {

// What the program exits with when another instance works on the same user data.
inline constexpr int AlreadyRunning = 3;

// The lock of the one instance per user and data folder; the lock of a dead process is taken over.
class SingleInstance
{
public:
    explicit SingleInstance(const QString &dataFolder);

    bool isFirst() const { return m_first; }

private:
    QLockFile m_lock;
    bool m_first;
};

} // namespace shell
