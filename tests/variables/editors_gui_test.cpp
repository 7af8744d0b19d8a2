#include "support/scripted_prompts.h"
#include "support/widgets.h"
#include "variables/editors/frm_filter_design.h"
#include "variables/editors/frm_variable_transformation.h"
#include "variables/editors/variable_editors.h"

#include <QClipboard>

#include <cmath>
#include <numbers>

namespace {

using namespace variables;
using enum FilterModel;
using enum FilterType;

constexpr int Speed = 2;
constexpr int User = FirstUserVariable;

Catalogue smallCatalogue()
{
    Catalogue catalogue;
    catalogue.units = {
        {}, {"kph", "Kilometres per hour", "-$1$0", "km/h"}, {"mph", "Miles per hour", "x*0.62", "mi"}};
    VariableRecord &speed = catalogue.live[Speed];
    speed.BaseName = "Speed";
    speed.VariableType = 1;
    speed.AllowTransformations = {"kph", "mph"};
    speed.ApplyTransformation = "kph";
    VariableRecord &user = catalogue.live[User];
    user.BaseName = "Slip";
    user.VariableType = 4;
    user.UseCustomTrans = true;
    user.CustomTransformation = "x +\r\n1";
    user.CustomUnits = "%";
    speed.Enabled = user.Enabled = true;
    SetupVariables(catalogue);
    catalogue.staging = catalogue.live;
    return catalogue;
}

struct Editor
{
    explicit Editor(int index) : window(index, catalogue, generated, {prompts, {}}) { test::show(window); }
    template <typename Widget>
    Widget &find(const char *name)
    {
        return test::child<Widget>(window, name);
    }
    VariableRecord &record(int index) { return catalogue.staging[static_cast<std::size_t>(index)]; }
    QString equation() { return find<QPlainTextEdit>("UserFunctionTxt").toPlainText(); }
    void press(const char *button) { find<QPushButton>(button).click(); }
    // Presses the button that opens a window and does `inside` in it.
    void open(const char *button, const std::function<void(QWidget &)> &inside)
    {
        test::whenOpened(inside);
        press(button);
    }

