#include "platform/become_program.h"
#include "platform/desktop/appearance.h"
#include "platform/desktop/qt_prompts.h"
#include "platform/guards.h"
#include "platform/program_name.h"
#include "shell/command_line.h"
#include "shell/seed_user_data.h"
#include "shell/single_instance.h"
#include "shell/start_up.h"
#include "shell/termination.h"

#include <QApplication>

#include <cstdlib>

namespace {

// Comes back only where it cannot be done.
int becomeSetup(const QStringList &arguments, platform::Prompts &prompts)
{
    const QString setup = QApplication::applicationDirPath() + QStringLiteral("/morvel-setup");
    const QString reason = platform::becomeProgram(setup, arguments);
    platform::reportFailure(prompts, QStringLiteral("%1: %2").arg(setup, reason));
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(platform::ProgramName);
    QApplication::setApplicationVersion(QStringLiteral(MORVEL_VERSION));
    const platform::Folders folders = platform::desktopFolders(QApplication::applicationDirPath());
    QStringList arguments = QApplication::arguments().sliced(1);
    platform::QtPrompts prompts;
    if (shell::isLaunched(QApplication::arguments().constFirst())) {
        if (!shell::isComplete(folders))
            return becomeSetup(arguments, prompts);
        arguments = shell::launchedArguments(arguments);
    }
    const shell::StartUpInput input{folders, platform::userNumberLocale(), platform::systemStamp(),
                                    arguments};
    platform::registerShippedFaces(folders.shippedFaces());
    platform::applyAppearance(application);
    const shell::SingleInstance instance(folders.GetAppDataFolder(), prompts);
    if (!instance.isFirst()) {
        shell::tellOfRunningInstance(input.arguments, prompts);
        return EXIT_SUCCESS;
    }
    shell::StartUp start(input, prompts);
    if (!start.run())
        return EXIT_FAILURE;
    if (start.window()->isHidden())
        return EXIT_SUCCESS; // closed while it was starting
    shell::closeOnTermination(&application, start.sessionEnds());
    return QApplication::exec();
}
