#include "platform/folders.h"

#include "platform/program_name.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace platform {

using namespace Qt::StringLiterals;

namespace {

QString withSeparator(const QString &folder)
{
    return folder.isEmpty() || folder.endsWith('/'_L1) ? folder : folder + '/'_L1;
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
    const bool marked = FileExists(program + u"../hVault.Dat"_s) != 0;
    return applicationData + (marked ? u"hVault/"_s : u"Torvane/"_s);
}

QString Folders::inTemporary(const char *name) const
{
    if (!temporary.isEmpty() && !QDir(temporary).exists())
        makePrivate(temporary);
    return temporary + QLatin1String(name);
}

QString Folders::inNewSharedFolder(const char *name) const
{
    if (shared.isEmpty())
        return {};
    QTemporaryDir folder(shared + u"morvel-XXXXXX"_s);
    folder.setAutoRemove(false);
    return folder.isValid() ? folder.filePath(QLatin1String(name)) : QString();
}

Folders desktopFolders(const QString &programFolder)
{
    using Paths = QStandardPaths;
    Folders folders;
    folders.program = withSeparator(programFolder);
    folders.applicationData = withSeparator(applicationDataRoot());
    folders.cache = privateFolder(Paths::writableLocation(Paths::GenericCacheLocation), ProgramName);
    folders.temporary = privateFolder(folders.cache, u"temporary"_s);
    folders.shared = withSeparator(QDir::tempPath());
    return folders;
}

int FileExists(const QString &path)
{
    const QString name = path.section(QChar(0), 0, 0);
    const QString plain = QString(name).remove('"'_L1);
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
    const bool escapes = name.isEmpty() || name.startsWith('.'_L1) || name.contains('/'_L1) ||
                         name.contains('\\'_L1) || name.contains(':'_L1) || name.contains(QChar(0));
    return escapes ? QString() : folder + name;
}

} // namespace platform
