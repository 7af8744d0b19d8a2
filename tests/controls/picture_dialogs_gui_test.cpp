#include "controls/bitmap/bitmap_dialog.h"
#include "controls/picture_copies.h"
#include "controls/property_dialogs.h"
#include "controls/video_source/video_source_dialog.h"
#include "platform/file_replace.h"

#include <QDir>

namespace {

using namespace controls;
using platform::Icon;

const QString Correction = "\nPress OK to continue with automatic correction";
const QString WidthQuestion = "Width of the bitmap control must be divisible by 8." + Correction;
const QString HeightQuestion = "Height of the bitmap control must be divisible by 2." + Correction;
const QString TopQuestion = "Top coordinate of the bitmap control must be an even number." + Correction;
const QString NoPictures = "Please Select Images for Sorce and Alfa images";

forms::Typed typed(const QString &texts)
{
    forms::Typed typed;
    for (const QString &text : texts.split(',', Qt::SkipEmptyParts))
        typed.texts.insert(text.section('=', 0, 0), text.section('=', 1));
    return typed;
}

TEST(BitmapRules, theFirstVerdictThatAppliesIsGiven)
{
    const QString both = "cmdBrowseImage=8 x 2,cmdBrowseAlfaImage=8 x 2,";
    const std::tuple<QString, QString, Icon> cases[] = {
        {"cmdBrowseImage=8 x 2,txtTopCoordinates=11", NoPictures, Icon::Information},
        {both + "txtTopCoordinates=11,txtAlfa=999", TopQuestion, Icon::Critical},
        {"cmdBrowseImage=8 x 2,cmdBrowseAlfaImage=8 x 4,txtAlfa=999",
         "Selected images are in different sizes and please select same size images to continue",
         Icon::Critical},
        {both + "txtAlfa=255.5", "Invalid Alfa Value", Icon::Information},
        {both + "txtTopCoordinates=-10,txtAlfa=255", {}, Icon::None},
    };
    for (const auto &[texts, text, icon] : cases) {
        const auto verdict = validateBitmap(typed(texts)).value_or(forms::refusal({}, Icon::None));
        EXPECT_EQ(verdict.text, text);
        EXPECT_EQ(verdict.icon, icon) << texts.toStdString();
    }
}

struct BitmapPictures : test::Properties<BitmapDialog, Bitmap, ControlType::Bitmap, 0, 0>
{
    BitmapPictures() { dialog.show(); }

    // A picture file of one colour.
    QString file(QSize size, Qt::GlobalColor colour)
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(colour);
        QString path = w.world.root.filePath(colour == Qt::red ? "red.bmp" : "white.bmp");
        EXPECT_TRUE(picture.save(path));
        return path;
    }
    // Picks a file; these questions follow, and this complaint.
    void pick(const char *button, const QString &path,
              const std::vector<std::pair<QString, bool>> &asked = {}, const QString &complaint = {})
    {
        w.world.prompts.expectOpenFile(path);
        for (const auto &[question, ok] : asked)
            w.world.prompts.expectConfirm(question, ok);
        if (!complaint.isNull())
            w.world.prompts.expectMessage(complaint);
        test::press(dialog, button);
    }
    QString kept(const char *name) { return w.world.state.folders.pictureFolder() + name; }

    BitmapDialog dialog{control};
};

