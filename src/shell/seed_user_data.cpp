#include "shell/seed_user_data.h"

#include "platform/file_replace.h"

#include <QDir>

namespace shell {

bool isNewUser(const platform::Folders &folders) { return !QFileInfo::exists(folders.GetAppDataFolder()); }

void seedUserData(const platform::Folders &folders)
{
    const QString target = folders.GetAppDataFolder();
    QDir().mkpath(target);
    for (const QString &name : QDir(folders.seeds()).entryList(QDir::Files)) {
        if (!QFileInfo::exists(target + name))
            platform::replaceFile(target + name, platform::readFile(folders.seeds() + name));
    }
}

QString missingFilesQuestion(const platform::Folders &folders)
{
    QStringList missing;
    for (const QString &file : {folders.variablesFile(), folders.MessagesFile()}) {
        const QString name = QFileInfo(file).fileName();
        if (!QFileInfo::exists(file) && QFileInfo(folders.seeds() + name).isFile())
            missing.append(name);
    }
    if (missing.isEmpty())
        return {};
    return QStringLiteral("The folder\n%1\nlacks\n%2\n\nDo you want to put the shipped definitions there?")
        .arg(folders.GetAppDataFolder(), missing.join(QLatin1Char('\n')));
}

} // namespace shell
