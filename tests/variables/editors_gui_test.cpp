#include "support/scripted_prompts.h"
#include "support/widgets.h"
#include "variables/editors/frm_filter_design.h"
#include "variables/editors/frm_variable_transformation.h"
#include "variables/editors/variable_editors.h"

#include <QClipboard>

#include <numbers>

namespace {

using namespace variables;

constexpr int Speed = 2;
constexpr int User = FirstUserVariable;

Catalogue smallCatalogue()
{
    Catalogue catalogue;
    catalogue.units = {
        {}, {"kph", "Kilometres per hour", "-$1$0", "km/h"}, {"mph", "Miles per hour", "x*0.62", "mi"}};
    VariableRecord &speed = catalogue.live[Speed], &user = catalogue.live[User];
    speed.BaseName = "Speed";
    speed.VariableType = 1;
    speed.AllowTransformations = {"kph", "mph", "lost"};
    speed.ApplyTransformation = "kph";
    user.BaseName = "Slip";
    user.VariableType = 4;
    user.UseCustomTrans = true;
    user.CustomTransformation = "x +\r\n1";
    user.CustomUnits = "%";
    speed.Enabled = user.Enabled = true;
    SetupVariables(catalogue);
    return catalogue;
}

struct Editors : testing::Test
{
    // Opens the editor, does `inside` in its window and tells whether the record is another one.
    bool edited(bool (VariableEditors::*editor)(int, QWidget *), const std::function<void(QWidget &)> &inside)
    {
        test::whenOpened(inside);
        return (editors.*editor)(User, nullptr);
    }
    bool transformed(const std::function<void(QWidget &)> &inside)
    {
        return edited(&VariableEditors::editTransformation, inside);
    }
    static QPlainTextEdit &equation(QWidget &window)
    {
        return test::child<QPlainTextEdit>(window, "UserFunctionTxt");
    }

