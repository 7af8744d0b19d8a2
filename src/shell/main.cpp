#include "platform/desktop/appearance.h"
#include "platform/desktop/qt_prompts.h"
#include "platform/program_name.h"
#include "shell/command_line.h"
#include "shell/seed_user_data.h"
#include "shell/single_instance.h"
#include "shell/start_up.h"
#include "shell/termination.h"

#include <QApplication>

#include <cstdlib>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(platform::ProgramName);
    QApplication::setApplicationVersion(QStringLiteral(MORVEL_VERSION));
    const platform::Folders folders = platform::desktopFolders(QApplication::applicationDirPath());
    platform::registerShippedFaces(folders.shippedFaces());
    platform::applyAppearance(application);
    platform::QtPrompts prompts;
    QStringList arguments = QApplication::arguments();
    const QString name = arguments.takeFirst();
    if (shell::isLaunched(name)) {
        if (!shell::completeUserData(folders, prompts))
            return EXIT_FAILURE;
        arguments = shell::launchedArguments(arguments);
    }
    const shell::SingleInstance instance(folders.GetAppDataFolder(), prompts);
    if (!instance.isFirst()) {
        shell::tellOfRunningInstance(arguments, prompts);
        return EXIT_SUCCESS;
    }
    shell::StartUp start({folders, platform::userNumberLocale(), platform::systemStamp(), arguments},
                         prompts);
    if (!start.run())
        return EXIT_FAILURE;
    if (start.window()->isHidden())
        return EXIT_SUCCESS; // closed while it was starting
    shell::closeOnTermination(&application, start.sessionEnds());
    return QApplication::exec();
}
