#include "graphics/dialogs/font_preview.h"
#include "graphics/dialogs/frm_font_gen.h"
#include "graphics/face_source.h"
#include "platform/desktop/appearance.h"
#include "platform/file_replace.h"
#include "support/design_window.h"

#include <QDir>

namespace graphics {

namespace {

const QString ProgramFolder = QStringLiteral(MORVEL_PROGRAM_DIR "/");

// An open window over font folders of its own.
struct FontWindow : testing::Test
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
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    QStringList files() const { return QDir(folders.FontFolder()).entryList(QDir::Files, QDir::Name); }
    bool hasPicture() { return !field<QLabel>("OutputText").pixmap(Qt::ReturnByValue).isNull(); }

    QTemporaryDir root;
    platform::Folders folders;
    test::ScriptedPrompts prompts;
    FontStore store{folders};
    frmFontGen window{store, {DefaultFace, 12, {}}, prompts, nullptr};
};

TEST_F(FontWindow, makesTheChosenFontByKeyboardAlone)
{
    field<QComboBox>("cmbFontName").setFocus();
    press(Qt::Key_Tab);
    press(Qt::Key_7); // in the place of the 12, and not the beginning of 72
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_EQ(window.request(), (FontRequest{DefaultFace, 7, {false, true}}));
    EXPECT_TRUE(hasPicture() && files().isEmpty());
    EXPECT_TRUE(field<QLabel>("lblstatus").text().contains(QStringLiteral("Liberation Sans stands in")));

    press(Qt::Key_Return);
    const QString written = QStringLiteral("QL Sans Serif I 7.qlg");
    EXPECT_EQ(files(), QStringList({QStringLiteral("Ext_") + written, written}));
    EXPECT_EQ(field<QProgressBar>("pBar").value(), 100);
    EXPECT_TRUE(field<QLabel>("lblstatus").text().contains(written));
    EXPECT_TRUE(window.isEnabled() && !QApplication::overrideCursor());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FontWindow, saysWhatIsWrongAndWritesNothing)
{
    const auto generate = [this](const QString &size, const QString &message) {
        field<QComboBox>("cmbFontSize").setCurrentText(size);
        prompts.expectMessage(message);
        field<QPushButton>("cmdGenerate").click();
        EXPECT_TRUE(files().isEmpty() && window.isEnabled());
        EXPECT_EQ(field<QProgressBar>("pBar").value(), 0);
    };
    generate({}, NoFontChosen);
    EXPECT_FALSE(hasPicture());
    generate(QStringLiteral("900"), FontTooLarge);
    EXPECT_FALSE(hasPicture());
    QDir().mkpath(folders.GetAppDataFolder());
    platform::replaceFile(folders.FontFolder().chopped(1), "a file in the place of the folder");
    generate(QStringLiteral("12"), {});
    EXPECT_TRUE(prompts.shown().back().text.contains(store.standardPath(window.request())));
    EXPECT_TRUE(hasPicture());
}

// Counts how often the generator's window comes up.
class Appearances final : public QObject
{
public:
    Appearances() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::Show && qobject_cast<frmFontGen *>(watched) ? 1 : 0;
        return false;
    }
    int count = 0;
};

TEST(FontOfTheDesign, comesFromItsFilesWhichTheWindowMakesWhenTheyAreMissing)
{
    test::DesignWindow d;
    const Appearances windows;
    const FontRequest request{QStringLiteral("Arial"), 12, {}};
    const auto font = d.design().textFont(request);
    ASSERT_TRUE(font && font->glyph(u'H'));
    EXPECT_EQ(d.design().textFont(request), font);
    EXPECT_EQ(windows.count, 1);
    EXPECT_TRUE(d.window.isEnabled() && !QApplication::overrideCursor());

    d.world.prompts.expectMessage(FontTooLarge);
    EXPECT_FALSE(d.design().textFont({request.face, 999, {}}));
    EXPECT_EQ(windows.count, 2);
}

// A face that the desktop hands over table by table gives the same pixels as its file.
TEST(InstalledFaces, lookTheSameAsTheirFiles)
{
    platform::registerShippedFaces(ProgramFolder + QStringLiteral("fonts/"));
    platform::NoProgress progress;
    const FontRequest request{ShippedFace, 15, {true, true}};
    const auto shipped = renderFont(request, ProgramFolder + QStringLiteral("fonts/"), progress);
    const auto installed = renderFont(request, QStringLiteral("/no/such/folder/"), progress);
    ASSERT_TRUE(shipped && installed);
    EXPECT_TRUE(installed->standard == shipped->standard && installed->extended == shipped->extended);
    EXPECT_TRUE(offeredFaces().contains(ShippedFace));
}

} // namespace

} // namespace graphics
