#include "platform/folders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace platform {

namespace {

QString withSeparator(const QString &folder)
{
    return folder.isEmpty() || folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

void makePrivate(const QString &folder)
{
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString privateFolder(const QString &parent, const QString &name)
{
    if (parent.isEmpty())
        return {};
    const QString path = withSeparator(parent) + name;
    makePrivate(path);
    return withSeparator(path);
}

// Per user and, where the system knows the difference, the one that follows the user from desk to desk.
QString applicationDataRoot()
{
#ifdef Q_OS_WIN
    return QDir::fromNativeSeparators(qEnvironmentVariable("APPDATA"));
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
#endif
}

} // namespace

QString Folders::GetAppDataFolder() const
{
    if (applicationData.isEmpty())
        return {};
    const bool marked = FileExists(program + QStringLiteral("../hVault.Dat")) != 0;
    return applicationData + (marked ? QStringLiteral("hVault/") : QStringLiteral("Torvane/"));
}

QString Folders::inTemporary(const char *name) const
{
    if (!temporary.isEmpty() && !QDir(temporary).exists())
        makePrivate(temporary);
    return temporary + QLatin1String(name);
}

Folders desktopFolders(const QString &programFolder)
{
    using Paths = QStandardPaths;
    Folders folders;
    folders.program = withSeparator(programFolder);
    folders.applicationData = withSeparator(applicationDataRoot());
    folders.cache =
        privateFolder(Paths::writableLocation(Paths::GenericCacheLocation), QStringLiteral("morvel-config"));
    folders.temporary = privateFolder(folders.cache, QStringLiteral("temporary"));
    return folders;
}

int FileExists(const QString &path)
{
    const QString name = path.section(QChar(0), 0, 0);
    const QString plain = QString(name).remove(QLatin1Char('"'));
    const auto isFile = [](const QString &file) { return !file.isEmpty() && QFileInfo(file).isFile(); };
    return isFile(name) || isFile(plain) ? -1 : 0;
}

void wipeFiles(const QString &folder, const QString &pattern)
{
    if (folder.isEmpty())
        return;
    QDir dir(folder);
    for (const QString &name : dir.entryList({pattern}, QDir::Files))
        dir.remove(name);
}

QString nameWithin(const QString &folder, const QString &name)
{
    const bool escapes = name.isEmpty() || name.startsWith(QLatin1Char('.')) ||
                         name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\')) ||
                         name.contains(QLatin1Char(':')) || name.contains(QChar(0));
    return escapes ? QString() : folder + name;
}

} // namespace platform
