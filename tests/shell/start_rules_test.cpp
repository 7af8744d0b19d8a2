#include "platform/file_replace.h"
#include "shell/command_line.h"
#include "shell/save_rules.h"
#include "shell/seed_user_data.h"
#include "shell/single_instance.h"
#include "support/scripted_prompts.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using namespace shell;

using recorder::VideoStandard;

const QStringList OnDisk{"/me/DEFAULT.VGL", "/my card/b.vgl",    "c.VGL",
                         "/x/a.txt",        "/me/12\" disc.VGL", "/me/12 disc.VGL"};

TEST(CommandLine, opensTheLastLayoutThatExistsAndTakesTheLastStandard)
{
    const std::tuple<QStringList, const char *, std::optional<VideoStandard>> cases[] = {
        {{"/me/DEFAULT.VGL"}, "", {}}, // a plain file name is not opened
        {{"/f\"/me/DEFAULT.VGL\""}, "/me/DEFAULT.VGL", {}},
        {{"/F", "/my card/b.vgl"}, "/my card/b.vgl", {}},
        {{"/F c.VGL "}, "c.VGL", {}},
        {{"/F/x/a.txt"}, "", {}},
        {{"/F/me/12\" disc.VGL"}, "/me/12\" disc.VGL", {}},
        {{"/Fc.VGL", "/F/me/DEFAULT.VGL", "/Fmissing.VGL"}, "/me/DEFAULT.VGL", {}},
        {{"/t", "pal"}, "", VideoStandard::Pal},
        {{"/TPAL", "/T\" Ntsc \"", "/TSECAM"}, "", VideoStandard::Ntsc},
        {{"/Xc.VGL", "/", "/T", "NTSC", "/Fc.VGL", "/F"}, "c.VGL", VideoStandard::Ntsc},
    };
    for (const auto &[arguments, layout, standard] : cases) {
        const CommandLine parsed = parseCommandLine(
            rawCommandLine(arguments), [](const QString &path) { return OnDisk.contains(path); });
        EXPECT_EQ(parsed.layoutToOpen, layout) << qPrintable(arguments.join('|'));
        EXPECT_EQ(parsed.videoOverride, standard) << qPrintable(arguments.join('|'));
    }
    // Cut at every slash.
    EXPECT_EQ(parseCommandLine("x.VGL /Fa.VGL/b.VGL", [](auto &) { return true; }).layoutToOpen, "a.VGL");
}

// The words are seen at the Save command; here is which names need which question.
TEST(SaveQuestions, dependOnTheChosenName)
{
    const auto root = [](const QString &folder) { return folder == "/card"; };
    const std::tuple<const char *, bool, bool> cases[] = {{"/card//x/../default.vgl", false, false},
                                                          {"/card/sub/DEFAULT.VGL", false, true},
                                                          {"/card/EIGHTCHR.VGL", false, true},
                                                          {"/card/DEFAULT.VGL.VGL", true, true}};
    for (const auto &[path, isLong, isOther] : cases) {
        EXPECT_EQ(longNameQuestion(path).has_value(), isLong) << path;
        EXPECT_EQ(recorderNameQuestion(path, root).has_value(), isOther) << path;
    }
}

struct UserData : testing::Test
{
    QTemporaryDir root;
    test::ScriptedPrompts prompts;
    QString path(const char *name) const { return root.filePath(name); }
};

TEST_F(UserData, isSeededForNewUsersAndCompletedForOthersAfterAQuestion)
{
    const platform::Folders folders{path("bin/"), path("home/"), {}, {}, {}};
    QDir(root.path()).mkpath("bin/defaults");
    const QStringList definitions{"QLM6ConfigToolVars.cfg", "QLM6ConfigToolMessages.cfg"};
    for (const QString &name : definitions + QStringList{"back.bmp"})
        platform::replaceFile(folders.seeds() + name, "shipped");
    const auto holds = [&](const QString &name, const char *bytes) {
        const QString file = folders.GetAppDataFolder() + name;
        return QFileInfo::exists(file) ? platform::readFile(file) == bytes : bytes == nullptr;
    };
    EXPECT_TRUE(completeUserData(folders, prompts));
    for (const QString &name : shippedFiles(folders))
        EXPECT_TRUE(holds(name, "shipped")) << name.toStdString();
    EXPECT_TRUE(completeUserData(folders, prompts)); // there is nothing to ask
    QFile::remove(folders.inUserData("back.bmp"));
    for (const bool wanted : {false, true}) {
        QFile::remove(folders.variablesFile());
        platform::replaceFile(folders.MessagesFile(), "mine");
        prompts.expectQuestion("The folder\n" + folders.GetAppDataFolder() + "\nlacks\n" + definitions[0] +
                                   "\n\nDo you want to put the shipped definitions there?",
                               wanted);
        EXPECT_TRUE(completeUserData(folders, prompts)); // who wants none is told by the program
        EXPECT_TRUE(holds(definitions[0], wanted ? "shipped" : nullptr));
        EXPECT_TRUE(holds(definitions[1], "mine") && holds("back.bmp", nullptr));
    }
    QFile::remove(folders.variablesFile());
    QFile::remove(folders.seeds() + definitions[0]);
    EXPECT_TRUE(completeUserData(folders, prompts)); // nothing to offer
}

TEST_F(UserData, plainFileIsPassedOnByItsLetter)
{
    platform::replaceFile(path("f"), "");
    for (const char *name : {"morvel", "/usr/bin/morvel"})
        EXPECT_TRUE(isLaunched(name)) << name;
    for (const char *name : {"/x/morvel/morvel-config", "morvel.old.copy"})
        EXPECT_FALSE(isLaunched(name)) << name;
    EXPECT_EQ(launchedArguments({path("f"), "/F", path("f"), "/x", "/t", "pal"}),
              (QStringList{LaunchedMark, "/F" + path("f"), "/F" + path("f"), "/x", "/tpal"}));
}

TEST_F(UserData, isWorkedOnByOneInstanceAtATime)
{
    const auto isFirst = [&](const char *folder) { return SingleInstance(path(folder), prompts).isFirst(); };
    QDir(root.path()).mkdir("a");
    platform::replaceFile(path("a/morvel-config.lock"), "1\nx\npitwall\n"); // of one that crashed
    {
        const SingleInstance first(path("a/"), prompts);
        EXPECT_TRUE(first.isFirst());
        EXPECT_FALSE(isFirst("a/"));
    }
    EXPECT_TRUE(isFirst("a/"));
    platform::replaceFile(path("file"), "");
    EXPECT_TRUE(isFirst("file/")); // what cannot be locked locks nobody out
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
