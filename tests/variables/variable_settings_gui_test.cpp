#include "support/scripted_prompts.h"
#include "variables/editors/frm_filter_design.h"
#include "variables/editors/variable_editors.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QtTest>

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using namespace variables;
using enum FilterModel;
using enum FilterType;

struct FilterWindow
{
    explicit FilterWindow(const FilterSettings &filter) : window("Speed", filter, {prompts, {}})
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QLineEdit &box(const char *name) { return *window.findChild<QLineEdit *>(QLatin1String(name)); }
    QComboBox &list(const char *name) { return *window.findChild<QComboBox *>(QLatin1String(name)); }
    QString type(const char *name, const QString &text)
    {
        box(name).setFocus();
        box(name).selectAll();
        QTest::keyClicks(&box(name), text);
        QTest::keyClick(&box(name), Qt::Key_Tab);
        return box(name).text();
    }

    test::ScriptedPrompts prompts;
    frmFilterDesign window;
    Chart *chart = window.findChild<Chart *>("chtResponse");
};

TEST(FilterWindow, showsOnlyWhatTheModelAndTheTypeNeed)
{
    FilterWindow filter({None, LowPass, UnusedFrequency, 12, 1, 4});
    EXPECT_FALSE(filter.chart->isVisible());
    EXPECT_FALSE(filter.box("txtOrder").isVisible());
    filter.list("cmbModel").setCurrentText("Butterworth Filter");
    EXPECT_TRUE(filter.chart->isVisible());
    EXPECT_FALSE(filter.box("txtRipple").isVisible());
    filter.list("cmbModel").setCurrentText("Chebyshev Filter");
    EXPECT_TRUE(filter.box("txtRipple").isVisible());

    EXPECT_FALSE(filter.box("txtLowerFrequency").isEnabled());
    EXPECT_EQ(filter.box("txtLowerFrequency").text(), QString()); // no -1
    filter.list("cmbType").setCurrentText("High pass");
    EXPECT_FALSE(filter.box("txtUpperFrequency").isEnabled());
    EXPECT_EQ(filter.box("txtLowerFrequency").text(), QStringLiteral("1"));
}

TEST(FilterWindow, bringsTheBoxesWithinBoundsAndDraws)
{
    FilterWindow filter({Butterworth, LowPass, UnusedFrequency, 10, 1, 2});
    ASSERT_EQ(filter.chart->curve().size(), 100);
    EXPECT_EQ(filter.chart->curve().last().x(), 1.98);
    EXPECT_NEAR(filter.chart->curve()[20].y(), 1 / std::numbers::sqrt2, 1e-6); // 10 Hz, the corner

    EXPECT_EQ(filter.type("txtOrder", "7"), QStringLiteral("8"));
    EXPECT_EQ(filter.type("txtUpperFrequency", "3"), QStringLiteral("3"));
    EXPECT_EQ(filter.box("txtOrder").text(), QStringLiteral("2"));
}

// Opens the editor, does `inside` in its window and presses the button.
bool edited(const std::function<bool()> &editor, const char *button,
            const std::function<void(QWidget &)> &inside)
{
    QTimer::singleShot(0, [&] {
        QWidget &window = *QApplication::activeModalWidget();
        inside(window);
        window.findChild<QPushButton *>(QLatin1String(button))->click();
    });
    return editor();
}

TEST(VariableEditors, storeFilterAndCalculus)
{
    Catalogue catalogue;
    VariableRecord &record = catalogue.staging[2];
    record.FilterLowVal = -1;
    test::ScriptedPrompts prompts;
    const platform::NumberLocale locale;
    VariableEditors editors(catalogue, prompts, locale);

    const auto filter = [&] { return editors.editFilter(2, nullptr); };
    const auto choose = [](QWidget &window) {
        window.findChild<QComboBox *>("cmbModel")->setCurrentIndex(2);
        window.findChild<QComboBox *>("cmbType")->setCurrentIndex(1);
        window.findChild<QLineEdit *>("txtLowerFrequency")->setText("12,5");
        window.findChild<QLineEdit *>("txtOrder")->setText("5");
    };
    EXPECT_FALSE(edited(filter, "cmdCancel", choose));
    EXPECT_EQ(record.FilterDesign, 0);
    EXPECT_TRUE(edited(filter, "cmdOk", choose));
    EXPECT_EQ(record.FilterDesign, 5);
    EXPECT_EQ(record.FilterLowVal, 12.5F);
    EXPECT_EQ(record.FilterHighVal, -1);
    EXPECT_EQ(record.FilterOrder, 4);
    EXPECT_FALSE(edited(filter, "cmdOk", [](QWidget &) {}));

    const auto calculus = [&] { return editors.editCalculus(2, nullptr); };
    EXPECT_TRUE(edited(calculus, "cmdOk", [](QWidget &window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Set a calculus mode for channel"));
        window.findChild<QComboBox *>("CalcCombo")->setCurrentText("Differentiate variable against distance");
    }));
    EXPECT_EQ(record.calculus, 4);
}

} // namespace
