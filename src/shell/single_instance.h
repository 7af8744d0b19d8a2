#pragma once

#include "platform/process_lock.h"
#include "platform/prompts.h"

#include <QStringList>

namespace shell {

// The one instance per user and data folder. Where the file system cannot tell whether the process of another
// machine still runs, the user is asked.
class SingleInstance
{
public:
    SingleInstance(const QString &dataFolder, platform::Prompts &prompts,
                   platform::ProcessLock::SystemLock lock = &platform::ProcessLock::systemLock);

    bool isFirst() const { return m_lock.state() == platform::ProcessLock::State::Ours; }

private:
    platform::ProcessLock m_lock;
};

// A second start is silent, unless it was launched to open a layout: then somebody waits for it.
void tellOfRunningInstance(const QStringList &arguments, platform::Prompts &prompts);

} // namespace shell
