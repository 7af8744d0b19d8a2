#include "graphics/dialogs/frm_font_gen.h"
#include "graphics/face_source.h"
#include "graphics/font_engine.h"
#include "graphics/glyph_lists.h"
#include "graphics/glyph_raster.h"
#include "graphics/outline_file.h"
#include "platform/desktop/appearance.h"
#include "platform/file_replace.h"
#include "support/design_window.h"

#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>

#include <array>

#include FT_OUTLINE_H

namespace {

using namespace graphics;

const QString ProgramFolder = MORVEL_PROGRAM_DIR "/";
const QString Faces = ProgramFolder + "fonts/";

// An open window over font folders of its own.
struct FontWindow : testing::Test
{
    FontWindow()
    {
        folders.program = ProgramFolder;
        folders.applicationData = root.path() + '/';
        test::show(window);
    }

    template <typename Widget>
    Widget &field(const char *name)
    {
        return test::child<Widget>(window, name);
    }
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    QStringList files() const { return QDir(folders.FontFolder()).entryList(QDir::Files, QDir::Name); }
    bool hasPicture() { return !field<QLabel>("OutputText").pixmap(Qt::ReturnByValue).isNull(); }

    QTemporaryDir root;
    platform::Folders folders;
    test::ScriptedPrompts prompts;
    FontStore store{folders};
    frmFontGen window{store, {DefaultFace, 12, {}}, {prompts, {}}};
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
    EXPECT_TRUE(hasPicture());
    EXPECT_EQ(files(), QStringList());
    EXPECT_TRUE(field<QLabel>("lblstatus").text().contains("Liberation Sans stands in"));

    press(Qt::Key_Return);
    const QString written = "QL Sans Serif I 7.qlg";
    EXPECT_EQ(files(), QStringList({"Ext_" + written, written}));
    EXPECT_EQ(field<QProgressBar>("pBar").value(), 100);
    EXPECT_TRUE(field<QLabel>("lblstatus").text().contains(written));
    EXPECT_TRUE(window.isEnabled());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FontWindow, saysWhatIsWrongAndWritesNothing)
{
    const auto generate = [this](const QString &size, const QString &message) {
        field<QComboBox>("cmbFontSize").setCurrentText(size);
        prompts.expectMessage(message);
        field<QPushButton>("cmdGenerate").click();
        EXPECT_EQ(files(), QStringList());
        EXPECT_TRUE(window.isEnabled());
        EXPECT_EQ(field<QProgressBar>("pBar").value(), 0);
    };
    generate({}, NoFontChosen);
    EXPECT_FALSE(hasPicture());
    generate("900", FontTooLarge);
    EXPECT_FALSE(hasPicture());
    QDir().mkpath(folders.GetAppDataFolder());
    platform::replaceFile(folders.FontFolder().chopped(1), "a file in the place of the folder");
    generate("12", {});
    EXPECT_TRUE(prompts.shown().back().text.contains(store.standardPath(window.request())));
    EXPECT_TRUE(hasPicture());
}

TEST(FontOfTheDesign, isMadeWithoutAMessage)
{
    test::DesignWindow d;
    const FontRequest request{"Arial", 12, {}};
    const auto font = d.design().textFont(request, 9);
    ASSERT_TRUE(font->glyph(u'H'));
    EXPECT_EQ(d.design().textFont(request, 9), font);
    EXPECT_LT(d.design().textFont({request.face, 999, {}}, 9)->lineHeight(), font->lineHeight());
}

// A face that the desktop hands over table by table gives the same pixels as its file.
TEST(InstalledFaces, lookTheSameAsTheirFiles)
{
    platform::registerShippedFaces(Faces);
    platform::NoProgress progress;
    const FontRequest request{ShippedFace, 15, {true, true}};
    const auto shipped = renderFont(request, Faces, progress);
    const auto installed = renderFont(request, "/no/such/folder/", progress);
    ASSERT_TRUE(shipped && installed);
    EXPECT_EQ(installed->standard, shipped->standard);
    EXPECT_EQ(installed->extended, shipped->extended);
}

TEST(InstalledFaces, areOfferedWhereTheyCanBeDrawnAndAliasesMeanWhatTheDesktopMeans)
{
    platform::registerShippedFaces(Faces);
    const QStringList offered = drawableFaces();
    EXPECT_TRUE(offered.contains(ShippedFace) && offered.contains("Arial"));
    for (const QString &face : offered) {
        EXPECT_TRUE(StoodInFor.contains(face) || !installedFace(face, {}).isEmpty()) << face.toStdString();
        EXPECT_EQ(storedFace(face), face);
    }
    for (const QString alias : {"Serif", "Monospace"}) {
        if (QFontDatabase::families().contains(alias)) {
            EXPECT_EQ(installedFace(alias, {}), installedFace(QFontInfo(QFont(alias)).family(), {}));
        }
    }
    EXPECT_FALSE(isDrawable("No Such Face"));
}

// Faces without tables to hand over become files of their outlines: the same as from the face's own file, but
// for the rounding to their units.
TEST(OutlineFile, drawsEveryCharacterLikeTheFaceItself)
{
    for (const FontStyle &style : {FontStyle{}, FontStyle{true, true}}) {
        const FontRequest request{ShippedFace, 40, {style.bold, style.italic, false, true}};
        const QByteArray own = shippedFace(Faces, style);
        const FontEngine engine;
        const auto face = OpenFace::open(engine, own, request);
        const auto outlined = OpenFace::open(engine, outlineFile(QRawFont(own, 10)), request);
        ASSERT_TRUE(face && outlined && !outlined->has(u'~'));
        EXPECT_NEAR(outlined->bars()[0].bottom, face->bars()[0].bottom, Enlargement);
        const auto compare = [&](std::uint8_t character) {
            const auto drawn = [&](const OpenFace &from) {
                int advance = 0;
                FT_BBox box;
                FT_Outline *outline = from.outline(character, advance);
                FT_Outline_Get_CBox(outline, &box);
                const auto number = [](long value) { return static_cast<int>(value); };
                return std::array{number(box.xMin), number(box.xMax),
                                  number(box.yMin), number(box.yMax),
                                  advance * 64,     FT_Outline_Get_Orientation(outline) * 1000};
            };
            const auto wanted = drawn(*face), found = drawn(*outlined);
            for (std::size_t i = 0; i < wanted.size(); ++i)
                EXPECT_NEAR(found[i], wanted[i], 64 * Enlargement)
                    << static_cast<char>(character) << ' ' << i;
        };
        std::ranges::for_each(standardList(), compare);
        std::ranges::for_each(extendedList(), compare);
    }
}

} // namespace
