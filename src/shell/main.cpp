#include "platform/desktop/appearance.h"
#include "platform/desktop/qt_prompts.h"
#include "shell/single_instance.h"
#include "shell/start_up.h"
#include "shell/termination.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("morvel-config"));
    QApplication::setApplicationVersion(QStringLiteral(MORVEL_VERSION));
    const platform::Folders folders = platform::desktopFolders(QApplication::applicationDirPath());
    const shell::SingleInstance instance(folders.GetAppDataFolder());
    if (!instance.isFirst())
        return shell::AlreadyRunning;

    platform::registerShippedFaces(folders.shippedFaces());
    platform::applyAppearance(application);
    platform::QtPrompts prompts;
    shell::StartUp start(
        {folders, platform::userNumberLocale(), platform::systemStamp(), QApplication::arguments().sliced(1)},
        prompts);
    if (!start.run())
        return EXIT_FAILURE;
    if (start.window()->isHidden())
        return EXIT_SUCCESS; // closed while it was starting
    shell::closeOnTermination(&application);
    return QApplication::exec();
}
