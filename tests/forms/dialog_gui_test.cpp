#include "forms/columns.h"
#include "forms/dialog_of.h"
#include "support/scripted_prompts.h"
#include "support/widgets.h"

#include <array>

namespace {

using forms::Verdict;
using platform::Icon;

struct Box
{
    float size = 1.0F / 3;
    quint8 alpha = 100; // 39 percent would come back as 99
    qint32 kind = 7;    // no row has it
    quint8 limited = 0;
    qint16 limit = 5;
    common::Colour edge = common::Colour::fromFile({81, 90, 239});
    QString note = "a\nb\r\nc"; // two kinds of line end

    bool operator==(const Box &) const = default;
};

std::optional<Verdict> validateBox(const forms::Typed &typed)
{
    if (typed.number("txtLimit") > 720)
        return Verdict{Verdict::Kind::Silent, Icon::None, {}, {{"txtLimit", "720"}}};
    if (typed.text("txtSize") == "0")
        return forms::refusal("Size can't be 0", Icon::Critical);
    if (typed.isOn("chkLimit") && static_cast<int>(typed.number("txtLimit")) % 8 != 0)
        return Verdict{Verdict::Kind::OkCancel, Icon::Critical, "Correct it?", {{"txtLimit", "16"}}};
    return std::nullopt;
}

class BoxDialog final : public forms::DialogOf<Box>
{
public:
    explicit BoxDialog(platform::Prompts &prompts) : DialogOf("Box", {}, {prompts, {",", ";"}})
    {
        addGroup("General");
        number(&Box::size, {"txtSize", "&Size", "mm"});
        percent(&Box::alpha, {"txtAlfa", "&Opacity", "%"});
        choice(&Box::kind, {"cmbKind", "&Kind"}, {forms::none(), {"One", 1}, {"Two", 2}});
        const auto &limited = check(&Box::limited, "chkLimit", "&Limited");
        enableBy(limited, {&number(&Box::limit, {"txtLimit", "L&imit"})});
        colour(&Box::edge, {"picEdge", "&Edge"}, "cmdResetEdge", 0xFF);
        addRow(bind(add<forms::TextArea>("txtNote"), &Box::note), "&Note");
        finish({{"cmdOk", "&OK", forms::Press::Accept},
                {"cmdApply", "&Apply", forms::Press::Apply},
                {"cmdCancel", "&Cancel", forms::Press::Cancel}});
        QDialog::show();
    }

    Box taken;
    int applies = 0;

protected:
    std::optional<Verdict> validate(const forms::Typed &typed) const override { return validateBox(typed); }
    void set(Box &box) override { taken = box; }
    void applied() override { ++applies; }
};

struct Dialogs : testing::Test
{
    template <typename Widget>
    Widget &find(const char *name)
    {
        return test::child<Widget>(dialog, name);
    }
    void press(const char *name) { test::press(dialog, name); }
    void type(const char *name, const QString &text) { find<QLineEdit>(name).setText(text); }

