#include "common/run_time_error.h"
#include "platform/file_replace.h"
#include "platform/folders.h"
#include "platform/guards.h"
#include "platform/process_lock.h"
#include "platform/settings_file.h"
#include "support/scripted_prompts.h"

#include <QDateTime>
#include <QDir>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

using namespace platform;

constexpr timeval LongAgo[2] = {{1000, 0}, {1000, 0}};

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
    void replaceInClosedFolder(const QString &keepIn)
    {
        chmod(qPrintable(keepIn), 0777);
        const uid_t self = geteuid();
        ASSERT_EQ(chmod(qPrintable(folder.path()), 0555), 0);
        ASSERT_TRUE(self != 0 || seteuid(65534) == 0);
        refused = failureOf([&] { replaceFile(at("f"), "new", keepIn); }).value_or(QString());
        ASSERT_EQ(seteuid(self), 0);
        ASSERT_EQ(chmod(qPrintable(folder.path()), 0755), 0);
    }

    static QByteArray ownerOf(const QString &lock) { return readFile(lock).split('\n')[0]; }

    QTemporaryDir folder;
    QString refused; // the reason
};

TEST_F(Files, replacedFileIsWholeAndNothingStaysBesideIt)
{
    for (const QByteArray &bytes : {QByteArray(300000, 'x'), QByteArray("a\0b", 3), QByteArray()}) {
        replaceFile(at("f"), bytes);
        EXPECT_EQ(readFile(at("f")), bytes);
        EXPECT_EQ(names(), QStringList{"f"});
    }
    put("f", "old", 0640);
    replaceFile(at("f"), "new");
    EXPECT_EQ(QFile::permissions(at("f")) & 0x777, QFile::Permissions(0x640));
}

// Whether a file may be written to is asked for the real user; permissions bind root to nothing.
TEST_F(Files, fileThatIsLockedAgainstWritingIsNotSwappedEither)
{
    ASSERT_EQ(chmod(qPrintable(folder.path()), 0777), 0);
    for (const auto &[mode, reason] : {std::pair(0444, at("f") + ": Permission denied"), {0666, QString()}}) {
        put("f", "old", mode_t(mode));
        const uid_t self = getuid();
        ASSERT_EQ(self == 0 ? setreuid(65534, uid_t(-1)) : 0, 0);
        EXPECT_EQ(failureOf([&] { replaceFile(at("f"), "new"); }).value_or(QString()), reason);
        ASSERT_EQ(setreuid(self, uid_t(-1)), 0);
        EXPECT_EQ(readFile(at("f")), mode == 0444 ? "old" : "new");
    }
}

TEST(Standing, isToldWhereTheDeviceDidNotConfirmIt)
{
    test::ScriptedPrompts prompts;
    reportStanding(prompts, "/card/DEFAULT.VGL", Standing::Confirmed);
    prompts.expectMessage(
        "/card/DEFAULT.VGL\nwas saved, but not confirmed by the device. Keep a copy in another "
        "place as well.");
    reportStanding(prompts, "/card/DEFAULT.VGL", Standing::NotConfirmed);
    EXPECT_EQ(prompts.shown().back().icon, Icon::Warning);
}

TEST_F(Files, closedFolderGetsTheNewContentInPlaceOrKeepsTheOldOne)
{
    const QTemporaryDir keep;
    const QString keepIn = keep.path() + '/';
    put("f", "a much longer old content");
    replaceInClosedFolder(keepIn);
    EXPECT_EQ(refused, "");
    EXPECT_EQ(readFile(at("f")), "new");
    EXPECT_TRUE(QDir(keepIn).isEmpty());
    put("f", "old", 0444);
    replaceInClosedFolder(keepIn);
    EXPECT_EQ(refused, at("f") + ": Permission denied");
    put("f", "old");
    replaceInClosedFolder(at("no folder/")); // where the old bytes cannot be kept, nothing is risked
    EXPECT_NE(refused, "");
    EXPECT_THROW(replaceFile(at("f/below a file"), "new"), common::RunTimeError);
    EXPECT_EQ(readFile(at("f")), "old");
    EXPECT_EQ(names(), QStringList{"f"});
    EXPECT_THROW(readFile(at("missing")), common::RunTimeError);
}

