#include "controls/bitmap/bitmap.h"
#include "controls/custom_dial/custom_dial.h"
#include "controls/track_map/track_map.h"
#include "controls/video_source/video_source.h"
#include "layoutfile/saved_design.h"
#include "support/block_font.h"

#include <QDir>

#include <map>

namespace {

using namespace layoutfile;
using test::DesignWindow;

constexpr common::Yuv Grey{128, 128, 128}; // would climb at every load if it were made anew from its colour

const FixedText<30> BlockFile{"Block  12.qlg"}, OtherFile{"Block B 14.qlg"};

// Two fonts of blocks, back to back, and their directories.
void addBlockFonts(RecordGroups &groups)
{
    const auto [standard, extended] = test::blockFont();
    const auto size = static_cast<qint32>(standard.size()), wide = static_cast<qint32>(extended.size());
    for (const quint8 id : std::array<quint8, 2>{0, 1}) {
        groups.add(FontDirectoryRecord{id, size, id * size});
        groups.add(ExtendedFontDirectoryRecord{id, wide, id * wide});
    }
    groups.add(FontRastersRecord{Bulk{standard.repeated(2)}});
    groups.add(ExtendedFontRastersRecord{Bulk{extended.repeated(2)}});
}

// All that a design of the test world's variables and three more can hold, but for its thumbnail.
RecordGroups someLayout()
{
    RecordGroups groups;
    // Texts of 10 pixels a character; one that is longer than its record has one more.
    groups.add(TextTagRecord{-700, 40, 255, Grey, 1, 2, 3, {"Left, right"}, 11, 0, BlockFile, 3, 0, 0, 0});
    groups.add(TextTagRecord{0, 80, 9, Grey, 0, 0, 5, {"dd/mm/yy"}, 8, 0, BlockFile, 0, 2, -1, 1});
    groups.add(LongTextRecord{{"Left, right and centre"}, 22}, 1);
    groups.add(DigitalDisplayRecord{-400, 250, 128, Grey, 254, 0, 1, 2, 1.5F, 3, 0, 0, 0, 1, OtherFile});
    groups.add(DigitalDisplayRecord{10, 20, 255, Grey, 3, 1, 0, 0, 7, 0, 2, -1, 1, 0, BlockFile});
    addBlockFonts(groups);
    // Vertical bars rise from their lower edge; exchanged limits turn a bar round.
    groups.add(BarGraphRecord{55, 65, 175, 65, 128, 20, Grey, 0, 100, 30, 3, 22, -1, 1});
    groups.add(BarGraphRecord{175, 125, 55, 125, 255, 20, Grey, 100, 0, 30, 3, 0, 0, 0});
    groups.add(BarGraphRecord{305, 185, 305, 65, 255, 20, Grey, 0, 100, 30, 3, 0, 0, 0});
    groups.add(BarGraphRecord{365, 65, 365, 185, 255, 20, Grey, 100, 0, 30, 3, 0, 0, 0});
    groups.add(GaugeRecord{170, 170, 65, 4, Grey, -45, 225, 0, 160, 80.5F, 2, 22, -1, 1});
    groups.add(GaugeRecord{650, 410, 65, 0, Grey, 0, 90, -1, 1, 0, 0, 0, 0, 0});
    groups.add(VideoSourceRecord{1, 405, 3, 0, 255, 5, 5, Grey, 0, 0, 0, 1, 1, 2, 255, 4, 2, -1, 1, 0.5F});
    groups.add(VideoSourceRecord{3, -5, 480, 5, 5, 5, 5, Grey, 1, 9, 3, 0, 1, 2, 3, 4, 0, 0, 0, 0});
    groups.add(BitmapRecord{8, 2, 41, -3, 200, -1, 1, 0.5F, 3, 0, 30, -1, 1, 0});
    groups.add(BitmapRecord{3, 3, 470, 700, 255, 0, 0, 0, 0, 1, 0, 0, 0, 0});
    // A dial of an odd size, whose planes came from somewhere else.
    groups.add(BitmapRecord{5, 3, 20, 10, 128, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    groups.add(GaugeRecord{12, 22, 65, 3, Grey, -90, 90, 0, 10, 5, 3, 0, 0, 0});
    groups.add(CustomDialRecord{3,          3,           10, 20, 5,   3, 3, 65,   3, Grey,  -90,
                                90,         0,           10, 5,  128, 9, 0, 0.5F, 1, 0.25F, 1,
                                Grey,       {"Nowhere"}, 1,  0,  0,   0, 0, 1,    0, 0,     255,
                                {" Volts"}, 0,           0,  0,  0,   0, 1, 2,    0});
    groups.add(ImagePlanesRecord{Bulk{"YYYYYYYYyyyyyyyyUUUUVVVVaaaaaaaaAAAAAAAA123456789UV987654321"
                                      "YYYYYYYYYYYYYYYUUVVAAAAAAAAAAAAAAA"}});
    groups.add(TrackMapRecord{9, 17, 110, 60, 2, Grey, 1, 7, Grey, 3, Grey, 0, 204, 1, 0, 0, 0});
    groups.add(TrackMapUnderlayRecord{1, 2, 100}, 1);
    groups.add(VariableEntry{2, 1, 0.5F, 0, 0, 14});
    groups.add(VariableEntry{3, 1, 0, 250, -1, 1});
    groups.add(VariableEntry{10, 1, 0, 0, -1, 1}); // always in use
    groups.add(VariableEntry{22, 0, 0, 0, -1, 0}); // colours only
    groups.add(VariableEntry{30, 1, 0, 0, -1, 1}); // of the track
    groups.add(ChapterRecord{9, -1.5F, 1, 2, 0, 3});
    groups.add(ChapterRecord{0, 4, 0, 3, 1, 5});
    groups.add(LapChaptersRecord{7});
    groups.add(AutoStartRecord{2, 10, 2, 5});
    groups.add(AutoStopRecord{3, 0.5F, 1, 60});
    groups.add(VideoStandardRecord{0});
    groups.add(BitRateRecord{13, 1});
    for (int i = 0; i < 256; ++i) {
        const auto number = static_cast<quint8>(255 - i);
        groups.add(MessageStorageRateRecord{number, static_cast<quint8>(i % 10)});
        groups.add(MessageOutputRateRecord{number, static_cast<quint8>(i % 7)});
    }
    groups.add(GearsRecord{0.5F, {0, 1.5F, 2.5F}, {1, 2, 3}, 1, 2});
    groups.add(ProgramsRecord{Bulk{test::bytes("011400000040 02120100 0108 0119")}}); // 2 * x
    groups.add(SpecialIconRecord{1, 5, 3, 30, 40, 128, "YYYYYYYYYYYYYYYUUUVVV"});     // of odd sides
    return groups;
}

// One family: every property by the name of its writer, and the bytes of its records.
struct Linked
{
    controls::ControlType family;
    const controls::PropertyTable &properties;
    std::map<std::string_view, controls::PropertyValue> written;
    std::map<RecordType, const char *> payloads;
};

// clang-format off
const Linked LinkedFamilies[] = {
    {controls::ControlType::Gauge, controls::gaugeProperties(),
     {{"newVarID", 2}, {"newCenterX", 360}, {"newCenterY", 250}, {"newPointerLength", 200},
      {"newPointerWidth", 5}, {"newColour", 255}, {"newMinAngle", -100}, {"newMaxAngle", 110},
      {"newMin", -1.5F}, {"newMax", 100.0F}, {"newDefaultVal", 0.5F}, {"newColourVariable", 3},
      {"newColourVarMin", 1.0F}, {"newColourVarMax", 2.0F}},
     {{RecordType::Gauge, "6801 FA00 C8 05 525BF0 9CFF 6E00 0000C0BF 0000C842 0000003F 02000000 03000000 0000803F 00000040"}}},
    // "00:00:00.50" in blocks of 8 pixels and 2 between them: it ends at 470
    {controls::ControlType::DigitalDisplay, controls::digitalDisplayProperties(),
     {{"newDAlign", 1}, {"newBold", 1}, {"newItalic", 1}, {"newFontName", "Block"}, {"newFontSize", 12},
      {"newStrikethrough", 1}, {"newUnderline", 1}, {"newDText", "none"}, {"newVarID", 2}, {"newCenterX", 360},
      {"newCenterY", 250}, {"newColour", 255}, {"newDecPlaces", 2}, {"newLowerLimit", -1.5F},
      {"newUpperLimit", 100.0F}, {"newDefaultVal", 0.5F}, {"newDecMark", 1}, {"newAlfa", 128},
      {"newTimeFormat", 1}, {"newColourVariable", 3}, {"newColourVarMin", 1.0F}, {"newColourVarMax", 2.0F},
      {"newBkColour", 7}},
     {{RecordType::DigitalDisplay,
       "2AFE FA00 80 525BF0 FE 01 0000C0BF 0000C842 0000003F 02000000 03000000 0000803F 00000040"
       "00 'Block BISU 12.qlg' 00 '            '"}}},
    {controls::ControlType::TextTag, controls::textTagProperties(),
     {{"newTAlign", 0}, {"newBold", 1}, {"newItalic", 1}, {"newFont", "Block"}, {"newFontSize", 12},
      {"newStrikethrough", 1}, {"newUnderline", 1}, {"newForeColour", 255}, {"newBkColour", 7},
      {"newTText", "Oil pressure"}, {"newVarID", 2}, {"newLowerLimit", -1.5F}, {"newUpperLimit", 100.0F},
      {"newDefaultVal", 0.5F}, {"newAlfa", 128}, {"newColourVariable", 3}, {"newColourVarMin", 1.0F},
      {"newColourVarMax", 2.0F}, {"newCenterX", 360}, {"newCenterY", 250}},
     {{RecordType::TextTag,
       "6801 FA00 80 525BF0 0000C0BF 0000C842 0000003F 'Oil pressur' 00 0B 00 'Block BISU 12.qlg' 00 '            '"
       "02000000 03000000 0000803F 00000040"}}},
    // 104 wide as chosen, 8 more in the planes
    {controls::ControlType::Bitmap, controls::bitmapProperties(),
     {{"newAlfa", 200}, {"newFileName", "s.bmp"}, {"newAlfaFileName", "a.bmp"}, {"newVarID", 2},
      {"newLowerLimit", 1.0F}, {"newUpperLimit", 2.0F}, {"newDefaultVal", 0.5F}, {"newZorder", 0},
      {"newAlfaVariable", 3}, {"newAlfaVarMin", -1.5F}, {"newAlfaVarMax", 100.0F},
      {"newAlfaDefaultVal", 0.25F}, {"newTopCoord", 100}, {"newLeftCoord", 200},
      {"newSourceImg", QImage(104, 51, QImage::Format_RGB32)},
      {"newAlfaImg", QImage(104, 51, QImage::Format_RGB32)}},
     {{RecordType::Bitmap,
       "7000 3400 6400 C800 C8 0000803F 00000040 0000003F 02000000 00 03000000 0000C0BF 0000C842 0000803E"}}},
    {controls::ControlType::VideoSource, controls::videoSourceProperties(),
     {{"newTopBorderWidth", 3}, {"newBottomBorderWidth", 4}, {"newLeftBorderWidth", 5},
      {"newRightBorderWidth", 6}, {"NewDivisor", 2}, {"NewBordercolor", 255}, {"NewBorderVisible", 1},
      {"NewCameraNo", 3}, {"NewMirror", 9}, {"newBorderWidth", 7}, {"newBrightness", 100},
      {"newContrast", 101}, {"newHue", 102}, {"newSaturation", 103}, {"newLowerLimit", -1.5F},
      {"newUpperLimit", 100.0F}, {"newDefaultVal", 0.5F}, {"newVarID", 2}, {"newTopCoord", 48},
      {"newLeftCoord", 64}},
     {{RecordType::VideoSource,
       "02 3000 4000 03 04 05 06 525BF0 01 07 03 09 64 65 66 67 02000000 0000C0BF 0000C842 0000003F"}}},
    // upright, so it starts at its lower edge; 20 pixels long, the inner height of a new bar
    {controls::ControlType::BarGraph, controls::barGraphProperties(),
     {{"newVarID", 2}, {"newBarWidth", 30}, {"newColour", 255}, {"newMin", -1.5F}, {"newMax", 100.0F},
      {"newDefaultVal", 0.5F}, {"newBarType", 1}, {"newLeft", 1500}, {"newTop", 3000}, {"newAlfa", 128},
      {"newColourVariable", 3}, {"newColourVarMin", 1.0F}, {"newColourVarMax", 2.0F}},
     {{RecordType::BarGraph, "6400 DC00 6400 C800 80 1E 525BF0 0000C0BF 0000C842 0000003F 02000000 03000000 0000803F 00000040"}}},
    {controls::ControlType::TrackMap, controls::trackMapProperties(),
     {{"newLeftCoord", 10}, {"newTopCoord", 20}, {"newWidth", 100}, {"NewHeight", 50}, {"newBorderWidth", 4},
      {"NewBorderVisible", 0}, {"NewBordercolor", 0}, {"newMarkerWidth", 8}, {"NewMarkerVisible", 3},
      {"NewMarkercolor", 0xFFFFFF}, {"NewLinecolor", 255}, {"newLineWidth", 5}, {"newAlfa", 128},
      {"newFadingRate", 2}, {"newIniWidth", 300}, {"newIniHeight", 150}, {"newAutoRescale", 1},
      {"newMapEnable", 1}, {"newMapType", 6}, {"newMapDetailLevel", 7}, {"newMapAlpha", 100}},
     {{RecordType::TrackMap, "0A00 1400 6E00 3C00 05 525BF0 03 08 EC8080 04 108080 00 80 02 2C01 9600 01"},
      {RecordType::TrackMapUnderlay, "06 07 64"}}},
    // The pointer is at most 255 pixels long and turns about the middle of the face.
    {controls::ControlType::CustomDial, controls::customDialProperties(),
     {{"newWidth", 40}, {"NewHeight", 21}, {"newVarID", 2}, {"newCenterX", 10}, {"newCenterY", 20},
      {"newPointerLength", 300}, {"newPointerWidth", 5}, {"newPointerColour", 255}, {"newMinAngle", -100},
      {"newMaxAngle", 110}, {"newMin", -1.5F}, {"newMax", 100.0F}, {"newDefaultVal", 0.5F},
      {"newAlfa", 128}, {"newTicStyle", 2}, {"newTicDelta", 0.5F}, {"newTicInner", 0.25F},
      {"newTicOuter", 0.75F}, {"newTicWidth", 0.125F}, {"newTicLabelsOnOff", 0}, {"newTicColour", 0xFFFFFF},
      {"newFontName", "Arial"}, {"newFontSize", 12}, {"newFontBold", 0}, {"newFontUnderline", 1},
      {"newFontStrikethrough", 3}, {"newFontItalic", 4}, {"newCaptions", 0}, {"newCaption", " Rev"},
      {"newCaptionLeft", -0.5F}, {"newCaptionTop", 1.0F}, {"newCaptionColour", 0x563412}, {"newAnnulars", 5},
      {"newAnnularStart", 1.0F}, {"newAnnularStop", 2.0F}, {"newAnnularInner", 0.5F},
      {"newAnnularOuter", 0.25F}, {"newAnnularColour", 255}, {"newBkColour", 0xFF00}, {"newTransparent", 6}},
     {{RecordType::CustomDial,
       "0100 0100 0A00 1400 2800 1500 02000000 2C01 0500 525BF0 9CFF 6E00 0000C0BF 0000C842 0000003F 80 02 "
       "0000003F 0000803E 0000403F 0000003E 00 EC8080 'Arial                         ' 00 04 0C00 03 01 00 "
       "000000BF 0000803F 12345600 ' Rev                          ' 05 0000803F 00000040 0000003F 0000803E "
       "FF000000 00FF0000 06"},
      {RecordType::Gauge, "1E00 1E00 FF 05 525BF0 9CFF 6E00 0000C0BF 0000C842 0000003F 02000000 00000000 "
                          "00000000 00000000"},
      {RecordType::Bitmap, "2800 1500 1400 0A00 80 00000000 00000000 00000000 00000000 00 00000000 00000000 "
                           "00000000 00000000"}}},
};
// clang-format on

using Payloads = std::map<RecordType, const char *>;

// Of a file with at most one record of each of these types.
void expectPayloads(const QByteArray &file, Payloads expected)
{
    for (const LayoutRecord &record : parseLayout(file)) {
        if (const auto found = expected.find(record.type()); found != expected.end()) {
            EXPECT_EQ(test::payloadOf(record.body).toHex(), test::bytes(found->second).toHex());
            expected.erase(found);
        }
    }
    EXPECT_TRUE(expected.empty());
}

TEST(RoundTrip, everyPropertyHasItsPlaceInTheRecordOfItsFamily)
{
    for (const Linked &linked : LinkedFamilies) {
        DesignWindow d;
        test::writeBlockFont(d.world, {"Block", 12, {true, true, true, true}});
        d.design().addControl(linked.family, {});
        controls::OverlayControl &control = *d.design().controls().last();
        for (const controls::PropertyRow &row : linked.properties.rows) {
            if (!row.writer.empty())
                control.write(row.writer, linked.written.at(row.writer));
        }
        control.AssignProperties();
        expectPayloads(test::savedDesign(d), linked.payloads);
    }
}

TEST(RoundTrip, everySettingHasItsPlaceInItsRecord)
{
    DesignWindow d;
    d.addGauge(100, 100);
    recorder::RecorderSettings &settings = d.world.state.settings;
    settings.VideoType = recorder::VideoStandard::Ntsc;
    settings.CurrentBitRate = 11;
    settings.encodePattern = recorder::EncodePattern::IP;
    settings.ChapterList = {{.type = 9, .value1 = -1.5F, .sign1 = 0, .variable = 3, .sign2 = 1, .value2 = 2}};
    settings.LapChapterActive = 1;
    settings.LapChapterType = 7;
    settings.autoStart = {.variable = 2, .condition = 1, .value = 10, .time = 5};
    settings.autoStop = {.variable = 3, .condition = 2, .value = 0.5F, .time = 60};
    settings.GearTable = {{1, 2}, {3, 4}};
    settings.GearMethod = 1;
    settings.GearVariable = 22;
    settings.PulsesPerRevolution = 0.5F;
    settings.icon = {true, 30, 40, 128, graphics::PlanePicture::fromFile({2, 2, "YYYY", "U", "V"}, {})};
    expectPayloads(test::savedDesign(d),
                   {{RecordType::Chapter, "09 0000C0BF 00 03000000 01 00000040"},
                    {RecordType::LapChapters, "07"},
                    {RecordType::AutoStart, "02000000 00002041 01 05"},
                    {RecordType::AutoStop, "03000000 0000003F 02 3C"},
                    {RecordType::VideoStandard, "00"},
                    {RecordType::BitRate, "0C 01"},
                    {RecordType::Gears, "0000003F 02 0000803F 00004040 00000040 00008040 01 16000000"},
                    {RecordType::SpecialIcon, "01 0200 0200 1E00 2800 80 'YYYYUV'"}});
}

TEST(RoundTrip, aLayoutIsSavedWithTheBytesItWasLoadedFrom)
{
    DesignWindow d;
    d.world.addVariable(22, "Oil temperature");
    d.world.addVariable(30, "Latitude");
    d.world.addVariable(31, "Not in use");
    d.world.state.catalogue.live[31].Enabled = false;
    for (const graphics::FontRequest &font : {graphics::FontRequest{"Block", 12, {}}, {"Block", 14, {true}}})
        test::writeBlockFont(d.world, font);
    RecordGroups groups = someLayout();
    test::loadDesign(d, test::fileOf(groups, d.world.state.stamp));
    const QByteArray file = test::savedDesign(d);
    groups.add(ThumbnailRecord{Bulk{extractThumbnail(file)}});
    EXPECT_EQ(file.toHex(), test::fileOf(groups, d.world.state.stamp).toHex());

    const QDir copies(d.world.state.folders.pictureFolder());
    EXPECT_EQ(copies.entryList(QDir::Files),
              QStringList({"A2359001.bmp", "A2359003.bmp", "S2359000.bmp", "S2359002.bmp"}));
    EXPECT_EQ(d.canvas().height(), 480);
    EXPECT_EQ(d.text("lblBitRate"), "Bit Rate 12 Mbps");
    EXPECT_TRUE(d.action("mnuIP").isChecked());
    EXPECT_EQ(d.world.state.catalogue.staging, d.world.state.catalogue.live);
    recorder::MessageTable stored;
    recorder::readMessageTable(platform::readFile(d.world.state.folders.MessagesFile()), stored);
    EXPECT_EQ(stored, d.world.state.settings.MessageTable);

    // A load on top doubles the controls and replaces the settings.
    const recorder::RecorderSettings loaded = d.world.state.settings;
    d.world.state.settings.ChapterList.resize(9);
    d.world.state.settings.CurrentBitRate = 3;
    test::loadDesign(d, file);
    EXPECT_TRUE(d.world.state.settings == loaded);
    EXPECT_EQ(d.design().controls().size(), 32);
}

TEST(Load, aRefusedFileChangesNothing)
{
    DesignWindow d;
    const auto settings = d.world.state.settings;
    const QByteArray file = test::fileOf(someLayout(), d.world.state.stamp);
    for (const QByteArray &damaged : {file + 'x', file.first(4)}) {
        d.world.prompts.expectMessage("Invalid File Format");
        test::loadDesign(d, damaged);
    }
    EXPECT_EQ(d.world.prompts.shown().back().icon, platform::Icon::Critical);
    EXPECT_EQ(d.world.state.settings, settings);
    EXPECT_TRUE(d.design().controls().isEmpty());
    EXPECT_EQ(d.design().caption(), "Untitled");
}

QString lacksPictures(int bitmaps)
{
    return QStringLiteral(
               "The layout does not hold the pictures of %1 bitmaps in full. Choose them again in the "
               "properties: a bitmap without pictures is not saved.")
        .arg(bitmaps);
}

TEST(Load, saysWhichPicturesALayoutDoesNotHold)
{
    DesignWindow d;
    RecordGroups groups;
    for (int i = 0; i < 3; ++i)
        groups.add(BitmapRecord{2, 2, 0, 0, 255, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    groups.add(ImagePlanesRecord{Bulk{"YYYYUVAAAA"
                                      "YYYYUVA"}});
    d.world.prompts.expectMessage(lacksPictures(2));
    test::loadDesign(d, test::fileOf(groups, d.world.state.stamp));
    EXPECT_EQ(d.design().controls().size(), 3);
}

// With a good CRC every value reaches the design. It must stay one that can be looked at and saved.
TEST(Load, standsWhereWhatComesWithItCannotBeWritten)
{
    DesignWindow d;
    d.addBar(100, 200);
    const QByteArray file = test::savedDesign(d);
    DesignWindow other;
    const platform::Folders &folders = other.world.state.folders;
    for (const QString &path : {folders.variablesFile(), folders.MessagesFile()}) {
        QFile::remove(path);
        QDir().mkpath(path);
    }
    other.world.prompts.expectMessage("The layout is loaded, but not everything that comes with it could be "
                                      "written.\n" +
                                      folders.variablesFile() + ": not a regular file");
    test::loadDesign(other, file);
    EXPECT_EQ(other.design().controls().size(), 1);
    EXPECT_TRUE(other.world.state.catalogue.hasUnwrittenEdits); // they are tried again
}

TEST(Load, extremeValuesLeaveADesignThatWorks)
{
    constexpr float Nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float Infinite = std::numeric_limits<float>::infinity();
    constexpr qint16 Low = -32768, High = 32767;
    const std::tuple<qint16, qint16, float, float> ranges[] = {
        {Low, High, Nan, Infinite}, {High, Low, -Infinite, Nan}, {High, High, 1, 1}};
    RecordGroups groups;
    quint8 camera = 0;
    for (const auto &[low, high, min, max] : ranges) {
        groups.add(BarGraphRecord{low, high, high, high, 255, 255, {}, min, max, Nan, Low, -1, Nan, Nan});
        groups.add(TextTagRecord{low, high, 0, {}, min, max, Nan, {}, 255, 255, {}, Low, -1, Nan, Nan});
        groups.add(DigitalDisplayRecord{
            high, low, 255, {}, 127, 255, min, max, Infinite, -1, 9000, 0, 0, 9, {"../x B 0.qlg"}});
        groups.add(GaugeRecord{low, high, 255, 255, {}, low, high, min, max, Nan, -1, 9000, Nan, 0});
        groups.add(BitmapRecord{low, high, high, low, 0, min, max, Nan, -1, 255, 9000, Nan, Nan, Nan});
        groups.add(VideoSourceRecord{0, low, high, 255, 0, 0, 0, {}, 0, 0, camera++});
        CustomDialRecord dial;
        std::tie(dial.width, dial.height, dial.minAngle, dial.maxAngle) = std::tuple(high, high, low, high);
        std::tie(dial.ticDelta, dial.ticInner, dial.max, dial.captionTop) = std::tuple(1.0F, min, max, min);
        dial.ticLabels = dial.annulars = dial.captions = 1;
        groups.add(dial);
    }
    groups.add(LongTextRecord{{"of a text that is not there"}, 27}, 9);
    groups.add(TrackMapRecord{Low, High, Low, High, 255, {}, 255, 255, {}, 255, {}, 9, 255, 9, Low, High, 9});
    groups.add(VariableEntry{2, 1, Nan, Infinite, -1, 1});
    groups.add(ChapterRecord{255, Nan, 255, -5, 255, Infinite});
    DesignWindow d;
    d.world.prompts.expectMessage(lacksPictures(3));
    test::loadDesign(d, test::fileOf(groups, d.world.state.stamp));
    EXPECT_EQ(d.design().controls().size(), 22);
    EXPECT_FALSE(d.canvas().grab().isNull());
    const variables::VariableRecord &speed = d.world.state.catalogue.live[2];
    EXPECT_EQ(speed.SmoothingTime, 0);
    EXPECT_EQ(speed.MaximumROC, 0);
    EXPECT_TRUE(IsValidVGL(test::savedDesign(d)));
}

} // namespace
