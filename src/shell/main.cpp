#include "platform/desktop/appearance.h"
#include "platform/desktop/qt_prompts.h"
#include "platform/program_name.h"
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
    const shell::StartUpInput input{folders, platform::userNumberLocale(), platform::systemStamp(),
                                    QApplication::arguments().sliced(1)};
    platform::registerShippedFaces(folders.shippedFaces());
    platform::applyAppearance(application);
    platform::QtPrompts prompts;
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
