#include "platform/file_replace.h"
#include "shell/save_rules.h"
#include "shell/seed_user_data.h"
#include "shell/single_instance.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace shell;

// The words are seen at the Save command; here is which names need which question.
TEST(SaveQuestions, dependOnTheChosenName)
{
    const auto asked = [](const char *path) {
        const auto root = [](const QString &folder) { return folder == "/card"; };
        return std::pair(longNameQuestion(path).has_value(), recorderNameQuestion(path, root).has_value());
    };
    for (const char *path : {"/card/DEFAULT.VGL", "/card/default.vgl", "/card//x/../DEFAULT.VGL"})
        EXPECT_EQ(asked(path), std::pair(false, false)) << path;
    for (const char *path : {"/DEFAULT.VGL", "/card/sub/DEFAULT.VGL", "/card/EIGHTCHR.VGL", "/card/DEFAULT"})
        EXPECT_EQ(asked(path), std::pair(false, true)) << path;
    for (const char *path : {"/card/NINECHARS.VGL", "/card/DEFAULT.VGL.VGL"})
        EXPECT_EQ(asked(path), std::pair(true, true)) << path;
}

class UserData : public testing::Test
{
protected:
    QTemporaryDir root;
    QString path(const char *name) const { return root.filePath(name); }
};

TEST_F(UserData, seedsAreForNewUsersAndOverwriteNothing)
{
    const platform::Folders folders{path("bin/"), path("home/"), {}, {}};
    QDir(root.path()).mkpath("bin/defaults");
    QDir(root.path()).mkpath("home/Torvane");
    for (const char *name : {"QLM6ConfigToolVars.cfg", "QLM6ConfigToolMessages.cfg", "back.bmp"})
        platform::replaceFile(folders.seeds() + name, "shipped");
    platform::replaceFile(folders.inUserData("back.bmp"), "mine");
    seedUserData(folders);
    EXPECT_EQ(platform::readFile(folders.inUserData("back.bmp")), "mine");
    EXPECT_EQ(platform::readFile(folders.variablesFile()), "shipped");
    QFile::remove(folders.variablesFile());
    seedUserData(folders);
    EXPECT_FALSE(QFile::exists(folders.variablesFile()));
}

TEST_F(UserData, isWorkedOnByOneInstanceAtATime)
{
    const pid_t child = fork();
    if (child == 0) {
        const SingleInstance crashing(path("a/"));
        _exit(crashing.isFirst() ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(status == 0 && QFile::exists(path("a/morvel-config.lock")));
    {
        const SingleInstance first(path("a/"));
        EXPECT_TRUE(first.isFirst()); // the lock of the crashed one is taken over
        EXPECT_FALSE(SingleInstance(path("a/")).isFirst());
        EXPECT_TRUE(SingleInstance(path("b/")).isFirst());
    }
    EXPECT_TRUE(SingleInstance(path("a/")).isFirst());
    platform::replaceFile(path("file"), "");
    EXPECT_TRUE(SingleInstance(path("file/")).isFirst()); // what cannot be locked locks nobody out
}

} // namespace
