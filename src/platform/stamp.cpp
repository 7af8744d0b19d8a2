#include "platform/stamp.h"

#include <QSysInfo>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace platform {

namespace {

QString loggedOnUser()
{
#ifdef Q_OS_UNIX
    if (const passwd *entry = getpwuid(getuid()))
        return QString::fromLocal8Bit(entry->pw_name);
#endif
    return qEnvironmentVariable("USERNAME", qEnvironmentVariable("USER"));
}

} // namespace

Stamp systemStamp()
{
    return {[] { return QDateTime::currentDateTime(); }, loggedOnUser(), QSysInfo::machineHostName()};
}

} // namespace platform
