#include "variables/editors/frm_curve_fit.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest/QtTest>

#include <gtest/gtest.h>

namespace {

using namespace variables;

struct FitWindow
{
    FitWindow()
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

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
    void click(int row, int column)
    {
        const QPoint at = grid->visualRect(grid->model()->index(row, column)).center();
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, at);
    }
    void menu(const char *entry) { window.findChild<QAction *>(QLatin1String(entry))->trigger(); }
    QStringList row(int number) const { return grid->cells()[number]; }
    QString label() const { return window.findChild<QLabel *>("lblEquationLabel")->text(); }

    frmCurveFit window{{}, nullptr};
    PointGrid *grid = window.findChild<PointGrid *>("grdInput");
    QLineEdit *cell = window.findChild<QLineEdit *>("txtCell");
    Chart *chart = window.findChild<Chart *>("chtPolyFit");
    QPushButton *ok = window.findChild<QPushButton *>("cmdOk");
};

TEST(CurveFitWindow, isFilledFromTheKeyboard)
{
    FitWindow fit;
    EXPECT_EQ(fit.label(), QStringLiteral("Not enough data"));
    EXPECT_TRUE(fit.cell->hasFocus());
    fit.keys("x1", Qt::Key_Right); // letters are dropped
    fit.keys("1.5", Qt::Key_Return);
    fit.keys("6.5", Qt::Key_Left);
    EXPECT_EQ(fit.label(), QStringLiteral("1.5     std dev=0"));
    fit.keys("3", Qt::Key_Up);
    EXPECT_EQ(fit.label(), QStringLiteral("2.5*x - 1     std dev=0"));
    EXPECT_EQ(fit.cell->text(), QStringLiteral("1"));
    EXPECT_EQ(fit.chart->points(), (QList<QPointF>{{1, 1.5}, {3, 6.5}}));
    EXPECT_EQ(fit.chart->curve().last(), QPointF(3, 6.5));

    fit.keys("9", Qt::Key_Escape); // takes the typing back, not the window
    EXPECT_TRUE(fit.window.isVisible());
    EXPECT_EQ(fit.cell->text(), QStringLiteral("1"));
    fit.keys("2", Qt::Key_Tab); // leaving the grid commits
    EXPECT_FALSE(fit.cell->hasFocus());
    EXPECT_EQ(fit.row(0), (QStringList{"2", "1.5"}));
}

TEST(CurveFitWindow, goesWhereTheMousePoints)
{
    FitWindow fit;
    fit.click(2, 1);
    QTest::keyClicks(fit.cell, "4");
    fit.click(0, 0);
    EXPECT_EQ(fit.cell->geometry(), fit.grid->visualRect(fit.grid->model()->index(0, 0)));

    // A drag out of the current cell selects a block, and the popup menu works on it.
    const QPoint start = fit.cell->rect().center();
    const QPoint end = fit.cell->mapFromParent(fit.grid->visualRect(fit.grid->model()->index(2, 1)).center());
    QTest::mousePress(fit.cell, Qt::LeftButton, {}, start);
    QTest::mouseMove(fit.cell, end);
    QTest::mouseRelease(fit.cell, Qt::LeftButton, {}, end);
    fit.menu("mnuCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("\t\r\n\t\r\n\t4"));
    fit.menu("mnuDelete");
    EXPECT_EQ(fit.row(2), (QStringList{"", ""}));
}

TEST(CurveFitWindow, cutsCopiesAndPastesBlocks)
{
    FitWindow fit;
    fit.paste("0\t1\r\n1\t3\r2\t5\n");
    EXPECT_EQ(fit.label(), QStringLiteral("2*x + 1     std dev=0"));
    EXPECT_EQ(fit.cell->text(), QStringLiteral("0"));

    fit.press(Qt::Key_Right, Qt::ShiftModifier);
    fit.press(Qt::Key_Down, Qt::ShiftModifier);
    fit.press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("0\t1\r\n1\t3"));
    EXPECT_EQ(fit.label(), QStringLiteral("5     std dev=0"));

    fit.press(Qt::Key_Down); // from the second row on
    fit.menu("mnuPaste");
    EXPECT_EQ(fit.row(0), (QStringList{"", ""}));
    EXPECT_EQ(fit.row(2), (QStringList{"1", "3"}));
    fit.press(Qt::Key_Right);
    fit.paste("7\t8"); // the second cell lies beyond the grid
    EXPECT_EQ(fit.row(1), (QStringList{"0", "7"}));
}

TEST(CurveFitWindow, givesNoEquationWhereThereIsNone)
{
    FitWindow fit;
    QString rows;
    for (int i = 0; i < 40; ++i) // more than the grid has
        rows += QStringLiteral("%1\t%2\n").arg(i).arg(2 * i);
    fit.paste(rows);
    EXPECT_EQ(fit.label(), QStringLiteral("Maxmium of 25 data points"));
    EXPECT_FALSE(fit.ok->isEnabled());
    EXPECT_EQ(fit.chart->curve().size(), 0);

    FitWindow same;
    same.paste("1\t1\n1\t2");
    EXPECT_EQ(same.label(), QString());
    EXPECT_FALSE(same.ok->isEnabled());
    EXPECT_EQ(same.chart->points().size(), 2);
}

} // namespace
