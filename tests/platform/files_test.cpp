#include "common/run_time_error.h"
#include "platform/file_replace.h"
#include "platform/folders.h"
#include "platform/guards.h"
#include "platform/process_lock.h"
#include "platform/settings_file.h"
#include "support/scripted_prompts.h"

#include <QDir>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QUrl>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace platform;

struct Files : testing::Test
{
    void put(const QString &name, const QByteArray &bytes, mode_t mode = 0666)
    {
        replaceFile(at(name), bytes);
        ASSERT_EQ(chmod(qPrintable(at(name)), mode), 0);
    }
    QString at(const QString &name) const { return folder.filePath(name); }
    QStringList names() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
    // The reason of a failure to replace "f" in a folder of this mode; permissions bind root to nothing, so
    // as another user.
    QString refusal(mode_t mode, const QString &keepIn)
    {
        const uid_t self = getuid();
        EXPECT_EQ(chmod(qPrintable(folder.path()), mode) + (self == 0 ? setresuid(65534, 65534, 0) : 0), 0);
        const auto reason = failureOf([&] { replaceFile(at("f"), "new", keepIn); });
        EXPECT_EQ(setresuid(self, self, self) + chmod(qPrintable(folder.path()), 0755), 0);
        return reason.value_or(QString());
    }
    void makeOld(const QString &name, int seconds)
    {
        const timespec times[] = {{time(nullptr) - seconds, 0}, {time(nullptr) - seconds, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, qPrintable(at(name)), times, 0), 0);
    }

    QTemporaryDir folder;
};

TEST_F(Files, replacedFileIsWholeKeepsItsModeAndNothingStaysBesideIt)
{
    put("f", "old", 0640);
    for (const QByteArray &bytes : {QByteArray(300000, 'x'), QByteArray("a\0b", 3), QByteArray()}) {
        replaceFile(at("f"), bytes);
        EXPECT_EQ(readFile(at("f")), bytes);
        EXPECT_EQ(names(), QStringList{"f"});
    }
    EXPECT_EQ(QFile::permissions(at("f")) & 0x777, QFile::Permissions(0x640));
}

TEST(Standing, isToldWhereTheDeviceDidNotConfirmIt)
{
    test::ScriptedPrompts prompts;
    prompts.expectMessage("/card/DEFAULT.VGL\nwas saved, but not confirmed by the device. Keep a copy in "
                          "another place as well.");
    reportStanding(prompts, "/card/DEFAULT.VGL", Standing::NotConfirmed);
}

TEST_F(Files, closedFolderGetsTheNewContentInPlaceAndALockedFileKeepsTheOldOne)
{
    const QTemporaryDir keep;
    ASSERT_EQ(chmod(qPrintable(keep.path()), 0777), 0);
    const std::tuple<mode_t, mode_t, QString, QString> cases[] = {
        {0777, 0444, keep.path(), at("f") + ": Permission denied"},
        {0555, 0666, keep.path(), ""},
        {0555, 0666, at("none"), at("none/kept-f") + ": No such file or directory"}, // nothing is risked
    };
    for (const auto &[folderMode, mode, keepIn, reason] : cases) {
        put("f", "a longer old content", mode);
        EXPECT_EQ(refusal(folderMode, keepIn + '/'), reason);
        EXPECT_EQ(readFile(at("f")), reason.isEmpty() ? "new" : "a longer old content");
        EXPECT_EQ(names(), QStringList{"f"});
        EXPECT_TRUE(QDir(keep.path()).isEmpty());
    }
}

TEST_F(Files, whatIsNoRegularFileIsNeitherReadNorReplaced)
{
    ASSERT_EQ(mkfifo(qPrintable(at("pipe")), 0666), 0);
    ASSERT_TRUE(QDir(folder.path()).mkdir("folder"));
    const std::pair<QString, QString> links[] = {
        {"loop", "loop2"}, {"loop2", "loop"}, {"/dev/full", "device"}, {"f", "link"}};
    for (const auto &[target, name] : links)
        ASSERT_TRUE(QFile::link(target, at(name))) << qPrintable(name);
    for (const char *name : {"pipe", "loop", "folder", "device"}) {
        EXPECT_THROW(readFile(at(name)), common::RunTimeError) << name;
        EXPECT_THROW(replaceFile(at(name), "x"), common::RunTimeError) << name;
        EXPECT_THROW(replaceFile(at(name), "x", at("folder/")), common::RunTimeError) << name;
        EXPECT_THROW(SettingsFile(at(name)).save(), common::RunTimeError) << name;
    }
    for (const char *bytes : {"first", "second"})
        replaceFile(at("link"), bytes);
    EXPECT_EQ(readFile(at("f")), "second");
    EXPECT_TRUE(QFileInfo(at("link")).isSymLink());
}

