#include "layoutfile/layout_bytes.h"

#include <gtest/gtest.h>

namespace {

using namespace layoutfile;
using test::bytes;

struct Row
{
    int type;
    RecordBody body;
    const char *payload;
    int statedSize = 0; // 0: the payload's own
};

constexpr common::Yuv White{235, 128, 127}, Red{81, 90, 240}, Black{16, 128, 240};

// clang-format off
// One record of each type, in the order of a file. No two neighbouring fields hold the same.
std::vector<Row> rows()
{
    return {
        {1, VideoSourceRecord{.divisor = 2, .top = 258, .left = -2, .topBorderWidth = 3,
            .bottomBorderWidth = 4, .leftBorderWidth = 5, .rightBorderWidth = 6, .borderColour = Black,
            .borderVisible = 1, .borderWidth = 7, .cameraNo = 4, .mirror = 1, .brightness = 128,
            .contrast = 129, .hue = 130, .saturation = 131, .variable = 0x01020304, .lowerLimit = 1,
            .upperLimit = 100, .defaultValue = 0.5F},
         "02 0201 FEFF 03 04 05 06 1080F0 01 07 04 01 80 81 82 83 04030201 0000803F 0000C842 0000003F"},
        {2, BitmapRecord{.width = 112, .height = 54, .top = -3, .left = 300, .alpha = 200, .lowerLimit = 1,
            .upperLimit = 2, .defaultValue = 0.5F, .variable = 2, .zOrder = 9, .alphaVariable = 3,
            .alphaVariableMin = -1.5F, .alphaVariableMax = 100, .alphaDefault = 0.25F},
         "7000 3600 FDFF 2C01 C8 0000803F 00000040 0000003F 02000000 09 03000000 0000C0BF 0000C842 "
         "0000803E"},
        // the text is one character too long
        {3, TextTagRecord{.left = -700, .top = 40, .alpha = 255, .colour = White, .lowerLimit = 1,
            .upperLimit = 2, .defaultValue = 0.5F, .text = {"Oil pressure"}, .textLength = 11, .fontId = 1,
            .fontFile = {"QL Sans Serif BI 12.qlg"}, .variable = 10, .colourVariable = 3,
            .colourVariableMin = -1.5F, .colourVariableMax = 100},
         "44FD 2800 FF EB807F 0000803F 00000040 0000003F 'Oil pressur' 00 0B 01 "
         "'QL Sans Serif BI 12.qlg' 00 '      ' 0A000000 03000000 0000C0BF 0000C842"},
        {4, DigitalDisplayRecord{.x = -650, .y = 500, .alpha = 128, .colour = Red, .decimalPlaces = 254,
            .timeFormat = 1, .lowerLimit = 1, .upperLimit = 2, .defaultValue = 0.5F, .variable = 2,
            .colourVariable = 3, .colourVariableMin = -1.5F, .colourVariableMax = 100, .fontId = 5,
            .fontFile = {"Arial  8.qlg"}},
         "76FD F401 80 515AF0 FE 01 0000803F 00000040 0000003F 02000000 03000000 0000C0BF 0000C842 05 "
         "'Arial  8.qlg' 00 '                 '"},
        {5, BarGraphRecord{100, 200, 350, -4, 255, 20, Red, 100, -1.5F, 0.5F, 3, 2, 1, 2},
         "6400 C800 5E01 FCFF FF 14 515AF0 0000C842 0000C0BF 0000003F 03000000 02000000 0000803F 00000040"},
        {6, GaugeRecord{360, -5, 255, 4, Red, -120, 121, -1.5F, 100, 0.5F, 2, 3, 1, 2},
         "6801 FBFF FF 04 515AF0 88FF 7900 0000C0BF 0000C842 0000003F 02000000 03000000 0000803F 00000040"},
        {7, VariableEntry{2, 1, 0.5F, 100, 300, 9}, "02000000 01 0000003F 0000C842 2C010000 09"},
        {8, ChapterRecord{9, -1.5F, 1, 3, 0, 100}, "09 0000C0BF 01 03000000 00 0000C842"},
        {9, LapChaptersRecord{3}, "03"},
        {10, AutoStartRecord{2, 100, 2, 5}, "02000000 0000C842 02 05"},
        {11, AutoStopRecord{3, 0.5F, 1, 10}, "03000000 0000003F 01 0A"},
        {12, VideoStandardRecord{1}, "01"},
        {13, BitRateRecord{13, 2}, "0D02"},
        {14, MessageStorageRateRecord{255, 8}, "FF08"},
        {15, GearsRecord{2, {0, 0.5F}, {1, 2}, 1, 15},
         "00000040 02 00000000 0000003F 0000803F 00000040 01 0F000000"},
        {16, TrackMapRecord{.left = 10, .top = 20, .width = 300, .height = 200, .lineWidth = 2,
            .lineColour = White, .markerVisible = 1, .markerWidth = 5, .markerColour = Red, .borderWidth = 3,
            .borderColour = Black, .borderVisible = 0, .alpha = 255, .fadingRate = 7, .initialWidth = 300,
            .initialHeight = 150, .autoRescale = 1},
         "0A00 1400 2C01 C800 02 EB807F 01 05 515AF0 03 1080F0 00 FF 07 2C01 9600 01"},
        {17, FontDirectoryRecord{.fontId = 1, .length = 300, .offset = 70000}, "01 2C010000 70110100"},
        {25, ExtendedFontDirectoryRecord{.fontId = 2, .length = 5, .offset = 256}, "02 05000000 00010000"},
        {18, ImagePlanesRecord{Bulk{"planes"}}, "'planes'"},
        {19, FontRastersRecord{Bulk{"rasters"}}, "'rasters'"},
        {26, ExtendedFontRastersRecord{Bulk{"extended"}}, "'extended'"},
        {20, ProgramsRecord{}, ""},
        {21, TrackMapUnderlayRecord{.mapType = 1, .detailLevel = 2, .alpha = 128}, "01 02 80"},
        {22, MessageOutputRateRecord{7, 9}, "0709"},
        {23, ThumbnailRecord{Bulk{bytes("FFD8 'jpeg' FFD9")}}, "FFD8 'jpeg' FFD9"},
        {24, LongTextRecord{.text = {"Oil pressure in the gearbox, 2"}, .length = 30},
         "'Oil pressure in the gearbox, 2' 00 1E"},
        // states 10 + 2 x 16 although the smaller chroma planes make 34
        {27, SpecialIconRecord{.entry = 1, .width = 8, .height = 2, .top = 30, .left = -4, .alpha = 128,
            .planes = {"YYYYYYYYYYYYYYYYUUUUVVVV"}},
         "01 0800 0200 1E00 FCFF 80 'YYYYYYYYYYYYYYYYUUUUVVVV'", 42},
        // states half of its 166 bytes
        {28, CustomDialRecord{.bitmapObject = 3, .gaugeObject = 4, .left = 300, .top = -3, .width = 200,
            .height = 100, .variable = 2, .pointerLength = 300, .pointerWidth = 5, .pointerColour = Red,
            .minAngle = -120, .maxAngle = 120, .min = -1.5F, .max = 100, .defaultValue = 0.5F, .alpha = 255,
            .ticStyle = 2, .ticDelta = 1, .ticInner = 2, .ticOuter = 0.5F, .ticWidth = 0.25F, .ticLabels = 1,
            .ticColour = White, .fontName = {"Arial"}, .fontBold = 1, .fontItalic = 0, .fontSize = 12,
            .fontStrikethrough = 0, .fontUnderline = 1, .captions = 2, .captionLeft = 0.5F,
            .captionTop = -1.5F, .captionColour = 0x00112233, .caption = {"kilometres per hour, on wheels"},
            .annulars = 1, .annularStart = 1, .annularStop = 2, .annularInner = 0.5F, .annularOuter = 0.25F,
            .annularColour = 0x00FF8000, .backColour = 0x004A3B2F, .transparent = 1},
         "0300 0400 2C01 FDFF C800 6400 02000000 2C01 0500 515AF0 88FF 7800 0000C0BF 0000C842 0000003F "
         "FF 02 0000803F 00000040 0000003F 0000803E 01 EB807F 'Arial                         ' 01 00 "
         "0C00 00 01 02 0000003F 0000C0BF 33221100 'kilometres per hour, on wheels' 01 0000803F "
         "00000040 0000003F 0000803E 0080FF00 2F3B4A00 01", 83},
    };
}
// clang-format on

int statedSize(const Row &row)
{
    return row.statedSize != 0 ? row.statedSize : static_cast<int>(bytes(row.payload).size());
}

int objectOf(const Row &row) { return row.type * 9; }

// The file of all rows, put together by hand.
QByteArray wholeFile()
{
    QByteArray file = test::header();
    for (const Row &row : rows())
        file = test::withRecord(file, row.type, statedSize(row), objectOf(row), bytes(row.payload));
    return test::withCrc(file);
}

TEST(RecordBytes, aFileIsHeaderRecordsWithSumsAndCrcInTheFormatsOrder)
{
    std::vector<Row> all = rows();
    std::reverse(all.begin(), all.end());
    RecordGroups groups;
    for (const Row &row : all) {
        EXPECT_EQ(encodePayload(row.body).toHex(' '), bytes(row.payload).toHex(' ')) << "type " << row.type;
        groups.add(row.body, static_cast<qint16>(objectOf(row)));
    }
    EXPECT_EQ(assembleLayout(groups, test::stamp("driver", "pitwall")).toHex(), wholeFile().toHex());
}

TEST(RecordBytes, everyFieldComesBackAndFontsAreLeftOut)
{
    const std::vector<LayoutRecord> read = parseLayout(wholeFile());
    auto record = read.begin();
    for (const Row &row : rows()) {
        if (row.type == 17 || row.type == 25 || row.type == 19 || row.type == 26)
            continue;
        ASSERT_NE(record, read.end());
        EXPECT_EQ(record->object, objectOf(row));
        EXPECT_EQ(static_cast<int>(record->type()), row.type);
        EXPECT_EQ(encodePayload((record++)->body), bytes(row.payload)) << "type " << row.type;
    }
    EXPECT_EQ(record, read.end());
}

TEST(RecordBytes, theSumOfAnIconReachesBackToTheFilesFirstByteAtMost)
{
    // 256 luma bytes: the stated 522 + 12 bytes are more than header, frame and payload have.
    const QByteArray planes = QByteArray(256, '\xF0') + QByteArray(128, '\x80');
    RecordGroups groups;
    groups.add(SpecialIconRecord{1, 32, 8, 0, 0, 255, planes});
    const QByteArray payload = bytes("01 2000 0800 0000 0000 FF") + planes;
    EXPECT_EQ(assembleLayout(groups, test::stamp("driver", "pitwall")),
              test::withCrc(test::withRecord(test::header(), 27, 522, 1, payload)));
}

TEST(RecordBytes, theHeaderStampsClockUserAndComputer)
{
    const std::array<const char *, 3> cases[] = {
        {"", "B\u00FCro \u20AC \u0416", "00 '                   ' 'B' FC 'ro ' 80 20 '?' 00 '           '"},
        {"nineteen characters", "twenty characters ..", "'nineteen characters' 00 'twenty characters .' 00"},
    };
    for (const auto &[user, computer, names] : cases) {
        const QByteArray header = bytes("'QLVGL' 030000 1F0C05 173B") + bytes(names);
        EXPECT_EQ(assembleLayout({}, test::stamp(user, computer)), test::withCrc(header)) << names;
    }
}

} // namespace
