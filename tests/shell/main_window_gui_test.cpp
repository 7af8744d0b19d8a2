#include "platform/file_replace.h"
#include "support/design_window.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>

namespace {

using test::DesignWindow;

struct MainWindow : testing::Test
{
    QString layout(const QString &name, int bars)
    {
        QString path = w.world.root.filePath(name);
        test::writeLayout(path, bars);
        return path;
    }
    QString picture(const QString &name, QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        QString path = w.world.root.filePath(name);
        EXPECT_TRUE(image.save(path, "BMP"));
        return path;
    }
    QStringList recent()
    {
        QStringList captions;
        for (int i = 1; i <= 8; ++i) {
            const QAction &action = w.action(qPrintable(QStringLiteral("mnuRecent%1").arg(i)));
            if (action.isVisible())
                captions.append(action.text());
        }
        return captions;
    }
    // Lets files from a file manager go over the window.
    bool dropFiles(const QList<QUrl> &files)
    {
        QMimeData carried;
        carried.setUrls(files);
        QDragEnterEvent enter({200, 200}, Qt::CopyAction, &carried, Qt::LeftButton, {});
        QApplication::sendEvent(&w.canvas(), &enter);
        QDropEvent letGo({200, 200}, Qt::CopyAction, &carried, Qt::LeftButton, {});
        if (enter.isAccepted())
            QApplication::sendEvent(&w.window, &letGo);
        QCoreApplication::processEvents();
        return enter.isAccepted();
    }

