#include "graphics/dialogs/font_preview.h"
#include "graphics/dialogs/frm_font_gen.h"
#include "platform/desktop/appearance.h"
#include "platform/file_replace.h"
#include "support/scripted_prompts.h"

#include <QAbstractButton>
#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QtTest/QtTest>

#include <gtest/gtest.h>

namespace graphics {

namespace {

const QString ProgramFolder = QStringLiteral(MORVEL_PROGRAM_DIR "/");

// An open window over font folders of its own.
struct FontWindow
{
    FontWindow()
    {
        folders.program = ProgramFolder;
        folders.applicationData = root.path() + QLatin1Char('/');
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <typename Widget>
    Widget &field(const char *name)
    {
        return *window.findChild<Widget *>(QLatin1String(name));
    }
    QString status() { return field<QLabel>("lblstatus").text(); }
    QStringList files() const { return QDir(folders.FontFolder()).entryList(QDir::Files, QDir::Name); }
    // A telling pixel of the preview: white ink on a dim ground.
    bool previewHasInk()
    {
        const QImage picture = field<QLabel>("OutputText").pixmap().toImage();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) == 0xFFFFFFFF)
                    return true;
            }
        }
        return false;
    }

    QTemporaryDir root;
    platform::Folders folders;
    test::ScriptedPrompts prompts;
    FontStore store{folders, prompts};
    frmFontGen window{store, prompts, nullptr};
};

TEST(FontWindow, makesTheChosenFontByKeyboardAlone)
{
    FontWindow world;
    EXPECT_EQ(world.field<QComboBox>("cmbFontName").currentText(), QStringLiteral("QL Sans Serif"));
    world.field<QComboBox>("cmbFontName").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("20"));
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(world.window.request(), (FontRequest{DefaultFace, 20, {false, true}}));
    EXPECT_TRUE(world.previewHasInk());
    EXPECT_TRUE(world.status().contains(QStringLiteral("Liberation Sans stands in")));
    EXPECT_TRUE(world.files().isEmpty());

    QTest::keyClick(&world.window, Qt::Key_Return);
    EXPECT_EQ(world.files(), QStringList({QStringLiteral("Ext_QL Sans Serif I 20.qlg"),
                                          QStringLiteral("QL Sans Serif I 20.qlg")}));
    EXPECT_EQ(world.field<QProgressBar>("pBar").value(), 100);
    EXPECT_TRUE(world.status().contains(QStringLiteral("QL Sans Serif I 20.qlg")));
    EXPECT_TRUE(world.window.isEnabled());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    QTest::keyClick(&world.window, Qt::Key_Escape);
    EXPECT_FALSE(world.window.isVisible());
}

TEST(FontWindow, saysWhatIsWrongAndWritesNothing)
{
    const std::pair<QString, QString> cases[] = {{{}, NoFontChosen}, {QStringLiteral("900"), FontTooLarge}};
    for (const auto &[size, message] : cases) {
        FontWindow world;
        world.field<QComboBox>("cmbFontSize").setCurrentText(size);
        EXPECT_FALSE(world.previewHasInk());
        EXPECT_FALSE(world.field<QLabel>("OutputText").text().isEmpty());
        world.prompts.expectMessage(message);
        world.field<QPushButton>("cmdGenerate").click();
        EXPECT_TRUE(world.files().isEmpty());
        EXPECT_EQ(world.field<QProgressBar>("pBar").value(), 0);
        world.field<QComboBox>("cmbFontSize").setCurrentText(QStringLiteral("12"));
        EXPECT_TRUE(world.previewHasInk());
    }
}

TEST(FontWindow, reportsAFolderThatTakesNoFiles)
{
    FontWindow world;
    QDir().mkpath(world.folders.GetAppDataFolder());
    platform::replaceFile(world.folders.FontFolder().chopped(1), "a file in the place of the folder");
    const QString path = world.store.standardPath(world.window.request());
    world.prompts.expectMessage({});
    world.field<QPushButton>("cmdGenerate").click();
    ASSERT_EQ(world.prompts.shown().size(), 1U);
    EXPECT_TRUE(world.prompts.shown()[0].text.contains(path));
    EXPECT_TRUE(world.window.isEnabled());
}

TEST(FontWindow, showsEverythingWhole)
{
    FontWindow world;
    for (const QWidget *widget : world.window.findChildren<QWidget *>()) {
        const bool hasText =
            qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget);
        if (hasText && widget->isVisible() && !widget->objectName().isEmpty()) {
            EXPECT_GE(widget->width(), widget->sizeHint().width()) << widget->objectName().toStdString();
            EXPECT_GE(widget->height(), widget->sizeHint().height()) << widget->objectName().toStdString();
        }
    }
    EXPECT_FALSE(world.window.grab().isNull());
}

// A face that the desktop hands over table by table gives the same pixels as its file.
TEST(InstalledFaces, lookTheSameAsTheirFiles)
{
    platform::registerShippedFaces(ProgramFolder + QStringLiteral("fonts/"));
    platform::NoProgress progress;
    for (const FontStyle style :
         {FontStyle{}, FontStyle{true}, FontStyle{false, true}, FontStyle{true, true}}) {
        const FontRequest request{QStringLiteral("Liberation Sans"), 15, style};
        const auto shipped = renderFont(request, ProgramFolder + QStringLiteral("fonts/"), progress);
        const auto installed = renderFont(request, QStringLiteral("/no/such/folder/"), progress);
        ASSERT_TRUE(shipped && installed);
        EXPECT_EQ(installed->standard, shipped->standard) << style.bold << style.italic;
        EXPECT_EQ(installed->extended, shipped->extended) << style.bold << style.italic;
    }
    EXPECT_TRUE(offeredFaces().contains(QStringLiteral("Liberation Sans")));
}

} // namespace

} // namespace graphics
