#include "graphics/dialogs/frm_font_gen.h"
#include "graphics/face_source.h"
#include "graphics/font_engine.h"
#include "graphics/glyph_lists.h"
#include "graphics/glyph_raster.h"
#include "graphics/outline_file.h"
#include "platform/desktop/appearance.h"
#include "platform/file_replace.h"
#include "support/scripted_prompts.h"
#include "support/widgets.h"

#include <QComboBox>
#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>

#include <cstdlib>

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

    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    QStringList files() const { return QDir(folders.FontFolder()).entryList(QDir::Files, QDir::Name); }
    QPixmap picture() { return test::child<QLabel>(window, "OutputText").pixmap(Qt::ReturnByValue); }

    QTemporaryDir root;
    platform::Folders folders;
    test::ScriptedPrompts prompts;
    FontStore store{folders};
    frmFontGen window{store, {DefaultFace, 12, {}}, {prompts, {}}};
};

TEST_F(FontWindow, makesTheChosenFontByKeyboardAlone)
{
    test::child<QComboBox>(window, "cmbFontName").setFocus();
    // The 7 stands in the place of the 12, and is not the beginning of 72.
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_7, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space})
        press(key);
    EXPECT_EQ(window.request(), (FontRequest{DefaultFace, 7, {false, true}}));
    EXPECT_FALSE(picture().isNull());
    EXPECT_EQ(files(), QStringList());
    EXPECT_TRUE(test::child<QLabel>(window, "lblstatus").text().contains("Liberation Sans stands in"));

    press(Qt::Key_Return);
    const QString written = "QL Sans Serif I 7.qlg";
    EXPECT_EQ(files(), QStringList({"Ext_" + written, written}));
    EXPECT_EQ(test::child<QProgressBar>(window, "pBar").value(), 100);
    EXPECT_TRUE(test::child<QLabel>(window, "lblstatus").text().contains(written));
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FontWindow, saysWhatIsWrongAndWritesNothing)
{
    const auto generate = [this](const QString &size, const QString &message) {
        test::child<QComboBox>(window, "cmbFontSize").setCurrentText(size);
        prompts.expectMessage(message);
        test::child<QPushButton>(window, "cmdGenerate").click();
        EXPECT_EQ(files(), QStringList());
        EXPECT_EQ(std::pair(window.isEnabled(), test::child<QProgressBar>(window, "pBar").value()),
                  std::pair(true, 0));
    };
    generate({}, NoFontChosen);
    generate("900", FontTooLarge);
    EXPECT_TRUE(picture().isNull());
    QDir().mkpath(folders.GetAppDataFolder());
    platform::replaceFile(folders.FontFolder().chopped(1), "a file in the place of the folder");
    generate("12", {});
    EXPECT_TRUE(prompts.shown().back().text.contains(store.standardPath(window.request())));
}

// A face that the desktop hands over table by table gives the same pixels as its file.
TEST(InstalledFaces, lookTheSameAsTheirFiles)
{
    platform::registerShippedFaces(Faces);
    platform::NoProgress progress;
    const FontRequest request{ShippedFace, 15, {true, true}};
    const auto shipped = renderFont(request, Faces, progress).value_or(FontPair());
    const auto installed = renderFont(request, "/no/such/folder/", progress).value_or(FontPair());
    EXPECT_FALSE(shipped.standard.isEmpty());
    EXPECT_EQ(installed.standard + installed.extended, shipped.standard + shipped.extended);
}

TEST(InstalledFaces, areOfferedWhereTheyCanBeDrawnAndAliasesMeanWhatTheDesktopMeans)
{
    platform::registerShippedFaces(Faces);
    EXPECT_TRUE(drawableFaces().contains(ShippedFace));
    for (const QString &face : drawableFaces()) {
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
TEST(OutlineFile, drawsCharactersLikeTheFaceItself)
{
    const FontRequest request{ShippedFace, 40, {true, true, false, true}};
    const QByteArray own = shippedFace(Faces, {true, true});
    const FontEngine engine;
    const auto face = OpenFace::open(engine, own, request);
    const auto outlined = OpenFace::open(engine, outlineFile(QRawFont(own, 10)), request);
    ASSERT_TRUE(outlined);
    EXPECT_NEAR(outlined->bars()[0].bottom, face->bars()[0].bottom, Enlargement);
    for (const std::uint8_t character : standardList()) {
        FT_BBox boxes[2];
        int advances[2];
        FT_Outline_Get_CBox(face->outline(character, advances[0]), &boxes[0]);
        FT_Outline_Get_CBox(outlined->outline(character, advances[1]), &boxes[1]);
        EXPECT_NEAR(advances[0], advances[1], Enlargement) << character;
        for (FT_Pos FT_BBox::*edge : {&FT_BBox::xMin, &FT_BBox::xMax, &FT_BBox::yMin, &FT_BBox::yMax})
            EXPECT_LE(std::abs(boxes[0].*edge - boxes[1].*edge), 64 * Enlargement) << character;
    }
}

} // namespace
