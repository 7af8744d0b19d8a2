#include "controls/bitmap/bitmap_dialog.h"
#include "controls/bitmap/picture_copies.h"
#include "controls/video_source/video_source_dialog.h"
#include "platform/file_replace.h"
#include "support/design_window.h"

#include <QDir>

namespace {

using controls::Bitmap;
using controls::BitmapDialog;
using platform::Icon;
using test::DesignWindow;

const QString Correction = "\nPress OK to continue with automatic correction";
const QString WidthQuestion = "Width of the bitmap control must be divisible by 8." + Correction;
const QString HeightQuestion = "Height of the bitmap control must be divisible by 2." + Correction;

forms::Typed typed(const QString &texts)
{
    forms::Typed typed;
    for (const QString &text : texts.split(',', Qt::SkipEmptyParts))
        typed.texts.insert(text.section('=', 0, 0), text.section('=', 1));
    return typed;
}

TEST(BitmapRules, aPictureGrowsToEightAndTwoAndAsksForEach)
{
    const std::tuple<QSize, QSize, QStringList> cases[] = {
        {{101, 51}, {104, 52}, {WidthQuestion, HeightQuestion}},
        {{104, 52}, {104, 52}, {}},
        {{104, 1}, {104, 2}, {HeightQuestion}},
        {{1, 2}, {8, 2}, {WidthQuestion}},
    };
    for (const auto &[size, corrected, questions] : cases) {
        EXPECT_EQ(graphics::alignedSize(size), corrected) << size.width();
        EXPECT_EQ(controls::sizeQuestions(size), questions) << size.width();
    }
}

TEST(BitmapRules, theFirstVerdictThatAppliesIsGiven)
{
    const QString both = "cmdBrowseImage=8 x 2,cmdBrowseAlfaImage=8 x 2,";
    const std::tuple<QString, QString, Icon> cases[] = {
        {"cmdBrowseImage=8 x 2,txtTopCoordinates=11", "Please Select Images for Sorce and Alfa images",
         Icon::Information},
        {both + "txtTopCoordinates=11,txtAlfa=999",
         "Top coordinate of the bitmap control must be an even number." + Correction, Icon::Critical},
        {"cmdBrowseImage=8 x 2,cmdBrowseAlfaImage=8 x 4,txtAlfa=999",
         "Selected images are in different sizes and please select same size images to continue",
         Icon::Critical},
        {both + "txtAlfa=255.5", "Invalid Alfa Value", Icon::Information},
        {both + "txtAlfa=-1", "Invalid Alfa Value", Icon::Information},
    };
    for (const auto &[texts, text, icon] : cases) {
        const auto verdict = controls::validateBitmap(typed(texts));
        ASSERT_TRUE(verdict) << texts.toStdString();
        EXPECT_EQ(verdict->text, text);
        EXPECT_EQ(verdict->icon, icon) << texts.toStdString();
    }
    EXPECT_FALSE(controls::validateBitmap(typed(both + "txtTopCoordinates=-10,txtAlfa=255")));
}

struct BitmapPictures : testing::Test
{
    // A picture file of one colour.
    QString file(const char *name, QSize size, const QColor &colour)
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(colour);
        const QString path = d.world.root.filePath(name);
        EXPECT_TRUE(picture.save(path));
        return path;
    }
    // Picks the file; these questions follow.
    void pick(const char *button, const QString &path,
              const std::vector<std::pair<QString, bool>> &asked = {})
    {
        d.world.prompts.expectOpenFile(path);
        for (const auto &[question, ok] : asked)
            d.world.prompts.expectConfirm(question, ok);
        press(button);
    }
    void press(const char *button) { dialog.findChild<QPushButton *>(button)->click(); }
    QString text(const char *box) { return dialog.findChild<QLineEdit *>(box)->text(); }
    QString kept(const char *name) { return d.world.state.folders.pictureFolder() + name; }

    DesignWindow d;
    Bitmap &bitmap = [this]() -> Bitmap & {
        d.design().addControl(controls::ControlType::Bitmap, {});
        return static_cast<Bitmap &>(*d.design().controls().last());
    }();
    BitmapDialog dialog{bitmap};
};

