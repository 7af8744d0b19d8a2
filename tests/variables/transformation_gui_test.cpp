#include "support/scripted_prompts.h"
#include "variables/editors/frm_variable_transformation.h"
#include "variables/editors/variable_editors.h"

#include <QApplication>
#include <QClipboard>
#include <QTimer>
#include <QtTest/QtTest>

#include <gtest/gtest.h>

namespace {

using namespace variables;

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
    explicit Editor(int index) : window(index, catalogue, generated, {prompts, {}})
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    template <typename Widget>
    Widget &find(const char *name)
    {
        return *window.findChild<Widget *>(QLatin1String(name));
    }
    VariableRecord &record(int index) { return catalogue.staging[static_cast<std::size_t>(index)]; }
    QString equation() { return find<QPlainTextEdit>("UserFunctionTxt").toPlainText(); }
    void press(const char *button) { find<QPushButton>(button).click(); }
    // Presses the button that opens a window and does `inside` in it.
    void open(const char *button, const std::function<void(QWidget &)> &inside)
    {
        bool seen = false;
        QTimer::singleShot(0, &window, [&] {
            seen = true;
            QWidget &opened = *QApplication::activeModalWidget();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&opened));
            inside(opened);
        });
        press(button);
        EXPECT_TRUE(seen);
    }

    Catalogue catalogue = smallCatalogue();
    Coefficients generated;
    test::ScriptedPrompts prompts;
    frmVariableTransformation window;
};

TEST(TransformationEditor, choosesAStandardUnit)
{
    Editor editor(Speed);
    EXPECT_EQ(editor.window.windowTitle(), QStringLiteral("Set conversion for Speed"));
    EXPECT_FALSE(editor.find<QPushButton>("cmdGenerateA").isEnabled());
    EXPECT_EQ(editor.find<QComboBox>("StandardTransCombo").currentText(),
              QStringLiteral("Kilometres per hour"));
    QTest::keyClick(&editor.find<QComboBox>("StandardTransCombo"), Qt::Key_Down);
    EXPECT_EQ(editor.find<QLabel>("DisplayUnitsLbl").text(), QStringLiteral("[mi]"));
    editor.press("OkayCmd");
    EXPECT_FALSE(editor.window.isVisible());
    EXPECT_EQ(editor.record(Speed).DisplayName, QStringLiteral("Speed [mi]"));
    EXPECT_EQ(editor.record(Speed).CustomTransformation, QStringLiteral("0"));
    EXPECT_EQ(editor.catalogue.live[Speed].ApplyTransformation, QStringLiteral("kph"));
}

TEST(TransformationEditor, keepsAWrongEquationOpenAndTheRecordAsItWas)
{
    Editor editor(User);
    EXPECT_EQ(editor.window.windowTitle(), QStringLiteral("Edit equation for Slip"));
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
    EXPECT_EQ(editor.record(User).CustomTransformation, QStringLiteral("x +\r\n1+(u)"));
    EXPECT_EQ(editor.record(User).DisplayName, QStringLiteral("Slip [rat]"));
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
    EXPECT_EQ(editor.equation(), QStringLiteral("2^VAR_6001"));
    EXPECT_TRUE(editor.window.isVisible());
}

TEST(TransformationEditor, generatesEquations)
{
    Editor editor(User);
    editor.open("cmdGenerateA", [](QWidget &fit) {
        QGuiApplication::clipboard()->setText("0\t1.123456\n1\t3.123456");
        QTest::keyClick(fit.findChild<QLineEdit *>("txtCell"), Qt::Key_V, Qt::ControlModifier);
        fit.findChild<QPushButton *>("cmdOk")->click();
    });
    EXPECT_EQ(editor.equation(), QStringLiteral("2*var_6001 + 1.12"));

    // By hand: what was generated last is the start.
    editor.open("cmdEnterEquation", [](QWidget &manual) {
        const auto box = [&](const char *name) { return manual.findChild<QLineEdit *>(QLatin1String(name)); };
        EXPECT_EQ(box("PolyCoeffsTxt_0")->text(), QStringLiteral("0"));
        EXPECT_EQ(box("PolyCoeffsTxt_3")->text(), QStringLiteral("1.1235"));
        QTest::keyClicks(box("PolyCoeffsTxt_0"), "a1");
        QTest::keyClicks(box("PolyCoeffsTxt_1"), "-2,5e3");
        manual.findChild<QPushButton *>("cmdOk")->click();
    });
    EXPECT_EQ(editor.generated.c3, 1);
    editor.open("cmdEnterEquation", [](QWidget &manual) {
        QTest::keyClicks(manual.findChild<QLineEdit *>("PolyCoeffsTxt_0"), "9");
        manual.findChild<QPushButton *>("cmdCancel")->click();
    });
    EXPECT_EQ(editor.generated.c3, 1);
    editor.press("OkayCmd");
    EXPECT_EQ(editor.record(User).CustomTransformation,
              editor.equation()); // compiled, and stored as it was generated
}

TEST(VariableEditors, tellWhetherTheTransformationIsAnotherOne)
{
    Catalogue catalogue = smallCatalogue();
    test::ScriptedPrompts prompts;
    const platform::NumberLocale locale;
    VariableEditors editors(catalogue, prompts, locale);
    const auto edit = [&](const char *button, const QString &units) {
        QTimer::singleShot(0, [&] {
            QWidget &window = *QApplication::activeModalWidget();
            window.findChild<QLineEdit *>("UserUnits")->setText(units);
            window.findChild<QPushButton *>(QLatin1String(button))->click();
        });
        return editors.editTransformation(User, nullptr);
    };
    EXPECT_FALSE(edit("CancelCmd", "V"));
    EXPECT_FALSE(edit("OkayCmd", "%")); // the line end of the equation stays too
    EXPECT_TRUE(edit("OkayCmd", "V"));
    EXPECT_EQ(catalogue.staging[User].CustomTransformation, QStringLiteral("x +\r\n1"));
}

} // namespace
