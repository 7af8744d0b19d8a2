#include "shell/seed_user_data.h"

#include "platform/file_replace.h"
#include "platform/guards.h"

#include <QDir>

namespace shell {

using namespace Qt::StringLiterals;

namespace {

QStringList missingDefinitions(const platform::Folders &folders)
{
    QStringList missing;
    for (const QString &file : {folders.variablesFile(), folders.MessagesFile()}) {
        const QString name = QFileInfo(file).fileName();
        if (!QFileInfo::exists(file) && QFileInfo(folders.seeds() + name).isFile())
            missing.append(name);
    }
    return missing;
}

bool wantsThem(const QStringList &missing, const platform::Folders &folders, platform::Prompts &prompts)
{
    return prompts.ask(
        platform::Icon::Question, platform::ProductTitle,
        u"The folder\n%1\nlacks\n%2\n\nDo you want to put the shipped definitions there?"_s.arg(
            folders.GetAppDataFolder(), missing.join('\n'_L1)));
}

} // namespace

QStringList shippedFiles(const platform::Folders &folders)
{
    return QDir(folders.seeds()).entryList(QDir::Files);
}

void seedUserData(const platform::Folders &folders, const QStringList &names)
{
    const QString target = folders.GetAppDataFolder();
    QDir().mkpath(target);
    for (const QString &name : names) {
        if (!QFileInfo::exists(target + name))
            platform::replaceFile(target + name, platform::readFile(folders.seeds() + name));
    }
}

bool completeUserData(const platform::Folders &folders, platform::Prompts &prompts)
{
    const auto seed = [&](const QStringList &names) {
        return platform::reportFailures(prompts, [&] { seedUserData(folders, names); });
    };
    if (!QFileInfo::exists(folders.GetAppDataFolder()))
        return seed(shippedFiles(folders));
    const QStringList missing = missingDefinitions(folders);
    return missing.isEmpty() || !wantsThem(missing, folders, prompts) || seed(missing);
}

} // namespace shell
