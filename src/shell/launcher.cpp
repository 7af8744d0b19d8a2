// What the desktop starts. It becomes the program, or its set-up where something has to be done or said
// before. A plain file argument, as a file manager passes it, opens that layout. It needs no more than Qt's
// core, so that nobody waits for it.

#include "platform/become_program.h"
#include "platform/program_name.h"
#include "shell/command_line.h"
#include "shell/seed_user_data.h"

#include <QCoreApplication>

#include <cstdlib>

int main(int argc, char **argv)
{
    const QCoreApplication self(argc, argv);
    const QString folder = QCoreApplication::applicationDirPath();
    const QStringList arguments = QCoreApplication::arguments().sliced(1);
    if (shell::isComplete(platform::desktopFolders(folder)))
        platform::becomeProgram(folder + QLatin1Char('/') + platform::ProgramName,
                                shell::argumentsForProgram(arguments));
    platform::becomeProgram(folder + QStringLiteral("/morvel-setup"), arguments);
    return EXIT_FAILURE;
}