    Catalogue catalogue = smallCatalogue();
    Coefficients generated;
    test::ScriptedPrompts prompts;
    frmVariableTransformation window;
};

TEST(TransformationEditor, choosesAStandardUnit)
{
    Editor editor(Speed);
    EXPECT_EQ(editor.window.windowTitle(), "Set conversion for Speed");
    EXPECT_FALSE(editor.find<QPushButton>("cmdGenerateA").isEnabled());
    EXPECT_EQ(editor.find<QComboBox>("StandardTransCombo").currentText(), "Kilometres per hour");
    QTest::keyClick(&editor.find<QComboBox>("StandardTransCombo"), Qt::Key_Down);
    EXPECT_EQ(editor.find<QLabel>("DisplayUnitsLbl").text(), "[mi]");
    editor.press("OkayCmd");
    EXPECT_FALSE(editor.window.isVisible());
    EXPECT_EQ(editor.record(Speed).DisplayName, "Speed [mi]");
    EXPECT_EQ(editor.record(Speed).CustomTransformation, "0");
    EXPECT_EQ(editor.catalogue.live[Speed].ApplyTransformation, "kph");
}

TEST(TransformationEditor, keepsAWrongEquationOpenAndTheRecordAsItWas)
{
    Editor editor(User);
    EXPECT_EQ(editor.window.windowTitle(), "Edit equation for Slip");
    EXPECT_FALSE(editor.find<QRadioButton>("Option1_0").isEnabled());
    EXPECT_TRUE(editor.find<QPlainTextEdit>("UserFunctionTxt").hasFocus());
    const VariableRecord before = editor.record(User);

    QTest::keyClicks(&editor.find<QPlainTextEdit>("UserFunctionTxt"), "+(");
    editor.find<QLineEdit>("UserUnits").setText("rate");
    editor.prompts.expectMessage(EquationError);
    editor.press("OkayCmd");
    EXPECT_EQ(editor.prompts.shown().back().icon, platform::Icon::Critical);
    EXPECT_TRUE(editor.window.isVisible());
    EXPECT_EQ(editor.record(User), before);

    QTest::keyClicks(&editor.find<QPlainTextEdit>("UserFunctionTxt"), "u)");
    editor.press("OkayCmd");
    EXPECT_FALSE(editor.window.isVisible());
    EXPECT_EQ(editor.record(User).CustomTransformation, "x +\r\n1+(u)");
    EXPECT_EQ(editor.record(User).DisplayName, "Slip [rat]");
}

TEST(TransformationEditor, typesWhatIsPickedFromTheListsAtTheCaret)
{
    Editor editor(User);
    auto &equation = editor.find<QPlainTextEdit>("UserFunctionTxt");
    equation.setPlainText("2");
    auto &variables = editor.find<PickList>("MSFlexGridVarNames");
    equation.moveCursor(QTextCursor::End);
    const QPoint at = variables.visualRect(variables.model()->index(1, 1)).center(); // the meaning
    QTest::mouseClick(variables.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(variables.viewport(), Qt::LeftButton, {}, at);
    EXPECT_TRUE(equation.hasFocus());
    equation.moveCursor(QTextCursor::Start);
    equation.moveCursor(QTextCursor::Right);
    auto &functions = editor.find<PickList>("MathFunctGrid");
    functions.setCurrentCell(4, 0);
    QTest::keyClick(&functions, Qt::Key_Return);
    EXPECT_EQ(editor.equation(), "2^VAR_6001");
    EXPECT_TRUE(editor.window.isVisible());
}

TEST(TransformationEditor, generatesEquations)
{
    Editor editor(User);
    editor.open("cmdGenerateA", [](QWidget &fit) {
        QGuiApplication::clipboard()->setText("0\t1.123456\n1\t3.123456");
        QTest::keyClick(fit.findChild<QLineEdit *>("txtCell"), Qt::Key_V, Qt::ControlModifier);
        test::press(fit, "cmdOk");
    });
    EXPECT_EQ(editor.equation(), "2*var_6001 + 1.12");

    // By hand: what was generated last is the start.
    editor.open("cmdEnterEquation", [](QWidget &manual) {
        const auto box = [&](const char *name) { return manual.findChild<QLineEdit *>(name); };
        EXPECT_EQ(box("PolyCoeffsTxt_0")->text(), "0");
        EXPECT_EQ(box("PolyCoeffsTxt_3")->text(), "1.1235");
        QTest::keyClicks(box("PolyCoeffsTxt_0"), "a1");
        QTest::keyClicks(box("PolyCoeffsTxt_1"), "-2,5e3");
        test::press(manual, "cmdOk");
    });
    EXPECT_EQ(editor.generated.c3, 1);
    editor.open("cmdEnterEquation", [](QWidget &manual) {
        QTest::keyClicks(manual.findChild<QLineEdit *>("PolyCoeffsTxt_0"), "9");
        test::press(manual, "cmdCancel");
    });
    EXPECT_EQ(editor.generated.c3, 1);
    editor.press("OkayCmd");
    EXPECT_EQ(editor.record(User).CustomTransformation, editor.equation()); // compiled
}

// Opens the editor, does `inside` in its window and presses the button.
bool edited(const std::function<bool()> &editor, const char *button,
            const std::function<void(QWidget &)> &inside)
{
    test::whenOpened([=](QWidget &window) {
        inside(window);
        test::press(window, button);
    });
    return editor();
}

TEST(VariableEditors, tellWhetherTheTransformationIsAnotherOne)
{
    Catalogue catalogue = smallCatalogue();
    test::ScriptedPrompts prompts;
    const platform::NumberLocale locale;
    VariableEditors editors(catalogue, prompts, locale);
    const auto edit = [&](const char *button, const QString &units) {
        return edited(
            [&] { return editors.editTransformation(User, nullptr); }, button,
            [units](QWidget &window) { test::child<QLineEdit>(window, "UserUnits").setText(units); });
    };
    EXPECT_FALSE(edit("CancelCmd", "V"));
    EXPECT_FALSE(edit("OkayCmd", "%")); // the line end of the equation stays too
    EXPECT_TRUE(edit("OkayCmd", "V"));
    EXPECT_EQ(catalogue.staging[User].CustomTransformation, "x +\r\n1");
}

struct FilterWindow
{
    explicit FilterWindow(const FilterSettings &filter) : window("Speed", filter, {prompts, {}})
    {
        test::show(window);
    }
    QLineEdit &box(const char *name) { return *window.findChild<QLineEdit *>(name); }
    QComboBox &list(const char *name) { return *window.findChild<QComboBox *>(name); }
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
    EXPECT_EQ(filter.box("txtLowerFrequency").text(), "1");
}

TEST(FilterWindow, bringsTheBoxesWithinBoundsAndDraws)
{
    FilterWindow filter({Butterworth, LowPass, UnusedFrequency, 10, 1, 2});
    ASSERT_EQ(filter.chart->curve().size(), 100);
    EXPECT_EQ(filter.chart->curve().last().x(), 1.98);
    EXPECT_NEAR(filter.chart->curve()[20].y(), 1 / std::numbers::sqrt2, 1e-6); // 10 Hz, the corner

    EXPECT_EQ(filter.type("txtOrder", "7"), "8");
    EXPECT_EQ(filter.type("txtUpperFrequency", "3"), "3");
    EXPECT_EQ(filter.box("txtOrder").text(), "2");
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
        EXPECT_EQ(window.windowTitle(), "Set a calculus mode for channel");
        window.findChild<QComboBox *>("CalcCombo")->setCurrentText("Differentiate variable against distance");
    }));
    EXPECT_EQ(record.calculus, 4);
}

} // namespace
