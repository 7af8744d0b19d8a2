#include "shell/seed_user_data.h"

#include "platform/file_replace.h"

#include <QDir>

namespace shell {

void seedUserData(const platform::Folders &folders)
{
    if (QFile::exists(folders.variablesFile()) || QFile::exists(folders.MessagesFile()))
        return;
    const QString target = folders.GetAppDataFolder();
    QDir().mkpath(target);
    for (const QString &name : QDir(folders.seeds()).entryList(QDir::Files)) {
        if (!QFile::exists(target + name))
            platform::replaceFile(target + name, platform::readFile(folders.seeds() + name));
    }
}

} // namespace shell