TEST_F(BitmapPictures, areAskedForPaddedCopiedAndBlended)
{
    w.world.prompts.expectMessage(NoPictures);
    test::press(dialog, "cmdApply");
    for (const bool ok : {false, true}) {
        pick("cmdBrowseImage", file({101, 51}, Qt::red), {{WidthQuestion, true}, {HeightQuestion, ok}});
        EXPECT_EQ(test::box(dialog, "Width").text() + test::box(dialog, "Height").text(),
                  ok ? "10452" : "00");
    }
    pick("cmdBrowseAlfaImage", file({112, 52}, Qt::white), {}, " Invalid Picture");
    pick("cmdBrowseAlfaImage", file({101, 51}, Qt::white), {{WidthQuestion, true}, {HeightQuestion, true}});
    const QString empty = w.world.root.filePath("empty.bmp");
    platform::replaceFile(empty, {});
    pick("cmdBrowseFactoryAlphaImages", empty, {}, "empty.bmp\nThe file is empty.");
    pick("cmdBrowseFactoryAlphaImages", {}); // cancelled
    QDir().mkpath(kept(""));
    platform::replaceFile(kept("red.bmp"), "another picture");
    test::type(dialog, "TopCoordinates=11");
    w.world.prompts.expectConfirm(TopQuestion, true);
    test::press(dialog, "cmdApply");

    EXPECT_EQ(control.get().curFileName + ' ' + control.get().curAlfaFileName, "red 2.bmp white.bmp");
    EXPECT_EQ(platform::readFile(kept("red.bmp")), "another picture");
    EXPECT_EQ(QImage(kept("red 2.bmp")).size(), QSize(101, 51));
    EXPECT_EQ(control.box(), (Box{0, 10 * 15 - 75, 104 * 15 + 150, 52 * 15 + 150}));
    EXPECT_EQ(w.shown({50, 40}).red(), 253); // a trace of the ground stays
    EXPECT_EQ(w.shown({107, 40}), test::PalGround);

    QStringList texts = control.Serialise();
    for (const QString &width : {texts[0], QStringLiteral("1E+30")}) {
        Bitmap &copy = add();
        texts[0] = width;
        copy.Deserialise(texts);
        EXPECT_EQ(copy.get().picture.planes(), control.get().picture.planes()) << width.toStdString();
    }
}

// A copy that is gone is no error; one that cannot be written costs a message.
TEST_F(BitmapPictures, outliveTheirCopies)
{
    platform::replaceFile(w.world.state.folders.inUserData("ImgTemp"), "in the way");
    pick("cmdBrowseImage", file({8, 2}, Qt::red));
    pick("cmdBrowseAlfaImage", file({8, 2}, Qt::white));
    test::type(dialog, "TopCoordinates=10");
    for (int i = 0; i < 2; ++i)
        w.world.prompts.expectMessage({});
    test::press(dialog, "cmdApply");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(control.get().picture.planes().size(), QSize(16, 4));
    Bitmap &pasted = add();
    pasted.Deserialise(control.Serialise());
    EXPECT_TRUE(pasted.get().picture.isEmpty());
    EXPECT_EQ(pasted.get().curFileName, "red.bmp");
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
    removeUnusedCopies(folders);
    EXPECT_EQ(copies.entryList(QDir::Files), all);
    QDir().rmdir(folders.ControlConfigFile());
    platform::replaceFile(folders.ControlConfigFile(), "[QLBITMAP/1]\r\n3=S1200000.bmp\r\n");
    removeUnusedCopies(folders);
    copies.refresh();
    EXPECT_EQ(copies.entryList(QDir::Files), QStringList({"car.bmp", "S12.bmp", "S1200000.bmp"}));
    EXPECT_EQ(copyName(copies.path() + '/', "../\u8ECA.bmp", {}), "___.bmp");
}

const QString WholeVideo = "txtWidth=720,txtHeight=576,txtLeftBorderWidth=5,txtRightBorderWidth=5,"
                           "txtTopBorderWidth=5,txtBottomBorderWidth=5,txtBorderWidth=255,";
const QString QuarterVideo = QString(WholeVideo).replace("720", "180").replace("576", "144");