TEST_F(Files, whatAKilledSaveLeftGoesWithTheNextOneOrAtTheStart)
{
    const QString here = QString::fromLatin1(QUrl::toPercentEncoding(QSysInfo::machineHostName()));
    const QString dead = here + "-4194305.morvel-new"; // no process has this number
    const QString alive = here + QString("-%1.morvel-new").arg(getppid()), elsewhere = "pitwall-7.morvel-new";
    for (const QString &name : {dead, alive, elsewhere})
        ASSERT_TRUE(QFile(at(name)).open(QIODevice::WriteOnly));
    replaceFile(at("f"), "new");
    EXPECT_FALSE(names().contains(dead));
    EXPECT_EQ(names().size(), 3);
    makeOld(elsewhere, 3700);
    removeStagedFiles(folder.path());
    EXPECT_FALSE(names().contains(elsewhere));
    EXPECT_EQ(names().size(), 2);
}

TEST_F(Files, aLockIsHeldByAProcessAndNamesItsOwner)
{
    using State = ProcessLock::State;
    const QString path = at("lock");
    const auto without = [](QFile &) { return ProcessLock::Answer::Unsupported; };
    const QByteArray end = "\n" + QSysInfo::machineHostName().toUtf8() + "\n";
    QFile::link("/bin/sleep", at("another name")); // by which the owner was started
    QProcess running;
    running.start(at("another name"), {"60"});
    ASSERT_TRUE(running.waitForStarted());
    const QByteArray self = QByteArray::number(getpid()), other = QByteArray::number(running.processId());
    const std::tuple<QByteArray, int, State> cases[] = {
        {"", 0, State::Others},
        {"no lock", 60, State::Ours},
        {"", -600, State::Ours}, // the clock was set back
        {other + "\nsleep" + end, 60, State::Others},
        {other + "\nmorvel-config" + end, 60, State::Ours}, // a number that came round again
        {self + "\nmorvel-config" + end, 0, State::Ours},
        {"4194305\nmorvel-config" + end, 0, State::Ours},    // no process has this number
        {"4294967297\nmorvel-config" + end, 0, State::Ours}, // nor this one, which ends in that of the first
        {other + "\nmorvel-config\npitwall\n", 60, State::OtherHosts},
    };
    for (const auto &[content, age, state] : cases) {
        put("lock", content);
        makeOld("lock", age);
        EXPECT_EQ(ProcessLock(path, without).state(), state) << content.constData();
    }
    running.kill();
    running.waitForFinished();
    QFile::remove(path);
    {
        const ProcessLock lock(path, without);
        EXPECT_EQ(readFile(path).split('\n')[0], self);
    }
    EXPECT_FALSE(QFile::exists(path)); // other hosts can see that nobody holds it
    ASSERT_TRUE(QDir(folder.path()).mkdir("lock"));
    EXPECT_EQ(ProcessLock(path).state(), State::Others); // somebody may be making it
    makeOld("lock", 60);
    EXPECT_EQ(ProcessLock(path).state(), State::Ours);
}

TEST_F(Files, markerFileAboveTheProgramMovesTheUserDataAtOnce)
{
    QDir(folder.path()).mkdir("bin");
    Folders folders{at("bin/"), {}, {}, {}, {}};
    EXPECT_EQ(folders.ConfigFile(), "QLM6ConfigTool.cfg"); // no data folder: relative
    folders.applicationData = "/home/driver/";
    EXPECT_EQ(folders.GetAppDataFolder(), "/home/driver/Torvane/");
    put("hVault.Dat", "");
    EXPECT_EQ(folders.FontFolder(), "/home/driver/hVault/FontFiles/");
    put("5\" disc", "");
    for (const QString &found : {at("5\" disc"), '"' + at("hVault.Dat") + '"' + QChar(0) + "other"})
        EXPECT_EQ(FileExists(found), -1) << qPrintable(found);
    EXPECT_EQ(FileExists(folder.path()), 0);
}

TEST_F(Files, wipingTakesOnlyWhatMatchesInThatFolder)
{
    for (const char *name : {"a.bmp", "b.BMP", "keep.bmp.txt"})
        put(name, "");
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    wipeFiles({}, "*"); // no cache folder must not mean the current one
    QDir::setCurrent(before);
    EXPECT_EQ(names().size(), 3);
    wipeFiles(folder.path(), "*.bmp");
    EXPECT_EQ(names(), QStringList{"keep.bmp.txt"});
}

TEST_F(Files, namesFromFilesNeverLeaveTheirFolder)
{
    EXPECT_EQ(nameWithin("/data/", "My back..ground.bmp"), "/data/My back..ground.bmp");
    for (const QString &name : QStringList{"", "..", ".hidden", "/etc", "a/b", "a\\b", "C:x", QChar(0)})
        EXPECT_EQ(nameWithin("/data/", name), "") << qPrintable(name);
}

TEST_F(Files, desktopFoldersArePrivateToTheUser)
{
    qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    qputenv("XDG_CACHE_HOME", at("cache").toLocal8Bit());
    const Folders folders = desktopFolders("/opt/tool");
    EXPECT_EQ(folders.workspaceFile(), at("Torvane/MORVELWorkspace.VGL"));
    EXPECT_TRUE(folders.temporary.startsWith(folders.cache));
    EXPECT_TRUE(folders.cache.startsWith(at("cache/")));
    for (const QString &made : {folders.cache, folders.temporary})
        EXPECT_EQ(QFile::permissions(made) & 0x77, QFile::Permissions()) << qPrintable(made);
}

} // namespace
