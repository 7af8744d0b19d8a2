#include "platform/file_replace.h"
#include "support/design_window.h"
#include "support/widgets.h"
#include "variables/definition_file.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTreeWidget>

namespace {

using test::DesignWindow;

struct VariableTree : testing::Test
{
    static QStringList texts(const QTreeWidgetItem *parent)
    {
        QStringList list;
        for (int i = 0; i < parent->childCount(); ++i)
            list.append(parent->child(i)->text(0));
        return list;
    }
    DesignWindow w;
    QTreeWidget &tree = *w.window.findChild<QTreeWidget *>("VarTree");
    QTreeWidgetItem *standard = tree.topLevelItem(0);
};

TEST_F(VariableTree, ShowsAvailableVariablesInTheirGroupsAndKeepsOpenBranches)
{
    w.world.addVariable(400, "Latitude", 3);
    w.world.addVariable(401, "Longitude", 3);
    variables::VariableTable &table = w.world.state.catalogue.staging;
    table[401].Available = false;
    w.design().refresh();
    ASSERT_EQ(tree.topLevelItemCount(), 9);
    QTreeWidgetItem *gps = tree.topLevelItem(2);
    EXPECT_EQ(gps->text(0), "GPS variables");
    EXPECT_EQ(texts(gps), QStringList{"Latitude  (LATITUDE)"});
    gps->setExpanded(true);
    gps->child(0)->setExpanded(true);

    table[400].SmoothingTime = 2.5F;
    w.design().refresh();
    gps = tree.topLevelItem(2);
    EXPECT_TRUE(gps->child(0)->isExpanded());
    EXPECT_FALSE(gps->child(0)->child(0)->isExpanded());
    EXPECT_EQ(texts(gps->child(0)), (QStringList{"Advanced options", "units: []", "Variable Name: Latitude",
                                                 "Smoothed over: 2.5 seconds"}));
}

TEST_F(VariableTree, APressEditsAndWritesBothFilesAsSoonAsItCan)
{
    const platform::Folders &folders = w.world.state.folders;
    for (QTreeWidgetItem *item = standard; item; item = item->child(0))
        item->setExpanded(true);
    const auto lineOf = [&](int detail) {
        QTreeWidgetItem *speed = tree.topLevelItem(0)->child(0);
        return detail == 0 ? speed->child(0)->child(0) : speed->child(detail);
    };
    bool fails = false;
    const auto answer = [&](int detail, const QString &typed) {
        w.world.prompts.expectInput(typed);
        if (fails)
            w.world.prompts.expectMessage({});
        test::click(*tree.viewport(), tree.visualItemRect(lineOf(detail)).center());
        QCoreApplication::processEvents();
        return lineOf(detail)->text(0);
    };
    for (const char *cancelled : {"", "1e99"})
        EXPECT_EQ(answer(0, cancelled), "Maximum rate of change: None Set");
    EXPECT_FALSE(QFile::exists(folders.variablesFile()));

    // Each file is written for itself; what could not be written is told of and tried again.
    const QString xvr = folders.inUserData("QLM6ConfigTool.XVR");
    QDir().mkpath(xvr + "/in the way");
    fails = true;
    EXPECT_EQ(answer(0, "2,5"), "Maximum rate of change: 2.5");
    EXPECT_TRUE(QFile::exists(folders.variablesFile()));
    fails = false;
    for (const char *noNumber : {"abc", "-", " ", ",e5"})
        EXPECT_EQ(answer(0, noNumber), "Maximum rate of change: 2.5") << noNumber;
    QDir(xvr).removeRecursively();
    EXPECT_EQ(answer(3, "0.5"), "Smoothed over: 0.5 seconds");
    EXPECT_TRUE(QFile::exists(xvr));
    EXPECT_EQ(answer(2, " Pace "), "Variable Name: Pace");
    EXPECT_EQ(tree.currentItem(), lineOf(2));
    EXPECT_EQ(w.world.prompts.shown().back().text, "Please inputs a new name for Speed");

    QFile::remove(folders.variablesFile());
    QDir().mkpath(folders.variablesFile());
    fails = true;
    EXPECT_EQ(answer(3, "abc"), "Smoothed over: None Set");
    QDir().rmdir(folders.variablesFile());
    w.window.close();
    variables::Catalogue stored;
    loadDefinitions(platform::readFile(folders.variablesFile()), stored);
    EXPECT_EQ(stored.live[2].DisplayName, "Pace []");
    EXPECT_EQ(stored.live[2].MaximumROC, 2.5F);
    EXPECT_EQ(stored.live[2].SmoothingTime, 0);
}

TEST_F(VariableTree, TheSearchIsOverWhenItsBoxIsEmpty)
{
    auto &search = *w.window.findChild<QLineEdit *>("txtSearch");
    const auto shown = [&] {
        return QList<bool>{standard->isExpanded(), !standard->child(0)->isHidden(),
                           !standard->child(1)->isHidden(), !tree.topLevelItem(1)->isHidden()};
    };
    QTest::keyClicks(&search, "eN");
    EXPECT_EQ(shown(), (QList<bool>{true, false, true, false}));
    search.clear();
    EXPECT_EQ(shown(), (QList<bool>{false, true, true, true}));
    standard->setExpanded(true);
    search.setText(" ");
    EXPECT_TRUE(standard->isExpanded());
}

TEST_F(VariableTree, AVariableDroppedOnAControlIsBoundToIt)
{
    const auto drops = [&](QPoint at) { return test::drop(w.canvas(), at, surface::VariableMime, "3"); };
    const auto &bar = w.addBar(300, 10);
    EXPECT_TRUE(drops({320, 25}));
    EXPECT_EQ(test::whole(bar, "curVarID"), 3);
    w.design().addControl(controls::ControlType::TrackMap, {7500, 7500});
    EXPECT_FALSE(drops({510, 510})); // shows no variable
    EXPECT_FALSE(drops({100, 300})); // beside both
    EXPECT_EQ(w.design().controls().size(), 2);
}

TEST_F(VariableTree, TheToolsMenuEditsTheChosenVariable)
{
    const QAction &filter = w.action("mnuFilter");
    standard->setExpanded(true);
    tree.setCurrentItem(standard);
    EXPECT_FALSE(filter.isEnabled());
    standard->child(1)->setExpanded(true);
    tree.setCurrentItem(standard->child(1)->child(1)); // a line below it will do
    EXPECT_TRUE(filter.isEnabled());
    test::whenOpened([](QWidget &window) {
        EXPECT_EQ(window.windowTitle(), "Filter design for Engine speed");
        test::child<QComboBox>(window, "cmbModel").setCurrentText("Butterworth Filter");
        test::press(window, "cmdOk");
    });
    w.run("mnuFilter");
    test::whenOpened([](QWidget &window) {
        test::child<QComboBox>(window, "CalcCombo").setCurrentIndex(2);
        test::press(window, "cmdOk");
    });
    w.run("mnuCalculus");
    variables::Catalogue kept;
    loadDefinitions(platform::readFile(w.world.state.folders.variablesFile()), kept);
    EXPECT_EQ(kept.live[3].FilterDesign, 4);
    EXPECT_EQ(kept.live[3].calculus, 2);
}

} // namespace
