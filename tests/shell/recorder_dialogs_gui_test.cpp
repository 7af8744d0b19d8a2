#include "recorder/message_table.h"
#include "support/design_window.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QTableView>

namespace {

// A main window whose recorder's dialogs are driven by keys.
struct RecorderDialogs : testing::Test
{
    // Opens the command's dialog and does this in it.
    void open(const char *command, const std::function<void(QWidget &)> &inside)
    {
        test::whenOpened(inside);
        w.run(command);
    }
    static QWidget *focus()
    {
        QApplication::processEvents();
        QWidget *popup = QApplication::activePopupWidget();
        return (popup ? popup : QApplication::activeModalWidget())->focusWidget();
    }
    static void keys(const QList<Qt::Key> &keys)
    {
        for (const Qt::Key key : keys)
            QTest::keyClick(focus(), key);
        QApplication::processEvents();
    }
    static void type(const QByteArray &text)
    {
        for (const char character : text)
            QTest::keyClick(focus(), character);
    }
    // Saves the layout, starts a new one, and loads it again.
    void saveAndReload()
    {
        w.addBar(10, 10);
        w.window.files().saveWorkspace();
        w.design().mnuNew_Click();
        ASSERT_TRUE(w.window.files().load(w.world.state.folders.workspaceFile()));
    }

    test::DesignWindow w;
    recorder::RecorderSettings &settings = w.world.state.settings;
};

TEST_F(RecorderDialogs, bitRateIsShownEverywhereAndComesBack)
{
    const auto shown = [this] { return QStringList{w.text("lblBitRate"), w.action("mnuBitRate").text()}; };
    open("mnuBitRate", [](QWidget &dialog) {
        auto &warning = test::child<QLabel>(dialog, "lblWarning");
        EXPECT_FALSE(warning.isVisible());
        keys({Qt::Key_Right});
        EXPECT_TRUE(warning.isVisible());
        EXPECT_EQ(test::child<QLabel>(dialog, "lblVideoRate").text(), "7168 Kbps");
        EXPECT_EQ(test::child<QLabel>(dialog, "lblUsage").text(), "3.16 GB");
        keys({Qt::Key_Escape});
    });
    EXPECT_EQ(settings.CurrentBitRate, 6);
    open("mnuBitRate", [](QWidget &) { keys({Qt::Key_End, Qt::Key_Return}); });
    EXPECT_EQ(shown(), QStringList(2, "Bit Rate 12 Mbps"));
    w.run("mnuIP");
    saveAndReload();
    EXPECT_EQ(shown(), QStringList(2, "Bit Rate 12 Mbps"));
    EXPECT_TRUE(w.action("mnuIP").isChecked());
    EXPECT_FALSE(w.action("mnuIPB").isChecked());
}

TEST_F(RecorderDialogs, messageRatesAreChosenInTheirCells)
{
    QApplication::setKeyboardInputInterval(60'000); // however slow the machine
    settings.MessageTable[100].name = "Lap number";
    settings.MessageTable[104] = {104, "Lap time", 5, 0, 1}; // an event with a rate
    const recorder::MessageTable before = w.world.state.startMessages = settings.MessageTable;
    const auto change = [](QWidget &dialog) {
        auto &grid = test::child<QTableView>(dialog, "grdInput");
        const auto shown = [&grid](int column) { return grid.model()->index(104, column).data().toString(); };
        test::press(dialog, "cmdSerialOutputToTypically");
        type("lap t");
        EXPECT_EQ(shown(2), "On");
        EXPECT_EQ(shown(3), "Off");
        keys({Qt::Key_Right, Qt::Key_Return, Qt::Key_Up, Qt::Key_Return});
        EXPECT_EQ(shown(3), "On");
        EXPECT_TRUE(grid.hasFocus());
        test::click(*grid.viewport(), grid.visualRect(grid.model()->index(104, 2)).center());
        EXPECT_NE(QApplication::activePopupWidget(), nullptr);
        keys({Qt::Key_Escape}); // puts the list away, not the dialog
    };
    open("mnuSetMsgFrequency", [&change](QWidget &dialog) {
        change(dialog);
        keys({Qt::Key_Escape});
    });
    EXPECT_TRUE(settings.MessageTable == before);
    open("mnuSetMsgFrequency", [&change](QWidget &dialog) {
        change(dialog);
        test::press(dialog, "cmdOk");
    });
    recorder::MessageTable written;
    recorder::readMessageTable(platform::readFile(w.world.state.folders.MessagesFile()), written);
    EXPECT_TRUE(written == settings.MessageTable);
    saveAndReload();
    EXPECT_TRUE(written == settings.MessageTable);
    EXPECT_EQ(written[104], (recorder::MessageEntry{104, "Lap time", 5, 0, 1}));
    EXPECT_EQ(written[18].outputRate, 2);
}

TEST_F(RecorderDialogs, autoStartKeepsWhatFitsBeforeATextThatDoesNot)
{
    using recorder::RecordingTrigger;
    open("mnuAutoStartStopRec", [](QWidget &) { keys({Qt::Key_Escape}); });
    EXPECT_EQ(settings.autoStop, (RecordingTrigger{1})); // chosen by opening
    w.world.prompts.expectMessage("The command could not be completed.\nOverflow");
    open("mnuAutoStartStopRec", [this](QWidget &dialog) {
        keys({Qt::Key_Home, Qt::Key_Tab, Qt::Key_End, Qt::Key_Tab});
        type("12,5x");
        keys({Qt::Key_Tab});
        type("300");
        keys({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab});
        type("7");
        keys({Qt::Key_Return});
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(settings.autoStart, (RecordingTrigger{2, 2, 12.5F, 0}));
        EXPECT_EQ(settings.autoStop, (RecordingTrigger{1, 0, 7, 0})); // values come before times
        test::child<QLineEdit>(dialog, "txtStartTrigerTime").setFocus();
        keys({Qt::Key_Home, Qt::Key_Delete}); // 00
        keys({Qt::Key_Return});
    });
    saveAndReload();
    EXPECT_EQ(settings.autoStart, (RecordingTrigger{2, 2, 12.5F, 0}));
    EXPECT_EQ(settings.autoStop, RecordingTrigger()); // not active
}

TEST_F(RecorderDialogs, chaptersAreMadeAndDeletedInTheGrid)
{
    const std::vector<recorder::ChapterCondition> before{
        {0, 1, 0, 2, 0, 5}, {1, 2, 0, 3, 0, 6}, {2, 3, 0, 10, 1, 7}};
    settings.ChapterList = before;
    const auto change = [](QWidget &dialog) {
        keys({Qt::Key_Down, Qt::Key_Space}); // ticks the second row
        test::press(dialog, "cmdDelete");
        keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return, Qt::Key_End, Qt::Key_Return, Qt::Key_Right});
        type("-4");
        keys({Qt::Key_Return, Qt::Key_Up, Qt::Key_Right, Qt::Key_Return, Qt::Key_Down, Qt::Key_Return});
        keys({Qt::Key_Right, Qt::Key_Return, Qt::Key_Home, Qt::Key_Return}); // the first variable
        test::press(dialog, "chkMarkLapTimerChapters");
        test::child<QComboBox>(dialog, "cmbLapChapterType").setFocus();
        keys({Qt::Key_End});
    };
    open("mnuAutoChapterMark", [&change](QWidget &dialog) {
        change(dialog);
        keys({Qt::Key_Escape});
    });
    EXPECT_EQ(settings.ChapterList, before);
    EXPECT_EQ(settings.LapChapterActive, 0);
    open("mnuAutoChapterMark", [&change](QWidget &dialog) {
        change(dialog);
        keys({Qt::Key_Return});
    });
    saveAndReload();
    EXPECT_EQ(settings.ChapterList, (decltype(before){before[0], before[2], {9, -4, 1, 2, 0, 0}}));
    EXPECT_EQ(settings.LapChapterActive, 1);
    EXPECT_EQ(settings.LapChapterType, 9);
}

