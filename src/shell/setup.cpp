// What a launched program becomes where it does not find all that it needs: gives a new user the shipped
// definition files, or asks whether to, then becomes the program again.

#include "platform/become_program.h"
#include "platform/desktop/appearance.h"
#include "platform/desktop/qt_prompts.h"
#include "platform/guards.h"
#include "platform/program_name.h"
#include "shell/command_line.h"
#include "shell/seed_user_data.h"

#include <QApplication>

#include <cstdlib>
#include <functional>

namespace {

using Saying = std::function<bool(platform::Prompts &)>;

// Most starts have nothing to say and need no window for it.
bool say(int argc, char **argv, const Saying &saying)
{
    const QApplication desktop(argc, argv);
    platform::applyAppearance(*qApp);
    platform::QtPrompts prompts;
    return saying(prompts);
}

// What has to be said before the program can start; empty for nothing.
Saying completeUserData(const platform::Folders &folders)
{
    if (shell::isNewUser(folders)) {
        const auto failure =
            platform::failureOf([&] { shell::seedUserData(folders, shell::shippedFiles(folders)); });
        if (!failure)
            return {};
        return [reason = *failure](platform::Prompts &prompts) {
            platform::reportFailure(prompts, reason);
            return false;
        };
    }
    const QStringList missing = shell::missingDefinitions(folders);
    if (missing.isEmpty())
        return {};
    return [folders, missing](platform::Prompts &prompts) {
        return !prompts.ask(platform::Icon::Question, platform::ProductTitle,
                            shell::missingFilesQuestion(folders, missing)) ||
               platform::reportFailures(prompts, [&] { shell::seedUserData(folders, missing); });
    };
}

} // namespace

int main(int argc, char **argv)
{
    QString program;
    QStringList passed;
    Saying first;
    {
        const QCoreApplication self(argc, argv);
        const QString folder = QCoreApplication::applicationDirPath();
        program = folder + QLatin1Char('/') + platform::ProgramName;
        passed = shell::launchedArguments(QCoreApplication::arguments().sliced(1));
        first = completeUserData(platform::desktopFolders(folder));
    }
    if (first && !say(argc, argv, first))
        return EXIT_FAILURE;
    const QString reason = platform::becomeProgram(program, passed);
    say(argc, argv, [&](platform::Prompts &prompts) {
        platform::reportFailure(prompts, QStringLiteral("%1: %2").arg(program, reason));
        return false;
    });
    return EXIT_FAILURE;
}
