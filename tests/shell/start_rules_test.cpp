#include "platform/file_replace.h"
#include "shell/command_line.h"
#include "shell/save_rules.h"
#include "shell/seed_user_data.h"
#include "shell/single_instance.h"
#include "support/scripted_prompts.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace shell;

using recorder::VideoStandard;

const QStringList OnDisk{"/me/DEFAULT.VGL", "/my card/b.vgl",    "c.VGL",          "/x/a.txt",
                         "/x/fooVGL",       "/me/12\" disc.VGL", "/me/12 disc.VGL"};

TEST(CommandLine, opensTheLastLayoutThatExistsAndTakesTheLastStandard)
{
    constexpr std::nullopt_t None = std::nullopt;
    const std::tuple<QStringList, const char *, std::optional<VideoStandard>> cases[] = {
        {{}, "", None},
        {{"/me/DEFAULT.VGL"}, "", None}, // a plain file name is not opened
        {{"/F/me/DEFAULT.VGL"}, "/me/DEFAULT.VGL", None},
        {{"/f\"/me/DEFAULT.VGL\""}, "/me/DEFAULT.VGL", None},
        {{"/F", "/my card/b.vgl"}, "/my card/b.vgl", None},
        {{"/F c.VGL "}, "c.VGL", None},
        {{"/F/x/fooVGL"}, "/x/fooVGL", None},
        {{"/F/x/a.txt"}, "", None},
        {{"/F/me/12\" disc.VGL"}, "/me/12\" disc.VGL", None},
        {{"/Fc.VGL", "/F/me/DEFAULT.VGL", "/Fmissing.VGL"}, "/me/DEFAULT.VGL", None},
        {{"/t", "pal"}, "", VideoStandard::Pal},
        {{"/T\" Ntsc \""}, "", VideoStandard::Ntsc},
        {{"/TPAL", "/TNTSC", "/TSECAM"}, "", VideoStandard::Ntsc},
        {{"/Xc.VGL", "/", "/T", "NTSC", "/Fc.VGL", "/F"}, "c.VGL", VideoStandard::Ntsc},
    };
    for (const auto &[arguments, layout, standard] : cases) {
        const CommandLine parsed = parseCommandLine(
            rawCommandLine(arguments), [](const QString &path) { return OnDisk.contains(path); });
        EXPECT_EQ(parsed.layoutToOpen, layout) << qPrintable(arguments.join('|'));
        EXPECT_EQ(parsed.videoOverride, standard) << qPrintable(arguments.join('|'));
    }
    const auto always = [](const QString &) { return true; };
    EXPECT_EQ(parseCommandLine("x.VGL /Fa.VGL/b.VGL", always).layoutToOpen, "a.VGL"); // cut at every slash
}

TEST(CommandLine, passesAPlainFileOnByItsLetter)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const QString path = QFileInfo(file).absoluteFilePath();
    EXPECT_EQ(argumentsForProgram({path, "/F", path, "/x", "/t", "pal"}),
              (QStringList{LaunchedMark, "/F" + path, "/F" + path, "/x", "/tpal"}));
}

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
    test::ScriptedPrompts prompts;
    QString path(const char *name) const { return root.filePath(name); }
};

TEST_F(UserData, isSeededForNewUsersAndCompletedForOthersAfterAQuestion)
{
    const platform::Folders folders{path("bin/"), path("home/"), {}, {}};
    QDir(root.path()).mkpath("bin/defaults");
    EXPECT_TRUE(isNewUser(folders));
    for (const char *name : {"QLM6ConfigToolVars.cfg", "QLM6ConfigToolMessages.cfg", "back.bmp"})
        platform::replaceFile(folders.seeds() + name, "shipped");
    QDir(root.path()).mkpath("home/Torvane");
    EXPECT_FALSE(isNewUser(folders)); // cut short as it was
    platform::replaceFile(folders.inUserData("back.bmp"), "mine");
    EXPECT_EQ(missingDefinitions(folders),
              (QStringList{"QLM6ConfigToolVars.cfg", "QLM6ConfigToolMessages.cfg"}));
    seedUserData(folders, shippedFiles(folders));
    EXPECT_EQ(platform::readFile(folders.inUserData("back.bmp")), "mine");
    EXPECT_EQ(platform::readFile(folders.variablesFile()), "shipped");
    EXPECT_EQ(missingDefinitions(folders), QStringList());
    for (const QString &file : {folders.variablesFile(), folders.inUserData("back.bmp")})
        QFile::remove(file);
    const QStringList missing = missingDefinitions(folders);
    EXPECT_EQ(missing, QStringList{"QLM6ConfigToolVars.cfg"});
    const QString question = missingFilesQuestion(folders, missing);
    EXPECT_TRUE(question.contains(folders.GetAppDataFolder()));
    EXPECT_TRUE(question.contains(missing[0]));
    seedUserData(folders, missing);
    EXPECT_TRUE(QFile::exists(folders.variablesFile()));
    EXPECT_FALSE(QFile::exists(folders.inUserData("back.bmp")));
    QFile::remove(folders.variablesFile());
    QFile::remove(folders.seeds() + "QLM6ConfigToolVars.cfg");
    EXPECT_EQ(missingDefinitions(folders), QStringList()); // nothing to offer
}

TEST_F(UserData, isWorkedOnByOneInstanceAtATime)
{
    const pid_t child = fork();
    if (child == 0) {
        const SingleInstance crashing(path("a/"), prompts);
        _exit(crashing.isFirst() ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    ASSERT_TRUE(QFile::exists(path("a/morvel-config.lock")));
    {
        const SingleInstance first(path("a/"), prompts);
        EXPECT_TRUE(first.isFirst()); // the lock of the crashed one is taken over
        EXPECT_FALSE(SingleInstance(path("a/"), prompts).isFirst());
        EXPECT_TRUE(SingleInstance(path("b/"), prompts).isFirst());
    }
    EXPECT_TRUE(SingleInstance(path("a/"), prompts).isFirst());
    platform::replaceFile(path("file"), "");
    EXPECT_TRUE(SingleInstance(path("file/"), prompts).isFirst()); // what cannot be locked locks nobody out
    const auto without = [](QFile &) { return platform::ProcessLock::Answer::Unsupported; };
    for (const bool yes : {false, true}) {
        platform::replaceFile(path("a/morvel-config.lock"), "7\nmorvel-config\npitwall\n");
        prompts.expectQuestion("The tool seems to be open on pitwall. Do you want to start it here?", yes);
        EXPECT_EQ(SingleInstance(path("a/"), prompts, without).isFirst(), yes);
    }
    tellOfRunningInstance({"/F/x.VGL"}, prompts);
    tellOfRunningInstance({LaunchedMark, "/tpal"}, prompts);
    prompts.expectMessage("The tool is already open. Load the layout there with File, Load Layout.");
    tellOfRunningInstance({LaunchedMark, "/F/x.VGL"}, prompts);
}

} // namespace
