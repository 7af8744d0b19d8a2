#include "shell/command_line.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <gtest/gtest.h>

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
              (QStringList{"/F" + path, "/F" + path, "/x", "/tpal"}));
}

} // namespace
