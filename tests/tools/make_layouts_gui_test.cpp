#include "layoutfile/modSaveVGLFiles.h"
#include "make_layouts/layout_maker.h"
#include "platform/file_replace.h"
#include "shell/frm_main.h"
#include "shell/seed_user_data.h"
#include "support/test_world.h"
#include "variables/definition_file.h"

#include <QDirIterator>

#include <gtest/gtest.h>

namespace {

// Of a layout, what tells neither when and by whom it was saved nor the sum over that.
QByteArray design(const QByteArray &layout) { return layout.mid(53).chopped(4); }

QByteArray savedAfterLoading(const QString &path)
{
    test::World world;
    shell::ProgramState &state = world.state;
    state.folders.program = QStringLiteral(MORVEL_PROGRAM_DIR "/");
    shell::seedUserData(state.folders, shell::shippedFiles(state.folders));
    variables::loadDefinitions(platform::readFile(state.folders.variablesFile()), state.catalogue);
    recorder::readMessageTable(platform::readFile(state.folders.MessagesFile()), state.settings.MessageTable);
    shell::frmMain window(state, world.prompts);
    window.design().load();
    window.files().load(path);
    platform::NoProgress progress;
    return layoutfile::layoutBytes(layoutfile::SaveKind::Command,
                                   {window.design(), state.catalogue, state.settings, state.fonts,
                                    world.prompts, progress, state.stamp, state.screen})
        .file;
}

TEST(ShippedLayouts, comeBackFromALoadByteForByte)
{
    int found = 0;
    QDirIterator layouts(
        QStringLiteral(MORVEL_PROGRAM_DIR),
        {QStringLiteral("* PAL.VGL"), QStringLiteral("* NTSC.VGL"), QStringLiteral("MORVELDefault.VGL")},
        QDir::Files, QDirIterator::Subdirectories);
    for (; layouts.hasNext(); ++found) {
        const QString path = layouts.next();
        EXPECT_EQ(design(savedAfterLoading(path)), design(platform::readFile(path))) << qPrintable(path);
    }
    EXPECT_EQ(found, 13); // six for each standard, and a new user's first
}

TEST(LayoutTexts, nameTheLineOfEachFault)
{
    const std::pair<const char *, const char *> lines[] = {
        {"[Recorder]", nullptr},
        {"bit rate | 13", "\"13\" is not a whole number from 2 to 12"},
        {"auto start | Spede | > | 1 | 1", "no variable \"Spede\""},
        {"auto stop | Speed | = | 1 | 1", "\"=\" is none of"},
        {"message | Speed | 30Hz | 5Hz", "\"30Hz\" is no rate"},
        {"unit | Speed | furlongs", "\"furlongs\" is no unit"},
        {"lap chapters", "2 cells expected"},
        {"tyres | 4", "no setting \"tyres\""},
        {"[Simple Txt]", "no family \"Simple Txt\""},
        {"[Bitmap]", nullptr},
        {"picture = Dial", "no picture \"Dial.bmp\""},
        {"[Digital Display | newBold = 1]", nullptr},
        {"newVarID = Speed | newFontSze = 12", "newFontSze"},
        {"newVarID = Sped", "no variable \"Sped\""},
        {"newColour = #12", "no colour"},
        {"newAlfa = 300", "Overflow"},
    };
    QByteArray text;
    for (const auto &[row, what] : lines)
        text += QByteArray(row) + '\n';
    make_layouts::Problems problems;
    const auto table = make_data::parseTable(QStringLiteral("try.txt"), text, problems);
    make_layouts::makeLayout(table, recorder::VideoStandard::Pal, QStringLiteral(MORVEL_PROGRAM_DIR),
                             test::World().state.stamp, problems);
    QStringList found = problems.lines();
    for (int line = 0; const auto &[row, what] : lines) {
        ++line;
        if (!what)
            continue;
        const QString first = found.isEmpty() ? QString() : found.takeFirst();
        EXPECT_TRUE(first.startsWith(QStringLiteral("try.txt:%1:").arg(line)) && first.contains(what))
            << row << ": " << qPrintable(first);
    }
    EXPECT_TRUE(found.isEmpty()) << qPrintable(found.join('\n'));
}

} // namespace
