#include "shell/kept_designs.h"

#include "layoutfile/layout_file.h"
#include "platform/guards.h"

#include <QFile>
#include <QFileInfo>

namespace shell {

using platform::Folders;
using platform::Standing;

namespace {

QString newestBackup(const Folders &folders) { return folders.inUserData("MORVELBackup.VGL"); }

// The newest backup has no number; the two before it are 2 and 3. Each step leaves all but the oldest.
void moveBackupsOn(const Folders &folders)
{
    const QString names[] = {folders.inUserData("MORVELBackup3.VGL"), folders.inUserData("MORVELBackup2.VGL"),
                             newestBackup(folders)};
    if (!QFileInfo(names[2]).isFile())
        return;
    for (int older = 0; older < 2; ++older) {
        if (QFileInfo(names[older + 1]).isFile())
            platform::moveFile(names[older + 1], names[older]);
    }
}

bool written(const QString &path, const QByteArray &layout)
{
    return platform::skipFailures([&] { platform::replaceFile(path, layout); });
}

} // namespace

Standing keepAsBackup(const QByteArray &layout, const Folders &folders)
{
    platform::StagedFile newest(newestBackup(folders), layout);
    moveBackupsOn(folders);
    return newest.commit();
}

Standing keepAsWorkspace(const QByteArray &layout, const Folders &folders)
{
    const QString workspace = folders.workspaceFile();
    QByteArray previous;
    platform::skipFailures([&] { previous = platform::readFile(workspace); });
    const Standing standing = platform::replaceFile(workspace, layout);
    if (!previous.isEmpty()) // the new one stands whether or not the old one can be kept
        platform::skipFailures(
            [&] { platform::replaceFile(folders.inUserData("MORVELWorkspace.bak"), previous); });
    return standing;
}

QString keepAnywhere(const QByteArray &layout, const Folders &folders)
{
    if (platform::skipFailures([&] { keepAsBackup(layout, folders); }))
        return newestBackup(folders);
    const QString temporary = folders.inTemporary("MORVELWorkspace.VGL");
    return written(temporary, layout) ? temporary : QString();
}

bool hasRecovery(const Folders &folders)
{
    QByteArray left;
    return platform::skipFailures([&] { left = platform::readFile(folders.recoveryFile()); }) &&
           layoutfile::IsValidVGL(left);
}

void keepRecoveryAsBackup(const Folders &folders)
{
    keepAsBackup(platform::readFile(folders.recoveryFile()), folders);
    QFile::remove(folders.recoveryFile());
}

} // namespace shell
