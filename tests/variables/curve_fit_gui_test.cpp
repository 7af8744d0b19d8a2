#include "support/scripted_prompts.h"
#include "support/widgets.h"
#include "variables/editors/frm_curve_fit.h"

#include <QClipboard>

namespace {

using namespace variables;

struct FitWindow
{
    FitWindow() { test::show(window); }

    void keys(const QString &text, Qt::Key then)
    {
        QTest::keyClicks(cell, text);
        QTest::keyClick(cell, then);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(cell, key, modifiers); }
    void paste(const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        press(Qt::Key_V, Qt::ControlModifier);
    }
    QPoint at(int row, int column) const
    {
        return grid->visualRect(grid->model()->index(row, column)).center();
    }
    void click(int row, int column) { test::click(*grid->viewport(), at(row, column)); }
    void menu(const char *entry) { window.findChild<QAction *>(entry)->trigger(); }
    QStringList row(int number) const { return grid->cells()[number]; }
    QString label() const { return window.findChild<QLabel *>("lblEquationLabel")->text(); }

    test::ScriptedPrompts prompts;
    frmCurveFit window{{prompts, {}}};
    PointGrid *grid = window.findChild<PointGrid *>("grdInput");
    QLineEdit *cell = window.findChild<QLineEdit *>("txtCell");
    Chart *chart = window.findChild<Chart *>("chtPolyFit");
    QPushButton *ok = window.findChild<QPushButton *>("cmdOk");
};

TEST(CurveFitWindow, isFilledFromTheKeyboard)
{
    FitWindow fit;
    EXPECT_EQ(fit.label(), "Not enough data");
    fit.keys("x1", Qt::Key_Right); // letters are dropped
    fit.keys("1.5", Qt::Key_Return);
    fit.keys("6.5", Qt::Key_Left);
    fit.press(Qt::Key_Up);
    fit.press(Qt::Key_Delete);
    QTest::keyClicks(fit.cell, "1");
    EXPECT_TRUE(fit.ok->isEnabled()); // before the cell is left
    fit.press(Qt::Key_Down);
    fit.keys("3", Qt::Key_Up);
    EXPECT_EQ(fit.label(), "2.5*x - 1     std dev=0");
    EXPECT_EQ(fit.chart->points(), (QList<QPointF>{{1, 1.5}, {3, 6.5}}));
    EXPECT_EQ(fit.chart->curve().last(), QPointF(3, 6.5));

    fit.keys("9", Qt::Key_Escape); // takes the typing back, not the window
    EXPECT_TRUE(fit.window.isVisible());
    EXPECT_EQ(fit.cell->text(), "1");
    fit.keys("2", Qt::Key_Tab); // leaving the grid commits
    EXPECT_EQ(fit.row(0), (QStringList{"2", "1.5"}));
}

TEST(CurveFitWindow, cutsCopiesAndPastesBlocks)
{
    FitWindow fit;
    const auto copied = [] { return QGuiApplication::clipboard()->text(); };
    fit.paste("0\t1\r\n1\t3\r2\t5\n");
    EXPECT_EQ(fit.label(), "2*x + 1     std dev=0");
    fit.press(Qt::Key_Right, Qt::ShiftModifier);
    fit.press(Qt::Key_Down, Qt::ShiftModifier);
    fit.press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(copied(), "0\t1\r\n1\t3");
    EXPECT_EQ(fit.label(), "5     std dev=0");

    // A drag out of the current cell selects a block, and the popup menu works on it.
    fit.click(1, 1);
    QTest::keyClicks(fit.cell, "4");
    fit.click(0, 0);
    test::drag(*fit.cell, fit.cell->rect().center(), {fit.at(2, 1) - fit.at(0, 0)});
    fit.menu("mnuCopy");
    EXPECT_EQ(copied(), "\t\r\n\t4\r\n2\t5");

    // A paste fills the block from its first cell, not at its current one, as far as the grid goes.
    fit.click(0, 0);
    test::drag(*fit.grid->viewport(), fit.at(4, 0), {fit.at(5, 1) - fit.at(4, 0)});
    fit.paste("5\t6\t7");
    EXPECT_EQ(fit.row(4) + fit.row(5), (QStringList{"5", "6", "", ""}));
}

TEST(CurveFitWindow, showsTheWholeCurveOrWhyThereIsNone)
{
    FitWindow fit;
    fit.paste("0\t0\n4\t0\n1\t3"); // a parabola up to 4
    EXPECT_GT(fit.chart->range().bottom(), 4);
    fit.paste("1e200\t1\n2\t2");
    EXPECT_EQ(fit.label(), "No curve can be calculated from this table");
    fit.paste(QString("1\t2\n").repeated(40)); // more than the grid has
    EXPECT_EQ(fit.label(), "Maxmium of 25 data points");
    EXPECT_FALSE(fit.ok->isEnabled());
    EXPECT_EQ(fit.chart->curve().size(), 0);
}

} // namespace