TEST_F(RecorderDialogs, gearsComeFromTheirRatios)
{
    const auto before = settings.GearTable;
    const auto change = [this](QWidget &dialog) {
        auto &count = test::child<QLineEdit>(dialog, "txtNumOfGears");
        count.setFocus();
        count.selectAll();
        type("8");
        w.world.prompts.expectMessage("Number of gears should be 1 to 7");
        keys({Qt::Key_Tab});
        type("2");
        test::whenOpened([](QWidget &) {
            for (const char *ratio : {"3", "2", "0", "0", "0", "0", "0", "4", "2"}) {
                type(ratio);
                keys({Qt::Key_Tab});
            }
            keys({Qt::Key_Return});
        });
        test::press(dialog, "cmdGearRatio");
        QApplication::setActiveWindow(&dialog); // as a window manager does
        test::child<QTableView>(dialog, "MSFlexGrid1").setFocus();
        keys({Qt::Key_Down, Qt::Key_Right});
        type("17"); // in the place of 8
        keys({Qt::Key_Return});
    };
    open("mnuGearDisplay", [&change](QWidget &dialog) {
        change(dialog);
        keys({Qt::Key_Escape});
    });
    EXPECT_EQ(settings.GearTable, before);
    open("mnuGearDisplay", [this, &change](QWidget &dialog) {
        change(dialog);
        test::press(dialog, "GearMethodOption_0");
        w.world.prompts.expectMessage(
            "The command could not be completed.\nNo variable is chosen for the gearbox sensor");
        test::press(dialog, "cmdOk");
        test::child<QComboBox>(dialog, "cmbVarID").setFocus();
        keys({Qt::Key_Down});
        test::child<QTableView>(dialog, "MSFlexGrid1").setFocus();
        type("17.5"); // in the place of 17
        QTest::keyClick(focus(), Qt::Key_O, Qt::AltModifier);
    });
    open("mnuRPM", [](QWidget &) {
        type("2.5");
        keys({Qt::Key_Return});
    });
    saveAndReload();
    EXPECT_EQ(settings.GearTable, (decltype(before){{7, 12.5F}, {12.5F, 17.5F}}));
    EXPECT_EQ(std::pair(settings.GearMethod, settings.GearVariable), std::pair(quint8{1}, 2));
    EXPECT_EQ(settings.PulsesPerRevolution, 2.5F);
    open("mnuGearDisplay", [](QWidget &dialog) {
        test::press(dialog, "GearMethodOption_1");
        test::press(dialog, "cmdOk");
    });
    EXPECT_EQ(std::pair(settings.GearMethod, settings.GearVariable), std::pair(quint8{0}, 0));
}

} // namespace
