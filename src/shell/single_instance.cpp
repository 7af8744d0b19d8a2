#include "shell/single_instance.h"

#include "platform/program_name.h"
#include "shell/command_line.h"

#include <QDir>

#include <algorithm>

namespace shell {

using namespace Qt::StringLiterals;
using platform::ProcessLock;

namespace {

// In a folder that is there, even at a first start.
QString lockFile(const QString &folder)
{
    QDir().mkpath(folder);
    return folder + platform::ProgramName + ".lock"_L1;
}

} // namespace

SingleInstance::SingleInstance(const QString &dataFolder, platform::Prompts &prompts,
                               ProcessLock::SystemLock lock)
    : m_lock(lockFile(dataFolder), lock)
{
    if (m_lock.state() != ProcessLock::State::OtherHosts)
        return;
    const QString question =
        u"The tool seems to be open on %1. Do you want to start it here?"_s.arg(m_lock.host());
    if (prompts.ask(platform::Icon::Question, platform::ProductTitle, question))
        m_lock.takeOver();
}

void tellOfRunningInstance(const QStringList &arguments, platform::Prompts &prompts)
{
    const bool opensLayout = std::any_of(arguments.begin(), arguments.end(), [](const QString &argument) {
        return argument.startsWith("/F"_L1, Qt::CaseInsensitive);
    });
    if (arguments.contains(LaunchedMark) && opensLayout) {
        prompts.message(platform::Icon::Information, platform::ProductTitle,
                        u"The tool is already open. Load the layout there with File, Load Layout."_s);
    }
}

} // namespace shell
