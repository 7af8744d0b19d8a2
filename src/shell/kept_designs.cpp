#include "shell/kept_designs.h"

#include "layoutfile/layout_file.h"
#include "platform/guards.h"

#include <QFileInfo>

namespace shell {

using platform::Folders;
using platform::Standing;

namespace {

QString newestBackup(const Folders &folders) { return folders.inUserData("MORVELBackup.VGL"); }

// The one that stands, but has not got its place yet.
QString comingBackup(const Folders &folders) { return folders.inUserData("MORVELBackupNew.VGL"); }

// The newest backup has no number; the two before it are 2 and 3. Nothing but the oldest is lost at any step.
void moveBackupsOn(const Folders &folders)
{
    const QString names[] = {folders.inUserData("MORVELBackup3.VGL"), folders.inUserData("MORVELBackup2.VGL"),
                             newestBackup(folders), comingBackup(folders)};
    if (!QFileInfo(names[3]).isFile())
        return;
    for (int older = 0; older < 3; ++older) {
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
    platform::skipFailures([&] { moveBackupsOn(folders); }); // where the last time was cut short
    const Standing standing = platform::replaceFile(comingBackup(folders), layout);
    moveBackupsOn(folders);
    return standing;
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
    QString temporary = folders.inTemporary(Folders::WorkspaceName);
    if (written(temporary, layout))
        return temporary;
    const QString shared = folders.inNewSharedFolder(Folders::WorkspaceName);
    return !shared.isEmpty() && written(shared, layout) ? shared : QString();
}

QByteArray leftToRecover(const Folders &folders)
{
    QByteArray left;
    platform::skipFailures([&] { left = platform::readFile(folders.recoveryFile()); });
    return layoutfile::IsValidVGL(left) ? left : QByteArray();
}

} // namespace shell
