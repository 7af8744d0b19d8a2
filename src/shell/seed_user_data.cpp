#include "shell/seed_user_data.h"

#include "platform/file_replace.h"

#include <QDir>

namespace shell {

bool isNewUser(const platform::Folders &folders) { return !QFileInfo::exists(folders.GetAppDataFolder()); }

QStringList shippedFiles(const platform::Folders &folders)
{
    return QDir(folders.seeds()).entryList(QDir::Files);
}

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

bool isComplete(const platform::Folders &folders)
{
    return !isNewUser(folders) && missingDefinitions(folders).isEmpty();
}

QString missingFilesQuestion(const platform::Folders &folders, const QStringList &missing)
{
    return QStringLiteral("The folder\n%1\nlacks\n%2\n\nDo you want to put the shipped definitions there?")
        .arg(folders.GetAppDataFolder(), missing.join(QLatin1Char('\n')));
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

} // namespace shell
