#include "forms/columns.h"
#include "forms/dialog_of.h"
#include "forms/font_field.h"
#include "forms/picture_field.h"
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
    qint8 hue = -1;
    common::Colour edge = common::Colour::fromFile({81, 90, 239});
    common::Colour ground{0xFFFF};
    QString note = "a\nb\r\nc"; // two kinds of line end
    QString face = "No Such Face";
    qint16 points = 0;
    quint8 bold = 2, italic = 0, strikethrough = 0, underline = 0;
    forms::ChosenPicture picture;

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
    if (typed.text("txtNote") == "ask")
        return Verdict{Verdict::Kind::YesNo, Icon::Question, "Asked?", {{"txtNote", "answered"}}};
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
        slider(&Box::hue, {"sldHue", "&Hue"}, -128, 127);
        addGroup("Colours");
        colour(&Box::edge, {"picEdge", "&Edge"}, "cmdResetEdge", 0xFF);
        colour(&Box::ground, {"picGround", "&Ground"}, "cmdResetGround", 0xFFFFFF);
        addGroup("Texts");
        auto &note = bind(add<forms::TextArea>("txtNote"), &Box::note);
        addRow(note, "&Note");
        addRow(bind(add<forms::FontField>("cmdFont", "lblFont", this->prompts()),
                    [](Box &box) {
                        return forms::FontParts<qint16, quint8>{box.face,   box.points,        box.bold,
                                                                box.italic, box.strikethrough, box.underline};
                    }),
               "Font");
        const auto taker = [](const QString &path) {
            QImage picture(200, 100, QImage::Format_RGB32);
            picture.fill(Qt::red);
            return path == "/red.bmp" ? picture : QImage();
        };
        auto &picture = add<forms::PictureField>("cmdBrowse", "picPreview", platform::FileRequest(),
                                                 this->prompts(), taker);
        picture.addButton("cmdExamples", "Examples...", {{}, "/examples", {}, {}, {}});
        addRow(bind(picture, &Box::picture), "Picture");
        finish({{"cmdOk", "&OK", forms::Press::Accept},
                {"cmdApply", "&Apply", forms::Press::Apply},
                {"cmdCancel", "&Cancel", forms::Press::Cancel}});
        QDialog::show();
    }

    template <typename Widget>
    Widget &find(const char *name)
    {
        return test::child<Widget>(*this, name);
    }
    void press(const char *name) { test::press(*this, name); }
    void type(const char *name, const QString &text) { find<QLineEdit>(name).setText(text); }

    Box taken;
    int applies = 0;

protected:
    std::optional<Verdict> validate(const forms::Typed &typed) const override { return validateBox(typed); }
    void set(Box &box) override { taken = box; }
    void applied() override { ++applies; }
};

struct Dialogs : testing::Test
{
    test::ScriptedPrompts prompts;
    BoxDialog dialog{prompts};
};

TEST_F(Dialogs, keepWhatWasNotTouchedExactly)
{
    EXPECT_EQ(dialog.find<QLineEdit>("txtSize").text(), "0,33333334");
    EXPECT_EQ(dialog.find<QLineEdit>("txtAlfa").text(), "39");
    EXPECT_EQ(dialog.find<QComboBox>("cmbKind").currentIndex(), -1);
    dialog.press("cmdApply");
    EXPECT_EQ(std::pair(dialog.isVisible(), dialog.applies), std::pair(true, 1));
    EXPECT_EQ(dialog.taken, Box());
    EXPECT_EQ(dialog.taken.edge.yuv(), (common::Yuv{81, 90, 239}));
}

TEST_F(Dialogs, takeWhatWasTypedAndChosenAndStayOpenForMore)
{
    dialog.type("txtSize", "2,5");
    dialog.type("txtAlfa", "50");
    dialog.find<QComboBox>("cmbKind").setCurrentIndex(2);
    dialog.find<QSlider>("sldHue").setValue(-100);
    dialog.find<QPlainTextEdit>("txtNote").setPlainText("x\ny");
    prompts.expectFont(QFont("Arial", 20, QFont::Bold, true));
    dialog.press("cmdFont");
    prompts.expectOpenFile("/red.bmp");
    dialog.press("cmdBrowse");
    for (const char *path : {"", "/none.bmp"}) { // cancelled, not taken
        prompts.expectOpenFile(path);
        dialog.press("cmdExamples");
    }
    EXPECT_EQ(prompts.lastFileRequest().folder, "/examples");
    EXPECT_EQ(dialog.find<QLabel>("lblFont").text(), "Arial - Bold Italic - 20");
    EXPECT_EQ(dialog.find<QLabel>("picPreview").pixmap(Qt::ReturnByValue).size(), QSize(160, 80));
    dialog.press("cmdApply");
    const Box &box = dialog.taken;
    EXPECT_EQ(box.size, 2.5F);
    EXPECT_EQ(QList<int>({box.alpha, box.kind, box.hue}), QList<int>({128, 2, -100}));
    EXPECT_EQ(box.note + box.picture.path, "x\r\ny/red.bmp");
    EXPECT_EQ(QList<int>({box.points, box.bold, box.italic, box.underline}), QList<int>({20, 1, 1, 0}));
    EXPECT_EQ(box.face, "Arial");

    dialog.type("txtSize", "9");
    dialog.press("cmdCancel");
    EXPECT_EQ(std::pair(dialog.isVisible(), box.size), std::pair(false, 2.5F));
}

