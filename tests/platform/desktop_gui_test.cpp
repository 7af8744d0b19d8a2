#include "platform/desktop/busy.h"
#include "platform/desktop/qt_prompts.h"
#include "platform/file_replace.h"
#include "support/widgets.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

namespace {

using platform::Icon;

TEST(Busy, PutsACloseOffAndLeavesTheWindowAsItWas)
{
    QWidget window;
    QLineEdit field(&window);
    test::show(window);
    field.setFocus();
    {
        platform::Busy busy(&window, platform::Busy::Hourglass::WhenItLasts);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        busy.begin("Saving");
        EXPECT_FALSE(window.close());
        int step = 0;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            busy.setValue(++step % 100);
            return !window.isEnabled(); // it lasts
        }));
        const auto shown = [&busy] {
            busy.setValue(50);
            const QWidget *progress = QApplication::activeModalWidget();
            return progress ? progress->windowTitle() : QString();
        };
        EXPECT_EQ(shown(), "Saving");
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
        busy.begin("Making a font");
        EXPECT_EQ(shown(), "Making a font");
        busy.end();
        EXPECT_EQ(shown(), "Saving");
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(window.isEnabled());
    EXPECT_EQ(window.focusWidget(), &field);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }));
}

struct Boxes : testing::Test
{
    // Does this in the box that opens next, and presses the key there.
    static void answer(Qt::Key key, const std::function<void(QWidget &)> &inside = {})
    {
        test::whenOpened([=](QWidget &box) {
            if (inside)
                inside(box);
            QTest::keyClick(&box, key);
        });
    }
    platform::QtPrompts prompts;
};

TEST_F(Boxes, TakeReturnAsTheAnswerThatRisksNothingAndEscapeAsNone)
{
    answer(Qt::Key_Return);
    EXPECT_TRUE(prompts.ask(Icon::Question, "Title", "Text"));
    answer(Qt::Key_Return);
    EXPECT_FALSE(prompts.ask(Icon::Warning, "Title", "Text"));
    answer(Qt::Key_Escape);
    EXPECT_FALSE(prompts.confirm(Icon::Question, "Title", "Text"));
    const auto third = [](QWidget &box) { test::press(box, "optChoice2"); };
    answer(Qt::Key_Return, third);
    EXPECT_EQ(prompts.choose("Title", "Text", {"a", "b", "c"}), 2);
    answer(Qt::Key_Escape, third);
    EXPECT_EQ(prompts.choose("Title", "Text", {"a", "b", "c"}), std::nullopt);
}

TEST_F(Boxes, ShowNamesThatLookLikeTagsAsTheyStand)
{
    int plain = 0;
    int rich = 0;
    for (const auto &[name, height] : {std::pair("one line", &plain), {"<h1>one line</h1>", &rich}}) {
        answer(Qt::Key_Return, [height = height](QWidget &box) {
            *height = box.findChild<QLabel *>()->sizeHint().height();
            QTest::keyClicks(box.findChild<QLineEdit *>(), "new");
        });
        EXPECT_EQ(prompts.input("Title", name, "old"), "new");
    }
    EXPECT_EQ(rich, plain);
    answer(Qt::Key_Escape);
    EXPECT_EQ(prompts.input("Title", "Text", "old"), "");
}

TEST_F(Boxes, CompleteTheNamesOfFilesAndPreviewWhatIsTyped)
{
    const QTemporaryDir folder;
    const QString lower = folder.filePath("card.vgl");
    platform::replaceFile(lower, "layout");
    const auto type = [](const QString &name, bool previewed = false) {
        test::whenOpened([=](QWidget &dialog) {
            auto &box = test::child<QLineEdit>(dialog, "fileNameEdit");
            box.clear();
            QTest::keyClicks(&box, name);
            const auto *preview = dialog.findChild<QLabel *>("picPreview");
            EXPECT_EQ(preview && !preview->pixmap().isNull(), previewed);
            static_cast<QDialog &>(dialog).accept();
        });
    };
    type("NEW");
    EXPECT_EQ(prompts.saveFile({{}, folder.path(), "VGL Files(*.VGL)|*.VGL", "DEFAULT.VGL", {}}),
              folder.filePath("NEW.VGL"));
    const auto picture = [](const QString &) { return QImage(8, 8, QImage::Format_RGB32); };
    type("card.vgl", true);
    EXPECT_EQ(prompts.openFile({{}, folder.path(), "VGL files|*.VGL", {}, picture}), lower);
    // A request without a folder begins where the last such one ended.
    for (const QString &name : {lower, QString("card.vgl")}) {
        type(name);
        EXPECT_EQ(prompts.openFile({{}, {}, "Variables|*.vgl", {}, {}}), lower);
    }
}

} // namespace