    test::ScriptedPrompts prompts;
    BoxDialog dialog{prompts};
};

TEST_F(Dialogs, keepWhatWasNotTouchedExactly)
{
    EXPECT_EQ(find<QLineEdit>("txtSize").text() + ' ' + find<QLineEdit>("txtAlfa").text(), "0,33333334 39");
    EXPECT_EQ(find<QComboBox>("cmbKind").currentIndex(), -1);
    press("cmdApply");
    EXPECT_EQ(std::pair(dialog.isVisible(), dialog.applies), std::pair(true, 1));
    EXPECT_EQ(dialog.taken, Box());
    EXPECT_EQ(dialog.taken.edge.yuv(), (common::Yuv{81, 90, 239}));
}

TEST_F(Dialogs, takeWhatWasTypedAndChosenAndStayOpenForMore)
{
    type("txtSize", "2,5");
    type("txtAlfa", "50");
    find<QComboBox>("cmbKind").setCurrentIndex(2);
    find<QPlainTextEdit>("txtNote").setPlainText("x\ny");
    press("cmdApply");
    const Box &box = dialog.taken;
    EXPECT_EQ(std::tuple(box.size, box.alpha, box.kind, box.note),
              std::tuple(2.5F, 128, 2, QString("x\r\ny")));
    type("txtSize", "9");
    press("cmdCancel");
    EXPECT_EQ(std::pair(dialog.isVisible(), box.size), std::pair(false, 2.5F));
}

TEST_F(Dialogs, showTheColourThatWasChosenUntilItIsReset)
{
    auto &edge = find<forms::ColourSwatch>("picEdge");
    for (const auto &answer : {std::optional<QRgb>(qRgb(1, 2, 3)), std::optional<QRgb>()}) {
        prompts.expectColour(answer);
        edge.click();
        EXPECT_EQ(edge.colour(), 0x030201u);
    }
    EXPECT_EQ(edge.grab().toImage().pixelColor(20, 12), QColor(1, 2, 3));
    press("cmdResetEdge");
    EXPECT_EQ(edge.colour(), 0xFFu);
}

TEST_F(Dialogs, askRulesInOrderAndCorrectWhatIsAgreed)
{
    const auto &limit = find<QLineEdit>("txtLimit");
    EXPECT_FALSE(limit.isEnabled());
    press("chkLimit");
    EXPECT_TRUE(limit.isEnabled());
    type("txtLimit", "900");
    type("txtSize", "0");
    prompts.expectMessage("Size can't be 0");
    press("cmdOk");
    EXPECT_EQ(prompts.shown().back().icon, Icon::Critical);
    EXPECT_EQ(limit.text(), "720"); // without a word

    type("txtLimit", "13");
    type("txtSize", "1");
    prompts.expectConfirm("Correct it?", false);
    press("cmdOk");
    EXPECT_EQ(std::pair(limit.text(), dialog.applies), std::pair(QString("13"), 0));
    prompts.expectConfirm("Correct it?", true);
    press("cmdOk");
    EXPECT_EQ(dialog.taken.limit, 16);
}

TEST_F(Dialogs, writeNothingWhereAFieldDoesNotFit)
{
    type("txtLimit", "7");
    for (const auto &[field, text, fitting] :
         {std::array{"txtAlfa", "101", "100"}, {"txtSize", "1e99", "2"}, {"txtLimit", "-40000", "7"}}) {
        type(field, text);
        prompts.expectMessage({});
        press("cmdOk");
        EXPECT_TRUE(dialog.isVisible()) << text;
        EXPECT_EQ(dialog.taken, Box()) << text;
        type(field, fitting);
    }
}

TEST_F(Dialogs, shareNoMnemonic)
{
    QList<QKeySequence> keys;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        keys += QKeySequence::mnemonic(label->text());
    for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>())
        keys += QKeySequence::mnemonic(button->text());
    keys.removeAll({});
    EXPECT_EQ(QSet<QKeySequence>(keys.begin(), keys.end()).size(), keys.size());
}

// Higher than a small screen, with a focus that goes down one column after the other.
class TallDialog final : public forms::DialogOf<Box>
{
public:
    explicit TallDialog(platform::Prompts &prompts) : DialogOf("Tall", Box(), {prompts, {}})
    {
        for (int row = 0; row < 48; ++row) {
            if (row % 12 == 0)
                addGroup("Group");
            number(&Box::limit, {"txt", "&Number"});
        }
        finish(forms::okAndCancel());
        QDialog::show();
    }
};

TEST(Columns, keepATallDialogOnASmallScreen)
{
    test::ScriptedPrompts prompts;
    TallDialog dialog(prompts);
    EXPECT_EQ(dialog.size().boundedTo({1280, 760}), dialog.size());
    QWidget *field = dialog.findChild<QLineEdit *>();
    for (QPoint last; field->objectName() == "txt"; field = field->nextInFocusChain()) {
        const QPoint place = field->mapTo(&dialog, QPoint());
        EXPECT_TRUE(place.y() > last.y() || place.x() > last.x());
        last = place;
    }
}

// A field that is too wide, above one that is too high.
class WideDialog final : public forms::DialogOf<Box>
{
public:
    explicit WideDialog(platform::Prompts &prompts) : DialogOf("Wide", Box(), {prompts, {}})
    {
        number(&Box::limit, {"txtFirst", "&First"}).box().setMinimumWidth(2000);
        number(&Box::limit, {"txtLast", "&Last"}).box().setMinimumHeight(2000);
        finish(forms::okAndCancel());
        test::show(*this);
    }
};

TEST(SmallScreen, scrollsToTheFieldWithTheKeysAndKeepsTheButtonsInSight)
{
    test::ScriptedPrompts prompts;
    WideDialog dialog(prompts);
    EXPECT_EQ(dialog.size().boundedTo(dialog.screen()->availableSize()), dialog.size());
    EXPECT_FALSE(test::child<QPushButton>(dialog, "cmdOk").visibleRegion().isEmpty());
    QTest::keyClick(&test::child<QLineEdit>(dialog, "txtFirst"), Qt::Key_Tab);
    const auto &last = test::child<QLineEdit>(dialog, "txtLast");
    EXPECT_TRUE(last.hasFocus());
    EXPECT_FALSE(last.visibleRegion().isEmpty());
}

TEST(Columns, areFewAndAlmostEqual)
{
    EXPECT_EQ(forms::columnSizes({200, 200, 200}, 10, 700), (std::vector<int>{3}));
    EXPECT_EQ(forms::columnSizes({300, 100, 100, 300}, 10, 700), (std::vector<int>{2, 2}));
    EXPECT_EQ(forms::columnSizes({600, 100, 100}, 10, 700), (std::vector<int>{1, 2}));
    EXPECT_EQ(forms::columnSizes({900, 100}, 10, 700), (std::vector<int>{1, 1}));
}

} // namespace