TEST_F(Dialogs, giveEachSwatchItsOwnReset)
{
    auto &edge = dialog.find<forms::ColourSwatch>("picEdge");
    auto &ground = dialog.find<forms::ColourSwatch>("picGround");
    for (const auto &answer : {std::optional<QRgb>(qRgb(1, 2, 3)), std::optional<QRgb>()}) {
        prompts.expectColour(answer);
        ground.click();
        EXPECT_EQ(ground.colour(), 0x030201u);
    }
    EXPECT_EQ(ground.grab().toImage().pixelColor(20, 12), QColor(1, 2, 3));
    edge.setColour(0);
    dialog.press("cmdResetGround");
    EXPECT_EQ(std::pair(edge.colour(), ground.colour()), std::pair(0U, 0xFFFFFFU));
    dialog.press("cmdResetEdge");
    EXPECT_EQ(std::pair(edge.colour(), ground.colour()), std::pair(0xFFU, 0xFFFFFFU));
}

TEST_F(Dialogs, asRulesInOrderAndCorrectWhatIsAgreed)
{
    const auto &limit = dialog.find<QLineEdit>("txtLimit");
    EXPECT_FALSE(limit.isEnabled());
    dialog.find<QCheckBox>("chkLimit").click();
    EXPECT_TRUE(limit.isEnabled());
    dialog.type("txtLimit", "900");
    dialog.type("txtSize", "0");
    prompts.expectMessage("Size can't be 0");
    dialog.press("cmdOk");
    EXPECT_EQ(prompts.shown().back().icon, Icon::Critical);
    EXPECT_EQ(limit.text(), "720"); // without a word

    dialog.type("txtLimit", "13");
    dialog.type("txtSize", "1");
    prompts.expectConfirm("Correct it?", false);
    dialog.press("cmdOk");
    EXPECT_EQ(std::pair(limit.text(), dialog.applies), std::pair(QString("13"), 0));
    dialog.find<QPlainTextEdit>("txtNote").setPlainText("ask");
    prompts.expectConfirm("Correct it?", true);
    prompts.expectQuestion("Asked?", true);
    dialog.press("cmdOk");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.taken.limit, 16);
    EXPECT_EQ(dialog.taken.note, "answered");
}

TEST_F(Dialogs, writeNothingWhereAFieldDoesNotFit)
{
    dialog.type("txtLimit", "7");
    for (const auto &[field, text, fitting] :
         {std::array{"txtAlfa", "101", "100"}, {"txtSize", "1e99", "2"}, {"txtLimit", "-40000", "7"}}) {
        dialog.type(field, text);
        prompts.expectMessage({});
        dialog.press("cmdOk");
        EXPECT_TRUE(dialog.isVisible()) << text;
        EXPECT_EQ(dialog.taken, Box()) << text;
        dialog.type(field, fitting);
    }
}

TEST_F(Dialogs, shareNoMnemonic)
{
    QStringList keys;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        keys += QKeySequence::mnemonic(label->text()).toString();
    for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>())
        keys += QKeySequence::mnemonic(button->text()).toString();
    keys.removeAll(QString());
    const qsizetype all = keys.size();
    EXPECT_EQ(keys.removeDuplicates(), 0) << all;
    EXPECT_EQ(dialog.find<QPushButton>("cmdOk").text(), "&OK");
}

// Higher than a small screen, with a focus that goes down one column after the other.
class TallDialog final : public forms::DialogOf<Box>
{
public:
    explicit TallDialog(platform::Prompts &prompts) : DialogOf("Tall", Box(), {prompts, {}})
    {
        for (int group = 0; group < 4; ++group) {
            addGroup("Group");
            for (int row = 0; row < 12; ++row)
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
    EXPECT_LE(dialog.height(), 760);
    EXPECT_LE(dialog.width(), 1280);
    QWidget *field = dialog.findChild<QLineEdit *>();
    for (QPoint last; field->objectName() == "txt"; field = field->nextInFocusChain()) {
        const QPoint place = field->mapTo(&dialog, QPoint());
        EXPECT_TRUE(place.y() > last.y() || place.x() > last.x());
        last = place;
    }
}

TEST(Columns, areFewAndAlmostEqual)
{
    EXPECT_EQ(forms::columnSizes({200, 200, 200}, 10, 700), (std::vector<int>{3}));
    EXPECT_EQ(forms::columnSizes({300, 100, 100, 300}, 10, 700), (std::vector<int>{2, 2}));
    EXPECT_EQ(forms::columnSizes({600, 100, 100}, 10, 700), (std::vector<int>{1, 2}));
    EXPECT_EQ(forms::columnSizes({900, 100}, 10, 700), (std::vector<int>{1, 1}));
}

} // namespace
