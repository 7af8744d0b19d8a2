#pragma once

#include <QString>

namespace platform {

// Where the program finds and keeps its files. All folders end in a separator (or are empty: then names are
// relative to the current folder). Tests point them into a temporary folder.
struct Folders
{
    static constexpr const char *VariablesName = "QLM6ConfigToolVars.cfg";
    static constexpr const char *WorkspaceName = "MORVELWorkspace.VGL";

    QString program;         // of the executable; never written to
    QString applicationData; // per-user root of all applications' data; empty when the system names none
    QString temporary;       // private to this user
    QString cache;           // thumbnails; wiped at start and at exit
    QString shared;          // the system's temporary folder, often on another volume than the others

    // The per-user data folder: "hVault" when the marker file stands one level above the program, else
    // "Torvane". The empty text when there is no application data folder. Looked up at every call.
    QString GetAppDataFolder() const;

    QString ConfigFile() const { return inUserData("QLM6ConfigTool.cfg"); }
    QString ControlConfigFile() const { return inUserData("QLM6ConfigToolControl.cfg"); }
    QString MessagesFile() const { return inUserData("QLM6ConfigToolMessages.cfg"); }
    QString FontFolder() const { return inUserData("FontFiles/"); }
    QString variablesFile() const { return inUserData(VariablesName); }
    QString workspaceFile() const { return inUserData(WorkspaceName); }
    QString recoveryFile() const { return inUserData("MORVELRecovery.VGL"); }
    QString defaultLayoutFile() const { return inUserData("MORVELDefault.VGL"); }
    QString pictureFolder() const { return inUserData("ImgTemp/"); } // copies of pictures that users chose
    QString exampleGraphics() const { return program + QStringLiteral("Example Graphics/"); }
    QString exampleLayouts() const { return program + QStringLiteral("Example Layouts/"); }
    QString localHelp() const { return program + QStringLiteral("help/index.html"); }
    QString shippedVariablesFile() const { return program + QLatin1String(VariablesName); }
    QString seeds() const { return program + QStringLiteral("defaults/"); }
    QString shippedFaces() const { return program + QStringLiteral("fonts/"); }
    QString inUserData(const char *name) const { return GetAppDataFolder() + QLatin1String(name); }
    // The temporary folder is made again when somebody who clears caches has taken it away.
    QString inTemporary(const char *name) const;
    // In a new folder of the shared one, private to this user; the empty text where none can be made.
    QString inNewSharedFolder(const char *name) const;
};

// The folders of the running program; creates the temporary and the cache folder, readable by this user only.
Folders desktopFolders(const QString &programFolder);

// -1 when a file (of any attributes) is found under `path`, which may carry NUL-separated parts (the first
// part counts) and quotes, in its name or round it; else 0.
int FileExists(const QString &path);

// Deletes the files of `folder` that match `pattern` ("*.bmp"); what cannot be deleted stays.
void wipeFiles(const QString &folder, const QString &pattern);

// `path` reduced to a plain name inside `folder`: nothing for names with a separator, a NUL or a leading dot.
QString nameWithin(const QString &folder, const QString &name);

} // namespace platform