TEST(VideoSourceRules, placesOfPicturesInThePictureAreMultiplesOfSixteen)
{
    using enum recorder::VideoStandard;
    const std::tuple<int, recorder::VideoStandard, QPoint, QPoint, QString> cases[] = {
        {3, Pal, {100, 16}, {100, 16}, "96,16"},
        {3, Pal, {96, 32}, {96, 32}, ""},
        {3, Pal, {700, 700}, {545, 437}, "544,432"},
        {3, Ntsc, {544, 700}, {544, 341}, "544,336"},
        {3, Pal, {-5, -100}, {0, 0}, ""},
        {0, Pal, {700, 600}, {635, 509}, ""}, // the marker: 90 x 72
    };
    for (const auto &[row, standard, place, kept, corrected] : cases) {
        SCOPED_TRACE(place.x());
        forms::Typed fields =
            typed((row == 0 ? WholeVideo : QuarterVideo) +
                  QString("txtLeftCoordinates=%1,txtTopCoordinates=%2").arg(place.x()).arg(place.y()));
        fields.rows.insert("cmbSizeRatio", row);
        EXPECT_EQ(placeOnCanvas(place, fields, standard), kept);
        const auto verdict = validateVideoSource(fields, standard);
        EXPECT_EQ(verdict ? verdict->corrections[0].text + ',' + verdict->corrections[1].text : "",
                  corrected);
    }
}

TEST(VideoSourceRules, cropsLeaveSomethingAndBordersFitAByte)
{
    for (const auto &[texts, fits] :
         {std::pair{"txtWidth=100,txtLeftBorderWidth=10,txtRightBorderWidth=90", false},
          {"txtWidth=100,txtLeftBorderWidth=10,txtRightBorderWidth=80", true},
          {"txtHeight=20,txtTopBorderWidth=10,txtBottomBorderWidth=10", false},
          {"txtRightBorderWidth=-1", false},
          {"txtBorderWidth=256", false}})
        EXPECT_EQ(!validateVideoSource(typed(WholeVideo + texts), {}), fits) << texts;
}

using Video = test::Properties<VideoSourceDialog, VideoSource, ControlType::VideoSource, 708, 107>;

TEST_F(Video, standsAtSixteensFollowsTheStandardAndHangsOverByItsCrops)
{
    EXPECT_EQ(control.box(), (Box{528 * 15, 112 * 15, 180 * 15, 144 * 15}));
    test::drag(w, {600, 200}, {{300, 500}});
    EXPECT_EQ(test::placeOf(control), QPoint(545, 437));
    for (const auto &[standard, height] : {std::pair{"mnuNTSC", 120}, {"mnuPAL", 144}}) {
        w.run(standard);
        EXPECT_EQ(control.outerRect(), QRect(545, 365, 180, height));
    }
    test::drag(w, {600, 400}, {{-700, -500}});
    EXPECT_EQ(test::whole(control, "curLeftCoord") + test::whole(control, "curTopCoord"), -10);
}

TEST_F(Video, dialogShowsHueWithItsSignAndAMirrorForTheBackgroundOnly)
{
    control.write("newHue", 255);
    control.write("newUpperLimit", 9.0F);
    VideoSourceDialog dialog(control);
    dialog.show();
    auto &hue = test::child<QSlider>(dialog, "sldHue");
    EXPECT_EQ(hue.value(), -1);
    hue.setValue(-100);
    EXPECT_FALSE(test::list(dialog, "cmbMirror").isEnabled());
    test::list(dialog, "cmbSizeRatio").setCurrentIndex(0);
    test::list(dialog, "cmbMirror").setCurrentIndex(1);
    EXPECT_EQ(test::box(dialog, "Height").text(), "576");
    test::press(dialog, "chkApplyLimits");
    test::press(dialog, "cmdApply");
    const VideoSourceValues &values = control.get();
    EXPECT_EQ(QList<int>({values.curHue, values.curMirror, values.curDivisor}), QList<int>({156, 1, 1}));
    EXPECT_EQ(values.curUpperLimit, 0);
    EXPECT_EQ(control.outerRect().size(), QSize(90, 72));
    EXPECT_EQ(w.design().renderPreview().pixelColor(control.outerRect().center()), test::PalGround);
}

} // namespace
