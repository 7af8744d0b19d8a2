// What the desktop starts: gives a new user the shipped definition files, then runs the program. A plain file
// argument, as a file manager passes it, opens that layout.

#include "platform/desktop/appearance.h"
#include "platform/desktop/qt_prompts.h"
#include "platform/guards.h"
#include "shell/command_line.h"
#include "shell/seed_user_data.h"
#include "shell/single_instance.h"

#include <QApplication>
#include <QProcess>

int main(int argc, char **argv)
{
    QApplication desktop(argc, argv);
    platform::applyAppearance(desktop);
    platform::QtPrompts prompts;
    const QString folder = QApplication::applicationDirPath();
    const bool seeded =
        platform::reportFailures(prompts, [&] { shell::seedUserData(platform::desktopFolders(folder)); });
    if (!seeded)
        return EXIT_FAILURE;
    const QStringList passed = shell::argumentsForProgram(QApplication::arguments().sliced(1));
    const int status = QProcess::execute(folder + QStringLiteral("/morvel-config"), passed);
    if (status == shell::AlreadyRunning && !passed.isEmpty()) {
        prompts.message(
            platform::Icon::Information, platform::ProductTitle,
            QStringLiteral("The tool is already open. Load the layout there with File, Load Layout."));
    }
    return status;
}