    DesignWindow w;
    test::ScriptedPrompts &prompts = w.world.prompts;
};

TEST_F(MainWindow, KeepsTheLastEightLayoutsAndTellsOfOneThatIsGone)
{
    const QString first = layout("A & B \u0416.VGL", 1);
    for (int i = 0; i < 9; ++i) {
        const QString copy = w.world.root.filePath(QStringLiteral("L%1.VGL").arg(i));
        QFile::copy(first, copy);
        w.window.files().load(copy);
    }
    w.window.files().load(w.world.root.filePath("L3.VGL"));
    w.window.files().load(first);
    const QString own = w.world.state.folders.inUserData("OWN.VGL");
    QFile::copy(first, own);
    w.window.files().load(own);
    EXPECT_TRUE(w.window.close());
    shell::UsedLayouts next(w.world.state.folders);
    next.read();
    EXPECT_EQ(next.recent(), w.window.files().used().recent());
    w.window.refreshFromState();
    EXPECT_EQ(recent().size(), 8);
    EXPECT_EQ(recent()[0], "&1 " + QString(first).replace('&', "&&"));
    EXPECT_TRUE(recent()[1].endsWith("L3.VGL"));
    EXPECT_TRUE(recent()[7].endsWith("L2.VGL"));
    QFile::remove(first);
    prompts.expectMessage("The layout\n" + first + "\ncannot be found. It is taken off the list.");
    w.run("mnuRecent1");
    EXPECT_EQ(recent().size(), 7);
    prompts.expectChoice(0);
    w.run("mnuRecent1");
    EXPECT_EQ(w.design().caption(), "L3");
}

TEST_F(MainWindow, OpensALayoutThatIsDroppedAfterTheQuestions)
{
    const QUrl two = QUrl::fromLocalFile(layout("two.vgl", 2));
    w.addBar(10, 10);
    prompts.expectChoice(2);
    EXPECT_TRUE(dropFiles({two}));
    EXPECT_EQ(w.design().controls().size(), 3);
    test::whenOpened([&](QWidget &dialog) {
        EXPECT_FALSE(dropFiles({two}));
        test::press(dialog, "cmdCancel");
    });
    w.run("mnuOptions");
    EXPECT_FALSE(dropFiles({two, two}));
    EXPECT_FALSE(dropFiles({QUrl("https://example.com/two.vgl")}));
    EXPECT_FALSE(dropFiles({QUrl::fromLocalFile(picture("a.bmp", {8, 8}))}));
}

TEST_F(MainWindow, FactoryLayoutsReplaceTheDesignAndLeaveNoTrace)
{
    const QString folder = w.world.state.folders.exampleLayouts();
    QDir().mkpath(folder);
    test::writeLayout(folder + "Road.VGL", 2);
    for (const bool picks : {false, true}) {
        w.design().mnuNew_Click();
        w.addBar(10, 10);
        prompts.expectOpenFile(picks ? folder + "Road.VGL" : QString());
        w.run("mnuLoadFactoryLayout");
        EXPECT_EQ(prompts.lastFileRequest().folder, folder);
        EXPECT_EQ(w.design().controls().size(), picks ? 2 : 1);
    }
    EXPECT_FALSE(prompts.lastFileRequest().preview(folder + "Road.VGL").isNull());
    EXPECT_TRUE(recent().isEmpty());
    EXPECT_TRUE(QFile::exists(w.world.state.folders.inUserData("MORVELBackup.VGL")));
}

TEST_F(MainWindow, OptionsAreKeptAndSeenAtOnce)
{
    const platform::Folders &folders = w.world.state.folders;
    const QString wrong = "wrong.bmp\nImage should be 720 X ";
    QDir(w.world.root.path()).mkdir("other");
    for (const auto &entry : {std::pair("19", 0), {"1001", 0}, {"1000", 1000}, {"20", 20}}) {
        const char *size = entry.first;
        const int kept = entry.second;
        test::whenOpened([&](QWidget &dialog) {
            auto &grid = test::child<QLineEdit>(dialog, "txtGridSize");
            grid.selectAll();
            QTest::keyClicks(&grid, QString("-%1.").arg(size));
            EXPECT_EQ(grid.text(), size);
            for (const char *box : {"chkShowGrid", "chkSnapToGrid"})
                test::child<QCheckBox>(dialog, box).setChecked(false);
            prompts.expectOpenFile(picture("wrong.bmp", {720, 480}));
            prompts.expectMessage(wrong + "576");
            test::press(dialog, "cmdPALImgBrowse");
            prompts.expectOpenFile(picture("wrong.bmp", {720, 576}));
            prompts.expectMessage(wrong + "480");
            test::press(dialog, "cmdNTSCImgBrowse");
            prompts.expectOpenFile(picture("PIT.bmp", {720, 576}));
            test::press(dialog, "cmdPALImgBrowse");
            if (kept == 20) { // a name that the other standard has
                prompts.expectOpenFile(picture("other/PIT.bmp", {720, 480}));
                test::press(dialog, "cmdNTSCImgBrowse");
            }
            if (kept == 0)
                prompts.expectMessage("Invalid grid size");
            test::press(dialog, "cmdOk");
            test::press(dialog, "cmdCancel");
        });
        w.run("mnuOptions");
        w.design().load();
        EXPECT_EQ(w.design().grid().spacing, kept);
        EXPECT_EQ(w.design().grid().shown || w.design().grid().snaps, kept == 0);
        EXPECT_EQ(w.design().backgrounds().fileName(recorder::VideoStandard::Ntsc), "NTSCVIDEOBackImg.bmp");
    }
    EXPECT_EQ(w.design().backgrounds().picture(recorder::VideoStandard::Ntsc).pixelColor(5, 5), Qt::red);
    EXPECT_EQ(w.shown({5, 5}), QColor(Qt::red));
    EXPECT_EQ(w.design().backgrounds().fileName(recorder::VideoStandard::Pal), "PIT.bmp");
    // At the next start a file of another size is taken as it is; for one that is gone there is the picture
    // that came with the program.
    for (const QSize size : {QSize(720, 480), QSize()}) {
        QFile::remove(folders.inUserData("PIT.bmp"));
        if (!size.isEmpty())
            QFile::copy(picture("wrong.bmp", size), folders.inUserData("PIT.bmp"));
        surface::Backgrounds next(folders);
        EXPECT_EQ(next.picture(recorder::VideoStandard::Pal).height(), size.isEmpty() ? 576 : 480);
    }
}

TEST(Commands, AnotherPersonalityLacksSomeEntries)
{
    QStringList lacking;
    for (const shell::Command &row : shell::commands()) {
        EXPECT_TRUE(shell::isOffered(row, platform::Personality::MORVEL));
        if (!shell::isOffered(row, platform::Personality::hVault))
            lacking.append(row.name);
    }
    EXPECT_EQ(lacking, (QStringList{"mnuAutoStartStopRec", "mnuAutoChapterMark", "dashsp", "l4", "mnuBitRate",
                                    "mnuEncodePattern"}));
}

TEST_F(MainWindow, ShowsTheHelpThatIsInstalled)
{
    prompts.expectPage(QUrl::fromLocalFile(w.world.state.folders.program + "help/index.html"));
    w.run("mnuLocalHelp");
    EXPECT_FALSE(w.action("mnuOnlineHelp").isEnabled());
}

TEST(LiveLabel, showsTheFirstAndTheLastOfManyTexts)
{
    shell::LiveLabel label;
    for (const char *text : {"1, 1", "2, 1", "3, 1"})
        label.setText(text);
    EXPECT_EQ(label.accessibleName(), "1, 1"); // which is what is painted
    EXPECT_TRUE(QTest::qWaitFor([&] { return label.accessibleName() == "3, 1"; }));
}

} // namespace