TEST_F(Files, whatIsNoRegularFileIsNeitherReadNorReplaced)
{
    ASSERT_EQ(mkfifo(qPrintable(at("pipe")), 0666), 0);
    const std::pair<QString, QString> links[] = {{at("loop"), at("loop2")},
                                                 {at("loop2"), at("loop")},
                                                 {"/dev/full", at("device")},
                                                 {at("f"), at("link")},
                                                 {at("coming"), at("ahead")}};
    for (const auto &[target, name] : links)
        ASSERT_TRUE(QFile::link(target, name)) << qPrintable(name);
    ASSERT_TRUE(QDir(folder.path()).mkdir("folder"));
    for (const char *name : {"pipe", "loop", "folder", "device"}) {
        EXPECT_THROW(readFile(at(name)), common::RunTimeError) << name;
        EXPECT_THROW(replaceFile(at(name), "x"), common::RunTimeError) << name;
        EXPECT_THROW(replaceFile(at(name), "x", at("folder/")), common::RunTimeError) << name;
        EXPECT_THROW(SettingsFile(at(name)).save(), common::RunTimeError) << name;
    }
    put("f", "old");
    replaceFile(at("link"), "new");
    replaceFile(at("ahead"), "new");
    EXPECT_EQ(readFile(at("f")) + readFile(at("coming")), "newnew");
    EXPECT_TRUE(QFileInfo(at("link")).isSymLink());
}

TEST_F(Files, whatAKilledSaveLeftGoesWithTheNextOneOrAtTheStart)
{
    const QString here = QString::fromLatin1(QUrl::toPercentEncoding(QSysInfo::machineHostName()));
    const QString dead = at(qPrintable(here + "-4194305.morvel-new")); // no process has this number
    const QString alive = here + QString("-%1.morvel-new").arg(getppid()), elsewhere = "pitwall-7.morvel-new";
    for (const QString &name : {alive, elsewhere})
        put(qPrintable(name), "half");
    for (const bool saves : {true, false}) {
        put(qPrintable(QFileInfo(dead).fileName()), "half");
        if (saves)
            replaceFile(at("f"), "new");
        else
            removeStagedFiles(folder.path());
        EXPECT_FALSE(QFile::exists(dead));
        EXPECT_TRUE(names().contains(alive));
        EXPECT_TRUE(names().contains(elsewhere));
    }
    ASSERT_EQ(utimes(qPrintable(at(qPrintable(elsewhere))), LongAgo), 0);
    removeStagedFiles(folder.path());
    EXPECT_EQ(names(), (QStringList{"f", alive}));
}

TEST_F(Files, aLockIsHeldByAProcessAndNamesItsOwner)
{
    using State = ProcessLock::State;
    const QString path = at("lock");
    const auto stateOver = [&](const QByteArray &content, int age, ProcessLock::SystemLock lock) {
        put("lock", content);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFileDevice::FileModificationTime);
        file.close();
        return ProcessLock(path, lock).state();
    };
    const auto without = [](QFile &) { return ProcessLock::Answer::Unsupported; };
    const QByteArray here = QSysInfo::machineHostName().toUtf8();
    const QByteArray self = QByteArray::number(getpid()), parent = QByteArray::number(getppid());
    QFile named("/proc/" + parent + "/comm");
    const QByteArray name = named.open(QIODevice::ReadOnly) ? named.readAll().trimmed() : "parent";
    // A system lock alone decides, whatever an earlier kind of lock left.
    for (const char *content : {"", "1\nx\npitwall\n", "no lock"})
        EXPECT_EQ(stateOver(content, 0, &ProcessLock::systemLock), State::Ours) << content;
    const std::tuple<QByteArray, int, State> cases[] = {
        {"", 0, State::Others},
        {"", 60, State::Ours},
        {"no lock", 60, State::Ours},
        {"12", 60, State::Ours},
        {"", -600, State::Ours}, // the clock was set back
        {parent + "\n" + name + "\n" + here + "\n", 60, State::Others},
        {parent + "\nanother name\n" + here + "\n", 60, State::Ours}, // a number that came round again
        {self + "\nmorvel-config\n" + here + "\n", 0, State::Ours},
        {"4194305\nmorvel-config\n" + here + "\n", 0, State::Ours}, // no process has this number
        {parent + "\nmorvel-config\npitwall\n", 60, State::OtherHosts},
    };
    for (const auto &[content, age, state] : cases)
        EXPECT_EQ(stateOver(content, age, without), state) << content.constData();
    QFile::remove(path);
    {
        const ProcessLock lock(path, without);
        EXPECT_EQ(ownerOf(path), self);
        EXPECT_EQ(ProcessLock(path, without).state(), State::Ours); // the same process
    }
    EXPECT_FALSE(QFile::exists(path)); // other hosts can see that nobody holds it
    ASSERT_TRUE(QDir(folder.path()).mkdir("lock"));
    EXPECT_EQ(ProcessLock(path).state(), State::Others); // somebody may be making it
    ASSERT_EQ(utimes(qPrintable(path), LongAgo), 0);
    EXPECT_EQ(ProcessLock(path).state(), State::Ours);
    EXPECT_TRUE(QFileInfo(path).isFile());
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
    put("5\" disc", "");
    EXPECT_EQ(FileExists(at("5\" disc")), -1);
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
