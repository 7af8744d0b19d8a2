#include "shell/single_instance.h"

#include <QDir>

namespace shell {

namespace {

bool lock(QLockFile &file)
{
    file.setStaleLockTime(0); // only a dead owner makes a lock stale
    // A folder that cannot be written to locks nobody out.
    return file.tryLock() || file.error() != QLockFile::LockFailedError;
}

} // namespace

SingleInstance::SingleInstance(const QString &dataFolder)
    : m_lock((QDir().mkpath(dataFolder), dataFolder + QStringLiteral("morvel-config.lock"))),
      m_first(lock(m_lock))
{
}

} // namespace shell