TEST_F(BitmapPictures, areAskedForPaddedCopiedAndBlended)
{
    dialog.show();
    d.world.prompts.expectMessage("Please Select Images for Sorce and Alfa images");
    press("cmdApply");
    for (const bool ok : {false, true}) {
        pick("cmdBrowseImage", file("red.bmp", {101, 51}, Qt::red),
             {{WidthQuestion, true}, {HeightQuestion, ok}});
        EXPECT_EQ(text("txtWidth") + text("txtHeight"), ok ? "10452" : "00");
    }
    pick("cmdBrowseAlfaImage", file("white.bmp", {101, 51}, Qt::white),
         {{WidthQuestion, true}, {HeightQuestion, true}});
    platform::replaceFile(d.world.root.filePath("text.bmp"), {});
    for (const auto &[path, complaint] :
         {std::pair{file("other.bmp", {112, 52}, Qt::white), " Invalid Picture"},
          {d.world.root.filePath("text.bmp"), "text.bmp\nThe file is empty."}}) {
        d.world.prompts.expectOpenFile(path);
        d.world.prompts.expectMessage(complaint);
        press("cmdBrowseFactoryAlphaImages");
    }
    QDir().mkpath(kept(""));
    platform::replaceFile(kept("red.bmp"), "another picture");
    dialog.findChild<QLineEdit *>("txtTopCoordinates")->setText("11");
    d.world.prompts.expectConfirm("Top coordinate of the bitmap control must be an even number." + Correction,
                                  true);
    press("cmdApply");

    EXPECT_TRUE(bitmap.get().curFileName == "red 2.bmp" && bitmap.get().curAlfaFileName == "white.bmp");
    EXPECT_EQ(platform::readFile(kept("red.bmp")), "another picture");
    EXPECT_EQ(QImage(kept("red 2.bmp")).size(), QSize(101, 51));
    EXPECT_EQ(bitmap.get().picture.planes().size(), QSize(104, 52));
    EXPECT_EQ(bitmap.box(), (controls::Box{0, 10 * 15 - 75, 104 * 15 + 150, 52 * 15 + 150}));
    EXPECT_EQ(d.shown({50, 40}).red(), 253); // a trace of the ground stays
    EXPECT_EQ(d.shown({107, 40}), test::PalGround);

    QStringList texts = bitmap.Serialise();
    for (const QString &width : {texts[0], QStringLiteral("1E+30")}) {
        d.design().addControl(controls::ControlType::Bitmap, {});
        auto &copy = static_cast<Bitmap &>(*d.design().controls().last());
        texts[0] = width;
        copy.Deserialise(texts);
        EXPECT_EQ(copy.get().picture.planes(), bitmap.get().picture.planes()) << width.toStdString();
    }
}

// A copy that is gone is no error; one that cannot be written costs a message.
TEST_F(BitmapPictures, outliveTheirCopies)
{
    platform::replaceFile(d.world.state.folders.inUserData("ImgTemp"), "in the way");
    dialog.show();
    pick("cmdBrowseImage", file("red.bmp", {8, 2}, Qt::red));
    pick("cmdBrowseAlfaImage", file("white.bmp", {8, 2}, Qt::white));
    dialog.findChild<QLineEdit *>("txtTopCoordinates")->setText("10");
    for (int i = 0; i < 2; ++i)
        d.world.prompts.expectMessage({});
    press("cmdApply");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(bitmap.get().picture.planes().size(), QSize(16, 4));
    d.design().addControl(controls::ControlType::Bitmap, {});
    auto &pasted = static_cast<Bitmap &>(*d.design().controls().last());
    pasted.Deserialise(bitmap.Serialise());
    EXPECT_TRUE(pasted.get().picture.isEmpty() && pasted.get().curFileName == "red.bmp");
}

TEST(PictureCopies, ofLoadsGoAtAStartUnlessTheLibraryNamesThem)
{
    test::World world;
    const platform::Folders &folders = world.state.folders;
    QDir copies(folders.pictureFolder());
    copies.mkpath(".");
    const QStringList all{"A1200001.bmp", "car.bmp", "S12.bmp", "S1200000.bmp", "S1200002 2.bmp"};
    for (const QString &name : all)
        platform::replaceFile(copies.filePath(name), "copy");
    QDir().mkpath(folders.ControlConfigFile()); // cannot be read
    controls::removeUnusedCopies(folders);
    EXPECT_EQ(copies.entryList(QDir::Files), all);
    QDir().rmdir(folders.ControlConfigFile());
    platform::replaceFile(folders.ControlConfigFile(), "[QLBITMAP/1]\r\n3=S1200000.bmp\r\n");
    controls::removeUnusedCopies(folders);
    copies.refresh();
    EXPECT_EQ(copies.entryList(QDir::Files), QStringList({"car.bmp", "S12.bmp", "S1200000.bmp"}));
    EXPECT_EQ(controls::copyName(copies.path() + '/', "../\u8ECA.bmp", {}), "___.bmp");
}

const QString WholeVideo = "txtWidth=720,txtHeight=576,txtLeftBorderWidth=5,txtRightBorderWidth=5,"
                           "txtTopBorderWidth=5,txtBottomBorderWidth=5,txtBorderWidth=255,";
const QString QuarterVideo = QString(WholeVideo).replace("720", "180").replace("576", "144");