    Catalogue catalogue = smallCatalogue();
    VariableRecord &record = catalogue.staging[User];
    test::ScriptedPrompts prompts;
    const platform::NumberLocale locale{",", ";"};
    VariableEditors editors{catalogue, prompts, locale};
};

TEST_F(Editors, chooseAStandardUnit)
{
    test::whenOpened([](QWidget &window) {
        auto &units = test::child<QComboBox>(window, "StandardTransCombo");
        EXPECT_FALSE(test::child<QPushButton>(window, "cmdGenerateA").isEnabled());
        EXPECT_EQ(units.itemText(2), "lost");
        QTest::keyClick(&units, Qt::Key_Down);
        EXPECT_EQ(test::child<QLabel>(window, "DisplayUnitsLbl").text(), "[mi]");
        test::press(window, "OkayCmd");
    });
    EXPECT_TRUE(editors.editTransformation(Speed, nullptr));
    EXPECT_EQ(catalogue.staging[Speed].DisplayName, "Speed [mi]");
    EXPECT_EQ(catalogue.staging[Speed].CustomTransformation, "0");
}

TEST_F(Editors, keepAWrongEquationOpenAndTheRecordAsItWas)
{
    const VariableRecord before = record;
    EXPECT_FALSE(transformed([](QWidget &window) { test::press(window, "OkayCmd"); })); // the line end stays
    EXPECT_TRUE(transformed([&](QWidget &window) {
        EXPECT_FALSE(test::child<QRadioButton>(window, "Option1_0").isEnabled());
        QTest::keyClicks(QApplication::focusWidget(), "+(");
        test::child<QLineEdit>(window, "UserUnits").setText("rate");
        prompts.expectMessage(EquationError);
        test::press(window, "OkayCmd");
        EXPECT_EQ(prompts.shown().back().icon, platform::Icon::Critical);
        EXPECT_EQ(record, before);
        QTest::keyClicks(&equation(window), "2,5*u)");
        test::press(window, "OkayCmd");
    }));
    EXPECT_EQ(record.CustomTransformation, "x +\r\n1+(2,5*u)");
    EXPECT_EQ(record.DisplayName, "Slip [rat]");
}

TEST_F(Editors, typeWhatIsPickedFromTheListsAtTheCaret)
{
    EXPECT_FALSE(transformed([](QWidget &window) {
        equation(window).setPlainText("2");
        equation(window).moveCursor(QTextCursor::End);
        auto &variables = test::child<PickList>(window, "MSFlexGridVarNames");
        const QPoint at = variables.visualRect(variables.model()->index(1, 1)).center(); // the meaning
        QTest::mouseClick(variables.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(variables.viewport(), Qt::LeftButton, {}, at);
        equation(window).moveCursor(QTextCursor::Start);
        equation(window).moveCursor(QTextCursor::Right);
        auto &functions = test::child<PickList>(window, "MathFunctGrid");
        functions.setCurrentCell(4, 0);
        QTest::keyClick(&functions, Qt::Key_Return);
        EXPECT_EQ(equation(window).toPlainText(), "2^VAR_6001");
        test::press(window, "CancelCmd");
    }));
}

TEST_F(Editors, generateEquations)
{
    transformed([this](QWidget &window) {
        test::whenOpened([](QWidget &fit) {
            QGuiApplication::clipboard()->setText("0\t1.123456\n1\t3.123456");
            QTest::keyClick(&test::child<QLineEdit>(fit, "txtCell"), Qt::Key_V, Qt::ControlModifier);
            test::press(fit, "cmdOk");
        });
        test::press(window, "cmdGenerateA");
        EXPECT_EQ(equation(window).toPlainText(), "2*var_6001 + 1.12");
        // By hand: what was generated last is the start.
        for (const auto &[start, button] : {std::pair("0", "cmdOk"), {"1", "cmdCancel"}, {"1", "cmdOk"}}) {
            test::whenOpened([=](QWidget &manual) {
                auto &cubic = test::child<QLineEdit>(manual, "PolyCoeffsTxt_0");
                EXPECT_EQ(test::child<QLineEdit>(manual, "PolyCoeffsTxt_3").text(), "1.1235");
                EXPECT_EQ(cubic.text(), start);
                QTest::keyClicks(&cubic, *start == '0' ? "a1" : "");
                test::press(manual, button);
            });
            test::press(window, "cmdEnterEquation");
        }
        test::press(window, "OkayCmd");
    });
    EXPECT_EQ(record.CustomTransformation.toStdString(), "var_6001^3 + 2*var_6001 + 1.12");
}

TEST_F(Editors, designAFilterAndSetACalculus)
{
    record.FilterLowVal = UnusedFrequency;
    record.FilterHighVal = 10;
    const auto design = [this](const char *button) {
        return edited(&VariableEditors::editFilter, [button](QWidget &window) {
            const auto &chart = test::child<Chart>(window, "chtResponse");
            auto &lower = test::child<QLineEdit>(window, "txtLowerFrequency");
            const auto &ripple = test::child<QLineEdit>(window, "txtRipple");
            EXPECT_FALSE(chart.isVisible());
            test::child<QComboBox>(window, "cmbModel").setCurrentText("Butterworth Filter");
            EXPECT_FALSE(ripple.isVisible());
            ASSERT_EQ(chart.curve().size(), 100);
            EXPECT_NEAR(chart.curve()[20].y(), 1 / std::numbers::sqrt2, 1e-6); // 10 Hz, the corner
            test::child<QComboBox>(window, "cmbModel").setCurrentText("Chebyshev Filter");
            EXPECT_TRUE(ripple.isVisible());
            EXPECT_EQ(lower.text(), QString()); // no -1
            test::child<QComboBox>(window, "cmbType").setCurrentText("High pass");
            EXPECT_FALSE(test::child<QLineEdit>(window, "txtUpperFrequency").isEnabled());
            EXPECT_EQ(lower.text(), "1");
            lower.setText("12,5");
            test::child<QLineEdit>(window, "txtOrder").setText("5");
            test::press(window, button);
        });
    };
    EXPECT_FALSE(design("cmdCancel"));
    EXPECT_TRUE(design("cmdOk"));
    EXPECT_EQ(record.FilterDesign, 5);
    EXPECT_EQ(record.FilterLowVal, 12.5F);
    EXPECT_EQ(record.FilterHighVal, -1);
    EXPECT_EQ(record.FilterOrder, 4);
    EXPECT_FALSE(edited(&VariableEditors::editFilter, [](QWidget &window) { test::press(window, "cmdOk"); }));
    EXPECT_TRUE(edited(&VariableEditors::editCalculus, [](QWidget &window) {
        test::child<QComboBox>(window, "CalcCombo").setCurrentText("Differentiate variable against distance");
        test::press(window, "cmdOk");
    }));
    EXPECT_EQ(record.calculus, 4);
}

} // namespace
