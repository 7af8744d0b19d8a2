#include "common/run_time_error.h"
#include "platform/file_replace.h"
#include "platform/folders.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace platform;

class Files : public testing::Test
{
protected:
    void put(const char *name, const QByteArray &bytes, mode_t mode = 0666)
    {
        replaceFile(at(name), bytes);
        ASSERT_EQ(chmod(qPrintable(at(name)), mode), 0);
    }
    QString at(const char *name) const { return folder.filePath(name); }
    QStringList names() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
    // Replaces "f" where the folder takes no new files; permissions bind root to nothing, so as another user.
    void replaceInClosedFolder()
    {
        const uid_t self = geteuid();
        ASSERT_EQ(chmod(qPrintable(folder.path()), 0555), 0);
        ASSERT_TRUE(self != 0 || seteuid(65534) == 0);
        try {
            replaceFile(at("f"), "new");
        } catch (const common::RunTimeError &) {
            refused = true;
        }
        ASSERT_EQ(seteuid(self), 0);
        ASSERT_EQ(chmod(qPrintable(folder.path()), 0755), 0);
    }

    QTemporaryDir folder;
    bool refused = false;
};

TEST_F(Files, replacedFileIsWholeAndNothingStaysBesideIt)
{
    for (const QByteArray &bytes : {QByteArray(300000, 'x'), QByteArray("a\0b", 3), QByteArray()}) {
        replaceFile(at("f"), bytes);
        EXPECT_EQ(readFile(at("f")), bytes);
        EXPECT_EQ(names(), QStringList{"f"});
    }
}

TEST_F(Files, closedFolderGetsTheNewContentInPlaceOrKeepsTheOldOne)
{
    put("f", "a much longer old content");
    replaceInClosedFolder();
    EXPECT_FALSE(refused);
    EXPECT_EQ(readFile(at("f")), "new");
    put("f", "old", 0444);
    replaceInClosedFolder();
    EXPECT_TRUE(refused);
    EXPECT_THROW(replaceFile(at("f/below a file"), "new"), common::RunTimeError);
    EXPECT_EQ(readFile(at("f")), "old");
    EXPECT_EQ(names(), QStringList{"f"});
    EXPECT_THROW(readFile(at("missing")), common::RunTimeError);
}

TEST_F(Files, markerAboveTheProgramMovesTheUserDataAtOnce)
{
    QDir(folder.path()).mkdir("bin");
    Folders folders;
    folders.program = at("bin/");
    EXPECT_EQ(folders.ConfigFile(), "QLM6ConfigTool.cfg"); // no data folder: relative
    folders.applicationData = "/home/driver/";
    EXPECT_EQ(folders.GetAppDataFolder(), "/home/driver/Torvane/");
    put("hVault.Dat", "");
    EXPECT_EQ(folders.FontFolder(), "/home/driver/hVault/FontFiles/");
}

TEST_F(Files, existenceIsOfFilesOnly)
{
    put(".hidden", "");
    const QString file = at(".hidden");
    for (const QString &found : {file, '"' + file + '"', file + QChar(0) + "other"})
        EXPECT_EQ(FileExists(found), -1) << qPrintable(found);
    for (const QString &none : {QString(), QString("\"\""), folder.path(), file + 'x'})
        EXPECT_EQ(FileExists(none), 0) << qPrintable(none);
}

TEST_F(Files, wipingTakesOnlyWhatMatchesInThatFolder)
{
    for (const char *name : {"a.bmp", "b.BMP", "keep.bmp.txt", "keep.vgl"})
        put(name, "");
    QDir(folder.path()).mkdir("sub.bmp");
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    wipeFiles({}, "*"); // no cache folder must not mean the current one
    QDir::setCurrent(before);
    EXPECT_EQ(names().size(), 4);
    wipeFiles(folder.path(), "*.bmp");
    EXPECT_EQ(names(), (QStringList{"keep.bmp.txt", "keep.vgl"}));
    EXPECT_TRUE(QDir(at("sub.bmp")).exists());
}

TEST_F(Files, namesFromFilesNeverLeaveTheirFolder)
{
    EXPECT_EQ(nameWithin("/data/", "My back..ground.bmp"), "/data/My back..ground.bmp");
    for (const char *name : {"", "..", ".hidden", "../x.bmp", "/etc/passwd", "a/b", "..\\x", "a\\b", "C:x"})
        EXPECT_EQ(nameWithin("/data/", name), "") << name;
    EXPECT_EQ(nameWithin("/data/", QString("a.bmp") + QChar(0)), "");
}

TEST_F(Files, desktopFoldersArePrivateToTheUser)
{
    qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    qputenv("XDG_CACHE_HOME", at("cache").toLocal8Bit());
    const Folders folders = desktopFolders("/opt/tool");
    EXPECT_EQ(folders.workspaceFile(), at("Torvane/MORVELWorkspace.VGL"));
    for (const QString &made : {folders.cache, folders.temporary}) {
        struct stat status;
        ASSERT_EQ(stat(qPrintable(made), &status), 0) << qPrintable(made);
        EXPECT_EQ(status.st_mode & 0777, 0700U) << qPrintable(made);
        EXPECT_TRUE(made.startsWith(at("cache/"))) << qPrintable(made);
    }
}

} // namespace
