#include "support/design_window.h"

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
    EXPECT_EQ(texts(gps->child(0)), (QStringList{"Advanced options", "units: []", "Variable Name: Latitude",
                                                 "Smoothed over: 2.5 seconds"}));

    gps->setExpanded(true);
    gps->child(0)->setExpanded(true);
    table[400].SmoothingTime = 0;
    w.design().refresh();
    gps = tree.topLevelItem(2);
    EXPECT_TRUE(gps->isExpanded() && gps->child(0)->isExpanded());
    EXPECT_FALSE(tree.topLevelItem(0)->isExpanded() || gps->child(0)->child(0)->isExpanded());
    EXPECT_EQ(gps->child(0)->child(3)->text(0), "Smoothed over: None Set");
}

TEST(VariableTree, AVariableDroppedOnAControlIsBoundToIt)
{
    DesignWindow w;
    for (controls::OverlayControl *control :
         QList<controls::OverlayControl *>{&w.addGauge(10, 10), &w.addBar(300, 10)}) {
        test::drop(*control, {20, 15}, controls::VariableMime, "3");
        EXPECT_EQ(test::whole(*control, "curVarID"), 3);
    }
    test::drop(w.canvas(), {600, 500}, controls::VariableMime, "3");
    EXPECT_EQ(w.design().controls().size(), 2);
}

} // namespace
