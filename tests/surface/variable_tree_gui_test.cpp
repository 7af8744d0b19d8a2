#include "platform/file_replace.h"
#include "support/design_window.h"
#include "variables/definition_file.h"

#include <QDir>
#include <QLineEdit>
#include <QTreeWidget>

namespace {

using test::DesignWindow;

QStringList texts(const QTreeWidgetItem *parent)
{
    QStringList list;
    for (int i = 0; i < parent->childCount(); ++i)
        list.append(parent->child(i)->text(0));
    return list;
}

TEST(VariableTree, ShowsAvailableVariablesInTheirGroupsAndKeepsOpenBranches)
{
    DesignWindow w;
    w.world.addVariable(400, "Latitude", 3);
    w.world.addVariable(401, "Longitude", 3);
    variables::VariableTable &table = w.world.state.catalogue.staging;
    table[401].Available = false;
    table[400].SmoothingTime = 2.5F;
    w.design().refresh();

    auto &tree = *w.window.findChild<QTreeWidget *>("VarTree");
    ASSERT_EQ(tree.topLevelItemCount(), 9);
    QTreeWidgetItem *gps = tree.topLevelItem(2);
    EXPECT_EQ(gps->text(0), "GPS variables");
    EXPECT_EQ(texts(gps), QStringList{"Latitude  (LATITUDE)"});
    gps->setExpanded(true);
    gps->child(0)->setExpanded(true);
    EXPECT_EQ(texts(gps->child(0)), (QStringList{"Advanced options", "units: []", "Variable Name: Latitude",
                                                 "Smoothed over: 2.5 seconds"}));

    table[400].SmoothingTime = 0;
    w.design().refresh();
    gps = tree.topLevelItem(2);
    EXPECT_TRUE(gps->isExpanded());
    EXPECT_TRUE(gps->child(0)->isExpanded());
    EXPECT_FALSE(tree.topLevelItem(0)->isExpanded());
    EXPECT_FALSE(gps->child(0)->child(0)->isExpanded());
    EXPECT_EQ(gps->child(0)->child(3)->text(0), "Smoothed over: None Set");
}

TEST(VariableTree, APressEditsAndWritesBothFilesAsSoonAsItCan)
{
    DesignWindow w;
    const platform::Folders &folders = w.world.state.folders;
    auto &tree = *w.window.findChild<QTreeWidget *>("VarTree");
    tree.topLevelItem(0)->setExpanded(true);
    tree.topLevelItem(0)->child(0)->setExpanded(true);
    tree.topLevelItem(0)->child(0)->child(0)->setExpanded(true);
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
    const QString noLimit = "Maximum rate of change: None Set";
    EXPECT_EQ(answer(0, ""), noLimit);
    EXPECT_EQ(answer(0, "1e99"), noLimit);
    EXPECT_FALSE(QFile::exists(folders.variablesFile()));

    // Each file is written for itself; what could not be written is told of and tried again.
    const QString xvr = folders.inUserData("QLM6ConfigTool.XVR");
    QDir().mkpath(xvr + "/in the way");
    fails = true;
    EXPECT_EQ(answer(0, "2,5"), "Maximum rate of change: 2.5");
    EXPECT_EQ(w.world.prompts.shown().back().icon, platform::Icon::Critical);
    EXPECT_TRUE(QFile::exists(folders.variablesFile()));
    fails = false;
    for (const char *noNumber : {"abc", "-", " ", ",e5", "--2"})
        EXPECT_EQ(answer(0, noNumber), "Maximum rate of change: 2.5") << noNumber;
    QDir(xvr).removeRecursively();
    EXPECT_EQ(answer(3, "0.5"), "Smoothed over: 0.5 seconds");
    EXPECT_TRUE(QFile::exists(xvr));
    EXPECT_EQ(answer(2, " Pace "), "Variable Name: Pace");
    EXPECT_EQ(tree.currentItem(), lineOf(2));
    EXPECT_EQ(w.world.prompts.shown().back().text, "Please inputs a new name for Speed");
    variables::Catalogue stored;
    loadDefinitions(platform::readFile(folders.variablesFile()), stored);
    EXPECT_EQ(stored.live[2].DisplayName, "Pace []");
    EXPECT_EQ(stored.live[2].MaximumROC, 2.5F);

    QFile::remove(xvr);
    QFile::remove(folders.variablesFile());
    QDir().mkpath(folders.variablesFile());
    fails = true;
    EXPECT_EQ(answer(3, "abc"), "Smoothed over: None Set");
    QDir().rmdir(folders.variablesFile());
    w.window.close();
    loadDefinitions(platform::readFile(folders.variablesFile()), stored);
    EXPECT_EQ(stored.live[2].SmoothingTime, 0);
}

TEST(VariableTree, TheSearchIsOverWhenItsBoxIsEmpty)
{
    DesignWindow w;
    auto &tree = *w.window.findChild<QTreeWidget *>("VarTree");
    QTreeWidgetItem *standard = tree.topLevelItem(0);
    auto &search = *w.window.findChild<QLineEdit *>("txtSearch");
    const auto hidden = [&] {
        return QList<bool>{standard->child(0)->isHidden(), standard->child(1)->isHidden(),
                           tree.topLevelItem(1)->isHidden()};
    };
    QTest::keyClicks(&search, "eN");
    EXPECT_TRUE(standard->isExpanded());
    EXPECT_EQ(hidden(), (QList<bool>{true, false, true}));
    search.clear();
    EXPECT_FALSE(standard->isExpanded());
    EXPECT_EQ(hidden(), (QList<bool>{false, false, false}));
    standard->setExpanded(true);
    search.setText(" ");
    EXPECT_TRUE(standard->isExpanded());
}

// A family that shows no variable.
struct Plain final : controls::ControlOf<controls::ControlValues>
{
    using ControlOf::ControlOf;
    void updatePosition() override {}
    void nudge(int, int) override {}
    void AssignProperties() override {}
    void applyInitialProperties() override {}
    QSizeF startSize() const override { return {}; }
    void paint(controls::Composition &) const override {}
    double complexity() const override { return 0; }

protected:
    const controls::PropertyTable &properties() const override
    {
        static constexpr controls::PropertyTable None;
        return None;
    }
};

TEST(VariableTree, AVariableDroppedOnAControlIsBoundToIt)
{
    DesignWindow w;
    const QList<controls::OverlayControl *> takers{&w.addGauge(10, 10), &w.addBar(300, 10)};
    const auto plain = std::make_shared<Plain>(controls::families().front(), w.design());
    plain->setBox({7500, 7500, 450, 450});
    w.canvas().registry().add(plain);
    w.canvas().showControl(*plain);
    const auto drops = [&](QPoint at) { return test::drop(w.canvas(), at, surface::VariableMime, "3"); };
    for (const controls::OverlayControl *control : takers) {
        EXPECT_TRUE(drops(test::placeOf(*control) + QPoint(20, 15)));
        EXPECT_EQ(test::whole(*control, "curVarID"), 3);
    }
    EXPECT_FALSE(drops({510, 510})); // on the one without a variable
    EXPECT_FALSE(drops({600, 500})); // beside all of them
    EXPECT_EQ(w.design().controls().size(), 3);
}

} // namespace