TEST(VideoSourceRules, placesOfPicturesInThePictureAreMultiplesOfSixteen)
{
    using recorder::VideoStandard;
    const std::tuple<int, VideoStandard, QPoint, QPoint, QString> cases[] = {
        {3, VideoStandard::Pal, {100, 16}, {100, 16}, "96,16"},
        {3, VideoStandard::Pal, {96, 32}, {96, 32}, ""},
        {3, VideoStandard::Pal, {700, 700}, {545, 437}, "544,432"},
        {3, VideoStandard::Ntsc, {544, 700}, {544, 341}, "544,336"},
        {3, VideoStandard::Pal, {-5, -100}, {0, 0}, ""},
        {0, VideoStandard::Pal, {100, 33}, {100, 33}, ""},
        {0, VideoStandard::Pal, {700, 600}, {635, 509}, ""}, // the marker: 90 x 72
    };
    for (const auto &[row, standard, place, kept, corrected] : cases) {
        SCOPED_TRACE(place.x());
        forms::Typed fields = typed(row == 0 ? WholeVideo : QuarterVideo);
        fields.rows.insert("cmbSizeRatio", row);
        fields.texts.insert("txtLeftCoordinates", QString::number(place.x()));
        fields.texts.insert("txtTopCoordinates", QString::number(place.y()));
        EXPECT_EQ(controls::keptOnCanvas(place, fields, standard), kept);
        const auto verdict = controls::validateVideoSource(fields, standard);
        EXPECT_EQ(verdict ? verdict->corrections[0].text + ',' + verdict->corrections[1].text : "",
                  corrected);
    }
}

TEST(VideoSourceRules, cropsLeaveSomethingAndBordersFitAByte)
{
    const std::pair<QString, bool> cases[] = {
        {"txtWidth=100,txtLeftBorderWidth=10,txtRightBorderWidth=90", false},
        {"txtWidth=100,txtLeftBorderWidth=10,txtRightBorderWidth=80", true},
        {"txtHeight=20,txtTopBorderWidth=10,txtBottomBorderWidth=10", false},
        {"txtRightBorderWidth=-1", false},
        {"txtBorderWidth=256", false},
    };
    for (const auto &[texts, fits] : cases)
        EXPECT_EQ(!controls::validateVideoSource(typed(WholeVideo + texts), {}), fits) << texts.toStdString();
}

struct Video : testing::Test
{
    DesignWindow d;
    controls::VideoSource &source = [this](QPointF twips) -> controls::VideoSource & {
        d.design().addControl(controls::ControlType::VideoSource, twips);
        return static_cast<controls::VideoSource &>(*d.design().controls().last());
    }({708 * 15, 107 * 15});
};

TEST_F(Video, standsAtSixteensFollowsTheStandardAndHangsOverByItsCrops)
{
    EXPECT_EQ(source.box(), (controls::Box{528 * 15, 112 * 15, 180 * 15, 144 * 15}));
    test::drag(d, {600, 200}, {{300, 500}});
    EXPECT_EQ(test::placeOf(source), QPoint(545, 437));
    d.run("mnuNTSC");
    EXPECT_EQ(source.box(), (controls::Box{545 * 15, 365 * 15, 180 * 15, 120 * 15}));
    d.run("mnuPAL");
    EXPECT_EQ(source.box(), (controls::Box{545 * 15, 365 * 15, 180 * 15, 144 * 15}));
    test::drag(d, {600, 400}, {{-700, -500}});
    EXPECT_EQ(test::whole(source, "curLeftCoord") + test::whole(source, "curTopCoord"), -10);
}

TEST_F(Video, dialogShowsHueWithItsSignAndAMirrorForTheBackgroundOnly)
{
    source.write("newHue", 255);
    source.write("newUpperLimit", 9.0F);
    controls::VideoSourceDialog dialog(source);
    dialog.show();
    auto &hue = *dialog.findChild<QSlider *>("sldHue");
    auto &size = *dialog.findChild<QComboBox *>("cmbSizeRatio");
    auto &mirror = *dialog.findChild<QComboBox *>("cmbMirror");
    EXPECT_EQ(hue.value(), -1);
    hue.setValue(-100);
    EXPECT_FALSE(mirror.isEnabled());
    size.setCurrentIndex(0);
    mirror.setCurrentIndex(1);
    EXPECT_EQ(dialog.findChild<QLineEdit *>("txtHeight")->text(), "576");
    dialog.findChild<QAbstractButton *>("chkApplyLimits")->click();
    dialog.findChild<QPushButton *>("cmdApply")->click();
    EXPECT_TRUE(source.get().curHue == 156 && source.get().curMirror == 1 && source.isFullFrame());
    EXPECT_EQ(source.get().curUpperLimit, 0);
    EXPECT_EQ(source.outerRect().size(), QSize(90, 72));
    EXPECT_EQ(d.design().renderPreview().pixelColor(source.outerRect().center()), test::PalGround);
}

} // namespace
