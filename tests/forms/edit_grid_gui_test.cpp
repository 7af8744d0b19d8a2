#include "forms/edit_grid.h"
#include "support/widgets.h"

#include <QComboBox>
#include <QLineEdit>

namespace {

TEST(EditGrid, editsByTextBoxAndListAndLeavesTheOtherColumnsAlone)
{
    forms::EditGrid grid(3, {"Number", "Rate", "Value"});
    auto *rates = new QComboBox;
    rates->addItems({"fast", "slow"});
    auto *value = new QLineEdit;
    grid.setCell(0, 1, "slow");
    grid.setEditor(rates, {1});
    grid.setEditor(value, {2});
    const auto shown = [&] { return QList<bool>{rates->isVisible(), value->isVisible()}; };
    test::show(grid);
    EXPECT_EQ(shown(), (QList<bool>{false, false})); // the first column has no editor

    grid.setCurrentCell(0, 1);
    EXPECT_EQ(shown(), (QList<bool>{true, false}));
    EXPECT_EQ(rates->currentText(), "slow");
    EXPECT_EQ(rates->geometry(), grid.visualRect(grid.currentIndex()));
    grid.setFocus();
    QTest::keyClick(rates, Qt::Key_Up);
    QTest::keyClick(rates, Qt::Key_Right);
    EXPECT_EQ(shown(), (QList<bool>{false, true}));
    QTest::keyClicks(value, "12");
    QTest::keyClick(value, Qt::Key_Return);
    EXPECT_EQ(grid.cells(), (QList<QStringList>{{"", "fast", "12"}, {"", "", ""}, {"", "", ""}}));
    QTest::keyClicks(value, "9");
    QTest::keyClick(value, Qt::Key_Escape);
    EXPECT_EQ(value->text(), "");
}

} // namespace
